#include <array>

#include "mixer/MixerStudio.h"
#include "mixer/TableCard.h"

namespace lyrebrook {
namespace {

using Kind = MixerControlKind;

/// What a preset leaves on a card: lines that are heard, the line that is recorded, and whether it gave up.
struct Outcome {
    std::string open;
    std::string selected;
    bool unsupported = false;
};

struct NamedCard {
    const char* name;
    std::vector<std::string> playback;
    std::vector<std::string> recording;
    std::array<Outcome, 5> outcomes;  // of the presets in their order, one after the other
};

const NamedCard cards[] = {
    {"Ac97",
     {"Wave", "SW Synth", "CD Player", "Line In", "Microphone", "Auxiliary"},
     {"Stereo Mix", "Mono Mix", "Mic", "Line In", "CD Audio", "Video"},
     {{{"Master Wave Synth CD Line Aux", "Mono"},
       {"Master Wave Synth Mic", "Mic"},
       {"Master Wave Synth CD", "CD"},
       {"Master Wave Synth Line Aux", "Line"},
       {"Master Wave Synth", "Stereo Mix"}}}},
    {"WaveOutMix",
     {"WAVE", "MIC"},
     {"MIC", "LINE IN", "Wave Out Mix"},
     {{{"Master Wave", "Wave"},
       {"Master Wave Mic", "Mic"},
       {"Master Wave Mic", "Wave", true},
       {"Master Wave", "Line"},
       {"Master Wave", "Wave"}}}},
    {"German",
     {"Kopfhörer", "Summe"},
     {"Mikrofon", "Eingang"},
     {{{"Master Kopfhörer Summe", "Mikrofon"},
       {"Master Kopfhörer Summe", "Mikrofon", true},
       {"Master Kopfhörer Summe", "Mikrofon", true},
       {"Master Kopfhörer Summe", "Mikrofon", true},
       {"Master Kopfhörer Summe", "Mikrofon", true}}}},
    {"Server",
     {"Wave", "SW Synth"},
     {"Mic", "Line In", "Stereo Mix", "Song Mix"},
     {{{"Master Wave Synth", "Song Mix"},
       {"Master Wave Synth", "Mic"},
       {"Master Wave Synth", "Mic", true},
       {"Master Wave Synth", "Line"},
       {"Master Wave Synth", "Stereo Mix"}}}},
};

class Presets : public MixerStudio, public testing::WithParamInterface<NamedCard> {
  protected:
    Presets() { card.layOut(GetParam().playback, GetParam().recording); }

    std::string open() const {
        std::string names;
        for (int i = 0; i < frmVolumeMixer->playbackLineCount; ++i) {
            const bool muted =
                card.values.at({gPlaybackLineIDs.at(static_cast<std::size_t>(i)), Kind::mute}) != TableCard::Values{0};
            if (!muted) names += ' ' + frmVolumeMixer->fraPlaybackControl[i].Caption().toStdString();
        }
        return names.substr(1);
    }
    std::string selected() const {
        std::string names;
        const auto& flags = card.values.at({card.layout.back().line.id, Kind::multiplexer});
        for (std::size_t i = 0; i < flags.size(); ++i) {
            if (flags[i] != 0) names += frmVolumeMixer->fraRecordControl[static_cast<int>(i)].Caption().toStdString();
        }
        return names;
    }

    TableCard card;
};

TEST_P(Presets, LeaveTheStateOfTheirRow) {
    const Box unsupported{
        QStringLiteral("This feature not supported by your sound card. Recording and Playback volumes have been set to "
                       "default levels.")};
    whileOpen([&] {
        for (int index = 0; index < 5; ++index) {
            const Outcome& expected = GetParam().outcomes.at(static_cast<std::size_t>(index));
            if (expected.unsupported) desk().willAnswer(vbOK);
            frmVolumeMixer->radDevice[index].setValue(true);
            EXPECT_EQ(open(), expected.open) << "preset " << index;
            EXPECT_EQ(selected(), expected.selected) << "preset " << index;
            EXPECT_EQ(desk().takeBoxes(), std::vector<Box>(expected.unsupported ? 1 : 0, unsupported)) << index;
            EXPECT_EQ(frmVolumeMixer->txtFeedback.ForeColor(), index == 1 ? yellow : cyan);
        }
    });
}
INSTANTIATE_TEST_SUITE_P(On, Presets, testing::ValuesIn(cards), [](const auto& test) { return test.param.name; });

class PresetLevels : public MixerStudio {
  protected:
    PresetLevels() { card.layOut({"Wave", "CD"}, {"Mic", "Wave"}); }

    std::int32_t level(std::uint16_t destination, std::uint16_t source) const {
        return card.values.at({mixerLineId(destination, source), Kind::volume}).front();
    }
    std::array<std::int32_t, 5> levels() const {
        return {level(0, destinationItself), level(0, 0), level(0, 1), level(1, 0), level(1, 1)};
    }

    TableCard card;
};

TEST_F(PresetLevels, AreFullLowOrNothing) {
    whileOpen([&] {
        frmVolumeMixer->radDevice[2].setValue(true);
        EXPECT_EQ(levels(), (std::array{65535, 65535, 65535, 0, 0})) << "no recording line is a CD: both are shut";
        EXPECT_EQ(frmVolumeMixer->txtFeedback.Text(), QString());
        frmVolumeMixer->radDevice[1].setValue(true);
        EXPECT_EQ(levels(), (std::array{13107, 13107, 0, 55705, 0}));
        EXPECT_TRUE(frmVolumeMixer->txtFeedback.Text().startsWith(u"Levels for'MICROPHONE' set very low."));
        EXPECT_EQ(frmVolumeMixer->txtRecordVolume[0].Text(), QStringLiteral("85")) << "the sliders follow";
    });
}

TEST_F(PresetLevels, AnythingMayHappenWhileTheHintBlinks) {
    whileOpen([&] {
        desk().whileWaiting([&] {
            EXPECT_EQ(frmVolumeMixer->txtFeedback.ForeColor(), cyan);
            frmVolumeMixer->radDevice[1].setValue(true);
            EXPECT_EQ(level(1, 0), 55705);
        });
        frmVolumeMixer->radDevice[0].setValue(true);
        EXPECT_EQ(frmVolumeMixer->txtFeedback.ForeColor(), cyan) << "in the first one's colour";
        desk().whileWaiting([] { frmVolumeMixer.Unload(); });
        frmVolumeMixer->radDevice[2].setValue(true);
        EXPECT_FALSE(frmVolumeMixer.isLoaded());
    });
}

}  // namespace
}  // namespace lyrebrook
