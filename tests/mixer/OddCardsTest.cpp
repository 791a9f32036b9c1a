#include "mixer/MixerStudio.h"
#include "mixer/TableCard.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

using Kind = MixerControlKind;
using Names = std::vector<std::string>;

struct OddCard {
    const char* name;
    void (*layOut)(TableCard& card);
    Names playback;
    Names recording;
};

const OddCard oddCards[] = {
    {"WithoutLines", [](TableCard&) {}, {"notSet"}, {"notSet"}},
    {"OfSixtyLines",
     [](TableCard& card) {
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_SPEAKERS);
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {Kind::multiplexer});
         for (int i = 0; i < 60; ++i) card.addSource("Mic", {Kind::volume});
     },
     {"Master"},
     Names(60, "Mic")},
    {"WithoutThisOrThat",
     [](TableCard& card) {
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_SPEAKERS);
         card.addSource("Wave", {});
         card.addSource("CD", {Kind::volume});
         card.addSource("Aux", {Kind::mute});
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {});
         card.addSource("Line In", {});
         card.addSource("Mic", {Kind::volume});
     },
     {"Master", "CD", "Aux"},
     {"Mic"}},
    {"WhichRecordsFirst",
     [](TableCard& card) { card.addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {}); },
     {"notSet"},
     {"Master"}},
    {"OfALongNameAndAMaximumBelowItsMinimum",
     [](TableCard& card) {
         card.layOut({"Kopfh\xC3\xB6rerausg\xC3\xA4nge"}, {"Mic"});
         MixerControlInfo& volume = card.layout.front().sources.front().controls.front();
         std::swap(volume.minimum, volume.maximum);
     },
     {"Master", "Kopfh\xC3\xB6rerausg"},
     {"Mic"}},
};

class OddCards : public MixerStudio, public testing::WithParamInterface<OddCard> {
  protected:
    OddCards() { GetParam().layOut(card); }

    /// Everything that a person can do to a line.
    void useAll(const LineRow& row, int lines) {
        for (int i = 0; i < lines; ++i) {
            for (Slider* slider : {&row.volumes[i], &row.balances[i]}) {
                slider->setValue(slider->Min());
                hearMessages();
                slider->setValue(slider->Max());
            }
            row.choices[i].setValue(1 - row.choices[i].Value());
            hearMessages();
        }
    }

    TableCard card;
};

TEST_P(OddCards, AreShownAndUsedWithWhatTheyHave) {
    whileOpen([this] {
        EXPECT_EQ(captions(frmVolumeMixer->playbackRow()), GetParam().playback);
        EXPECT_EQ(captions(frmVolumeMixer->recordingRow()), GetParam().recording);
        const QString first = card.layout.empty() ? "IDnotSet" : QString::number(card.layout.front().line.id);
        EXPECT_EQ(frmVolumeMixer->txtPlaybackLineID[0].Text(), first) << "whatever it is for";
        useAll(frmVolumeMixer->playbackRow(), frmVolumeMixer->playbackLineCount);
        useAll(frmVolumeMixer->recordingRow(), frmVolumeMixer->recordLineCount);
        for (std::size_t i = 0; i < gPlaybackLineIDs.size() && gPlaybackLineCount > 0; ++i) {
            const int panel = static_cast<int>(i);
            const std::int32_t id = gPlaybackLineIDs[i];
            EXPECT_EQ(frmVolumeMixer->sldPlaybackVolume[panel].Enabled(), card.values.contains({id, Kind::volume}));
            EXPECT_EQ(frmVolumeMixer->sldPlaybackBalance[panel].Enabled(), card.values.contains({id, Kind::volume}));
            EXPECT_EQ(frmVolumeMixer->chkPlaybackMute[panel].Enabled(), card.values.contains({id, Kind::mute}));
        }
    });
}
INSTANTIATE_TEST_SUITE_P(A, OddCards, testing::ValuesIn(oddCards), [](const auto& test) { return test.param.name; });

class OneOddCard : public MixerStudio {
  protected:
    OneOddCard() { card.layOut({"Wave", "CD"}, {}); }

    TableCard card;
};

TEST_F(OneOddCard, WithALineOfNoRangeIsADivisionFault) {
    card.layout.front().sources.front().controls.front().minimum = 65535;
    EXPECT_THROW(showMasterMixer(), RuntimeError);
}

TEST_F(OneOddCard, LendsAnUnreadableLineTheReachOfTheLineBefore) {
    whileOpen([this] {
        card.values[{mixerLineId(0, 0), Kind::volume}] = {2000, 1500};
        card.values[{mixerLineId(0, 1), Kind::volume}] = {100, 400};
        card.failOnce = {{mixerLineId(0, 1), Kind::volume}};
        setLineMute(gMixerHandle, mixerLineId(0, 0), 0);
        hearMessages();
        EXPECT_FALSE(frmVolumeMixer->sldPlaybackVolume[2].Enabled());
        EXPECT_EQ(frmVolumeMixer->sldPlaybackBalance[2].Max(), 2000);
        EXPECT_EQ(frmVolumeMixer->sldPlaybackBalance[2].Value(), 300);
    });
}

}  // namespace
}  // namespace lyrebrook
