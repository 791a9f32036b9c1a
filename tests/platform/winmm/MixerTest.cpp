#include "platform/winmm/mixer.h"

#include "platform/sound/SoundDesk.h"
#include "platform/winmm/MixerDesk.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr auto speakers = MixerDesk::speakers;
constexpr auto waveIn = MixerDesk::waveIn;
constexpr auto volume = MixerDesk::volume;
constexpr auto mute = MixerDesk::mute;
constexpr auto mux = MixerDesk::mux;

/// The mixer of a virtual card while it plays a song from the wave bus and hears a singer.
class Mixer : public testing::Test {
  protected:
    Mixer() {
        sound.card->feed(CardLine::microphone, Sound(framesPerSecond, {4000, 4000}));
        song->Play(0);
        take->Start(0);
    }

    std::pair<StereoFrame, StereoFrame> heardAndRecorded() {
        sound.card->advance(1);
        return {sound.heard.back(), captured(*take).back()};
    }

    SoundDesk sound;
    std::unique_ptr<DirectSoundSecondaryBuffer8> song = sound.buffer(Sound(framesPerSecond, {10000, 10000}));
    std::unique_ptr<DirectSoundCaptureBuffer8> take = sound.capture(framesPerSecond);
    MixerDesk desk;
};

TEST_F(Mixer, LinesAreTheCardsAndTheirIdsTellTheDestination) {
    EXPECT_THAT(desk.names(speakers), ElementsAre("Wave", "SW Synth", "CD", "Line In", "Mic", "Aux"));
    EXPECT_THAT(desk.names(waveIn), ElementsAre("Mic", "Line In", "CD", "Wave", "Aux", "Stereo Mix"));
    EXPECT_EQ(desk.line(speakers, "CD"), 2 << 16);
    EXPECT_EQ(desk.line(waveIn, "CD"), (2 << 16) + 1);
}

TEST_F(Mixer, WhatIsSetIsHeardAndRecorded) {
    const StereoFrame ofSong{10000, 10000};
    const StereoFrame ofSinger{4000, 4000};
    EXPECT_EQ(heardAndRecorded(), std::pair(ofSong, ofSong));
    desk.set(desk.line(speakers, "Mic"), mute, {0});
    desk.select("Mic");
    desk.set(desk.line(speakers, "Wave"), volume, {65535, 0});
    EXPECT_EQ(heardAndRecorded(), std::pair(StereoFrame(14000, 4000), ofSinger));
    desk.set(desk.line(speakers), mute, {-1});
    desk.set(desk.line(waveIn, "Mic"), volume, {0, 65535});
    EXPECT_EQ(heardAndRecorded(), std::pair(StereoFrame(0, 0), StereoFrame(0, 4000)));
}

TEST_F(Mixer, OneChannelReadsTheLoudestAndSetsAll) {
    const std::int32_t cd = desk.line(speakers, "CD");
    desk.set(cd, volume, {300, 70000});
    EXPECT_THAT(desk.get(cd, volume, 2), ElementsAre(300, 65535));
    EXPECT_THAT(desk.get(cd, volume), ElementsAre(65535));
    desk.set(cd, volume, {500});
    EXPECT_THAT(desk.get(cd, volume, 2), ElementsAre(500, 500));
}

TEST_F(Mixer, AChangeReachesTheWindowOnceFromTheEventLoop) {
    const std::int32_t wave = desk.line(speakers, "Wave");
    for (std::uint16_t i = 0; i < 1000; ++i) sound.card->setLevel(CardLine::wave, {i, i});
    desk.set(wave, mute, {0});  // as it was
    sound.card->selectRecording(RecordingLine::cd);
    EXPECT_THAT(ListeningWindow::heard(), IsEmpty());
    EXPECT_THAT(ListeningWindow::listen(), UnorderedElementsAre(desk.changeOf(wave, volume), desk.changeOf(wave, mute),
                                                                desk.changeOf(desk.line(waveIn), mux)));
    EXPECT_EQ(desk.selected(), "CD");
    EXPECT_THAT(ListeningWindow::listen(), IsEmpty());
}

TEST_F(Mixer, AWindowThatIsGoneHearsNothing) {
    sound.card->setMuted(CardLine::cd, true);
    desk.window.destroy();
    sound.card->setMuted(CardLine::aux, true);
    EXPECT_THAT(ListeningWindow::listen(), IsEmpty());
}

