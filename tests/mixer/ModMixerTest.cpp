#include "mixer/modMixer.h"

#include <gmock/gmock.h>

#include <QStringList>

#include "mixer/TableCard.h"
#include "mixer/lineNames.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = MixerControlKind;
using Values = TableCard::Values;

/// A card with a Wave line, and a recording selection.
class Lines : public testing::Test {
  protected:
    Lines() {
        card.layOut({"Wave"}, {"Mic", "Line", "CD"}, Kind::mixer);
        mixerOpen(mixer, 0, nullptr, 0, 0);
    }
    ~Lines() override { mixerClose(mixer); }

    TableCard card;
    HMIXER mixer = 0;
    const std::int32_t wave = mixerLineId(0, 0);
    const std::int32_t line = mixerLineId(1, 1);
    Values& volume = card.values[{wave, Kind::volume}];
    Values& selection = card.values[{mixerLineId(1, destinationItself), Kind::mixer}];
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
    const std::pair<std::int32_t, Values> cases[] = {
        {-30, {100, 70}}, {0, {100, 100}}, {1, {99, 100}}, {100, {0, 100}}};
    for (const auto& [balance, sides] : cases) {
        volume = {100, 20};
        EXPECT_TRUE(setLineBalance(mixer, wave, balance));
        EXPECT_EQ(volume, sides);
        std::int32_t read = 7;
        EXPECT_TRUE(getLineBalance(mixer, wave, read));
        EXPECT_EQ(read, balance);
    }
}

TEST_F(Lines, SelectingOneClearsAllOthers) {
    for (const bool expected : {false, true}) {
        bool selected = !expected;
        EXPECT_TRUE(getLineSelected(mixer, line, selected));
        EXPECT_EQ(selected, expected);
        EXPECT_TRUE(setLineSelected(mixer, line, -1));
        EXPECT_THAT(selection, ElementsAre(0, -1, 0));
    }
}

TEST_F(Lines, AnUnreadableListStandsForItsFirstItem) {
    card.layout.back().line.controls.front().items.pop_back();  // the flags are three, the texts two
    for (const std::int32_t first : {0, 1}) {
        selection = {first, 1 - first, 1};
        bool selected = first == 0;
        EXPECT_TRUE(getLineSelected(mixer, line, selected));
        EXPECT_EQ(selected, first == 1);
    }
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
    const QString names = QStringLiteral(
        "Wave Out Mix,CD Line In,ecdf,MICROPHONE,Line In,Line,line in,Mono Mix,SW Synth,Synth,MIDI,Auxiliary,Video,"
        "Phone Line,Analog Stereo,ANALOG,S/PDIF,PC Speaker,Speaker,Recording Control,Stereo Mix,Summe");
    QStringList shortNames;
    for (const QString& name : names.split(u',')) shortNames << changeLineName(name);
    EXPECT_EQ(shortNames.join(u','),
              "Wave,CD,CD,Mic,Line,Line,line in,Mono,Synth,Synth,Midi,Aux,Video,"
              "Phone,Analog/Ster,Analog/Mon,S/PDIF,PC Speak,Speaker,Master,Stereo Mix,Summe");
}

TEST(RecordText, HasNoBlanksAtItsEndsAndNoHalfCharacters) {
    EXPECT_EQ(recordText(std::string("  SW Synth \0x", 13)), QStringLiteral("SW Synth"));
    EXPECT_EQ(recordText(std::string("Kopfh\xC3\xB6rerausg\xC3")), QStringLiteral("Kopfhörerausg"));
    EXPECT_EQ(recordText(std::string("Lautst\xE4rke")), QStringLiteral("Lautstärke"));
}

}  // namespace
}  // namespace lyrebrook
