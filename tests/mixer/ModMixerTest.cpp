#include "mixer/modMixer.h"

#include <gmock/gmock.h>

#include "mixer/TableCard.h"
#include "mixer/lineNames.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = MixerControlKind;
using Values = TableCard::Values;

/// A card with a Wave line of three channels, and a recording selection of the kind that is asked for.
class Lines : public testing::TestWithParam<Kind> {
  protected:
    Lines() {
        card.layOut({"Wave"}, {"Mic", "Line", "CD"}, isParameterized() ? GetParam() : Kind::mixer);
        mixerOpen(mixer, 0, nullptr, 0, 0);
    }
    ~Lines() override { mixerClose(mixer); }

    static bool isParameterized() { return testing::UnitTest::GetInstance()->current_test_info()->value_param(); }

    TableCard card;
    HMIXER mixer = 0;
    const std::int32_t wave = mixerLineId(0, 0);
    const std::int32_t line = mixerLineId(1, 1);
    Values& volume = card.values[{wave, Kind::volume}];
    Values& selection = card.values[{mixerLineId(1, destinationItself), GetKind()}];

  private:
    static Kind GetKind() { return isParameterized() ? GetParam() : Kind::mixer; }
};

TEST_F(Lines, VolumeKeepsTheRatioOfTheChannelsUnlessThereIsNone) {
    const struct {
        Values before;
        std::int32_t wanted;
        Values after;
    } cases[] = {
        {{100, 50}, 200, {200, 100}}, {{0, 0}, 70, {70, 70}},       {{2, 1}, 5, {5, 2}},  // half goes to even
        {{2, 1}, 7, {7, 4}},          {{40, 0}, 65535, {65535, 0}}, {{9, 9}, 0, {0, 0}},
    };
    for (const auto& each : cases) {
        volume = each.before;
        EXPECT_TRUE(setLineVolume(mixer, wave, each.wanted));
        EXPECT_EQ(volume, each.after) << each.wanted;
    }
}

TEST_F(Lines, BalanceTakesFromTheSideThatItLeansAwayFrom) {
    for (const auto& [balance, sides] :
         std::map<std::int32_t, Values>{{-30, {100, 70}}, {0, {100, 100}}, {1, {99, 100}}, {100, {0, 100}}}) {
        volume = {100, 20};
        EXPECT_TRUE(setLineBalance(mixer, wave, balance));
        EXPECT_EQ(volume, sides);
        std::int32_t read = 7;
        EXPECT_TRUE(getLineBalance(mixer, wave, read));
        EXPECT_EQ(read, balance);
    }
}

TEST_P(Lines, SelectingOneClearsAllOthersWhateverTheSelectionIs) {
    bool selected = true;
    EXPECT_TRUE(getLineSelected(mixer, line, selected));
    EXPECT_FALSE(selected);
    EXPECT_TRUE(setLineSelected(mixer, line, -1));
    EXPECT_THAT(selection, ElementsAre(0, -1, 0));
    EXPECT_TRUE(getLineSelected(mixer, line, selected));
    EXPECT_TRUE(selected);
}
INSTANTIATE_TEST_SUITE_P(OfEitherKind, Lines, testing::Values(Kind::mixer, Kind::multiplexer));

TEST_F(Lines, AnUnreadableListStandsForItsFirstItem) {
    card.layout.back().line.controls.front().items.pop_back();  // the flags are three, the texts two
    bool selected = false;
    EXPECT_TRUE(getLineSelected(mixer, line, selected));
    EXPECT_TRUE(selected) << "the first item is";
    selection = {0, 1, 1};
    EXPECT_TRUE(getLineSelected(mixer, line, selected));
    EXPECT_FALSE(selected);
}

TEST_F(Lines, ALineThatNoItemStandsForIsNotSelected) {
    card.layout.back().line.controls.front().items[1] = wave;
    bool selected = false;
    EXPECT_FALSE(getLineSelected(mixer, line, selected));
    EXPECT_FALSE(setLineSelected(mixer, line, -1));
    EXPECT_FALSE(getLineSelected(mixer, wave, selected)) << "an even ID asks the speakers, which select nothing";
    EXPECT_THAT(card.written, IsEmpty());
}

TEST_F(Lines, WhatIsMissingIsToldAndLeavesTheResultAlone) {
    card.layout.front().sources.front().controls.clear();
    LineVolume before{.max = 1, .min = 2, .val = 3};
    bool muted = true;
    EXPECT_FALSE(getLineVolume(mixer, wave, before));
    EXPECT_FALSE(setLineVolume(mixer, wave, 5));
    EXPECT_FALSE(getLineMute(mixer, wave, muted));
    EXPECT_EQ(before.val, 3);
    EXPECT_EQ(countMixerLines(mixer, MIXERLINE_COMPONENTTYPE_DST_SPEAKERS), 1) << "the master alone";
    EXPECT_EQ(countMixerLines(mixer, MIXERLINE_COMPONENTTYPE_DST_WAVEIN), 3);
    EXPECT_EQ(countMixerLines(mixer, 5), 0);
}

TEST(LineNames, TheFirstWordThatFitsDecides) {
    const std::map<QString, QString> names{
        {"Wave Out Mix", "Wave"},
        {"CD Line In", "CD"},
        {"MICROPHONE", "Mic"},
        {"Line In", "Line"},
        {"Line", "Line"},
        {"line in", "line in"},
        {"Mono Mix", "Mono"},
        {"SW Synth", "Synth"},
        {"Synth", "Synth"},
        {"MIDI", "Midi"},
        {"Auxiliary", "Aux"},
        {"Video", "Video"},
        {"Phone Line", "Phone"},
        {"Analog Stereo", "Analog/Ster"},
        {"ANALOG", "Analog/Mon"},
        {"S/PDIF", "S/PDIF"},
        {"PC Speaker", "PC Speak"},
        {"Speaker", "Speaker"},
        {"Recording Control", "Master"},
        {"Stereo Mix", "Stereo Mix"},
        {"Summe", "Summe"},
        {"ecdf", "CD"},
    };
    for (const auto& [name, shortName] : names) EXPECT_EQ(changeLineName(name), shortName);
}

TEST(RecordText, HasNoBlanksAtItsEndsAndNoHalfCharacters) {
    EXPECT_EQ(recordText(std::string("  SW Synth \0x", 13)), QStringLiteral("SW Synth"));
    EXPECT_EQ(recordText(std::string("Kopfh\xC3\xB6rerausg\xC3")), QStringLiteral("Kopfhörerausg"));
    EXPECT_EQ(recordText(std::string("Lautst\xE4rke")), QStringLiteral("Lautstärke"));
    EXPECT_EQ(recordText(std::string()), QString());
}

}  // namespace
}  // namespace lyrebrook