TEST_F(Mixer, AnOpenMixerOutlivesItsCard) {
    take.reset();
    song.reset();
    SoundSystem::remove();
    EXPECT_EQ(mixerGetNumDevs(), 0);
    EXPECT_EQ(desk.set(desk.line(speakers), volume, {7}), MMSYSERR_NOERROR);
    EXPECT_THAT(desk.get(desk.line(speakers), volume), ElementsAre(7));
}

TEST_F(Mixer, WrongQuestionsAreRefused) {
    MIXERCAPS caps;
    HMIXER other = 0;
    EXPECT_EQ(mixerGetDevCapsA(1, caps, sizeof caps), MMSYSERR_BADDEVICEID);
    EXPECT_EQ(mixerGetDevCapsA(0, caps, 47), MMSYSERR_INVALPARAM);
    EXPECT_EQ(mixerOpen(other, 1, desk.window.handle(), 0, CALLBACK_WINDOW), MMSYSERR_BADDEVICEID);
    EXPECT_EQ(mixerOpen(other, 0, nullptr, 0, CALLBACK_WINDOW), MMSYSERR_INVALFLAG);
    EXPECT_EQ(mixerClose(0), MMSYSERR_INVALHANDLE);
    MIXERLINE line = desk.destination(speakers);
    line.dwSource = 6;
    EXPECT_EQ(mixerGetLineInfoA(desk.mixer, line, MIXER_GETLINEINFOF_SOURCE), MIXERR_INVALLINE);
    EXPECT_EQ(mixerGetLineInfoA(0, line, MIXER_GETLINEINFOF_SOURCE), MMSYSERR_INVALHANDLE);
    MIXERCONTROL control;
    MIXERLINECONTROLS asked{
        .dwLineID = desk.line(waveIn, "Mic"), .dwControlType = MIXERCONTROL_CONTROLTYPE_MUTE, .pamxctrl = &control};
    EXPECT_EQ(mixerGetLineControlsA(desk.mixer, asked, MIXER_GETLINECONTROLSF_ONEBYTYPE), MIXERR_INVALCONTROL);
}

TEST_F(Mixer, DetailsOfAnotherShapeAreRefusedBeforeAnythingIsTouched) {
    constexpr auto values = MIXER_GETCONTROLDETAILSF_VALUE;
    constexpr auto texts = MIXER_GETCONTROLDETAILSF_LISTTEXT;
    using Shape = std::array<std::int32_t, 4>;
    for (const auto& [channels, items, bytes, flags] :
         {Shape{1, 5, 4, values}, Shape{2, 6, 4, values}, Shape{1, 6, 8, values}, Shape{1, 5, 72, texts},
          Shape{1, 6, 4, texts}}) {
        MIXERCONTROLDETAILS details{.dwControlID = desk.control(desk.line(waveIn), mux).dwControlID,
                                    .cChannels = channels,
                                    .cMultipleItems = items,
                                    .cbDetails = bytes,
                                    .paDetails = &details};  // too small for any of them
        EXPECT_EQ(mixerGetControlDetailsA(desk.mixer, details, flags), MMSYSERR_INVALPARAM) << items;
    }
}

TEST_F(Mixer, ListTextsNameTheLinesOfASelection) {
    std::vector<MIXERCONTROLDETAILS_LISTTEXT> texts(6);
    MIXERCONTROLDETAILS details{.dwControlID = desk.control(desk.line(waveIn), mux).dwControlID,
                                .cMultipleItems = 6,
                                .cbDetails = sizeof texts[0],
                                .paDetails = texts.data()};
    EXPECT_EQ(mixerGetControlDetailsA(desk.mixer, details, MIXER_GETCONTROLDETAILSF_LISTTEXT), MMSYSERR_NOERROR);
    EXPECT_EQ(texts[3].dwParam1, desk.line(waveIn, "Wave"));
    EXPECT_EQ(textOf(texts[3].szName), "Wave");
}

TEST(RecordText, IsCutBetweenCharacters) {
    for (const auto& [text, kept] : {std::pair("Wave", "Wave"),
                                     {"1234567890123456", "123456789012345"},
                                     {"12345678901234\u00e4", "12345678901234"},
                                     {"1234567890123\u00e4x", "1234567890123\u00e4"},
                                     {"123456789012\U0001F3A4", "123456789012"},
                                     {"\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80\x80", ""}}) {
        std::array<char, 16> field{};
        setText(field, text);
        EXPECT_EQ(textOf(field), kept);
    }
}

}  // namespace
}  // namespace lyrebrook
