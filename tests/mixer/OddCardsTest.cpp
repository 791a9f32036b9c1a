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

void giveSpeakers(TableCard& card, const std::vector<Kind>& kinds, const std::string& name = "Wave") {
    card.addDestination(MIXERLINE_COMPONENTTYPE_DST_SPEAKERS);
    card.addSource(name, kinds);
}

const OddCard oddCards[] = {
    {"WithoutLines", [](TableCard&) {}, {"notSet"}, {"notSet"}},
    {"WithAMasterAlone",
     [](TableCard& card) { card.addDestination(MIXERLINE_COMPONENTTYPE_DST_SPEAKERS); },
     {"Master"},
     {"notSet"}},
    {"OfSixtyLines", [](TableCard& card) { card.layOut(Names(60, "Wave"), Names(60, "Mic")); },
     [] {
         Names names(61, "Wave");
         names[0] = "Master";
         return names;
     }(),
     Names(60, "Mic")},
    {"WithoutControls",
     [](TableCard& card) {
         giveSpeakers(card, {});
         card.addSource("CD", {Kind::volume});
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {});
         card.addSource("Mic", {});
     },
     {"Master", "CD"},
     {}},
    {"WithoutVolume", [](TableCard& card) { giveSpeakers(card, {Kind::mute}); }, {"Master", "Wave"}, {"notSet"}},
    {"WithoutMute", [](TableCard& card) { giveSpeakers(card, {Kind::volume}); }, {"Master", "Wave"}, {"notSet"}},
    {"WithoutSelection",
     [](TableCard& card) {
         giveSpeakers(card, {Kind::mute});
         card.addDestination(MIXERLINE_COMPONENTTYPE_DST_WAVEIN, {});
         card.addSource("Mic", {Kind::volume});
     },
     {"Master", "Wave"},
     {"Mic"}},
    {"OfLongNames",
     [](TableCard& card) { giveSpeakers(card, {Kind::volume}, "Kopfh\xC3\xB6rerausg\xC3\xA4nge"); },
     {"Master", "Kopfh\xC3\xB6rerausg"},
     {"notSet"}},
    {"WithItsMaximumBelowItsMinimum",
     [](TableCard& card) {
         giveSpeakers(card, {Kind::volume, Kind::mute});
         card.setRange(mixerLineId(0, 0), 65535, 0);
     },
     {"Master", "Wave"},
     {"notSet"}},
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
    TableCard card;
};

TEST_F(OneOddCard, WithALineOfNoRangeIsADivisionFault) {
    giveSpeakers(card, {Kind::volume});
    card.setRange(mixerLineId(0, 0), 700, 700);
    EXPECT_THROW(showMasterMixer(), RuntimeError);
}

TEST_F(OneOddCard, LendsAnUnreadableLineTheReachOfTheLineBefore) {
    card.layOut({"Wave", "CD"}, {});
    card.values[{mixerLineId(0, 0), Kind::volume}] = {1000, 1000};
    whileOpen([this] {
        card.values[{mixerLineId(0, 1), Kind::volume}] = {};
        card.values[{mixerLineId(0, 0), Kind::volume}] = {2000, 1500};
        setLineMute(gMixerHandle, mixerLineId(0, 0), 0);
        hearMessages();
        EXPECT_EQ(frmVolumeMixer->sldPlaybackBalance[1].Max(), 2000);
        EXPECT_EQ(frmVolumeMixer->sldPlaybackBalance[1].Value(), -500);
        EXPECT_FALSE(frmVolumeMixer->sldPlaybackVolume[2].Enabled());
    });
}

TEST_F(OneOddCard, ThatChangesAThousandTimesASecondIsShownAsItEnded) {
    card.layOut({"Wave"}, {"Mic"});
    const std::int32_t wave = mixerLineId(0, 0);
    whileOpen([&] {
        for (std::int32_t i = 0; i <= 1000; ++i) setLineVolume(gMixerHandle, wave, i * 65);
        hearMessages();
        EXPECT_EQ(frmVolumeMixer->sldPlaybackVolume[1].Value(), 65535 - 65000);
        EXPECT_EQ(frmVolumeMixer->txtPlaybackVolume[1].Text(), QStringLiteral("99"));
    });
}

}  // namespace
}  // namespace lyrebrook
