#include "platform/sound/cards/VirtualCard.h"

#include "SoundDesk.h"

namespace lyrebrook {
namespace {

constexpr LineLevel half{32767, 32767};
const StereoFrame halved{5000, 5000};

/// One second of song at 10000 from the wave bus while the microphone hears 4000 and the line input 600.
struct Studio {
    SoundDesk desk;
    std::unique_ptr<DirectSoundSecondaryBuffer8> song = desk.buffer(Sound(framesPerSecond, {10000, 10000}));
    std::unique_ptr<DirectSoundCaptureBuffer8> take = desk.capture(framesPerSecond);

    Studio() {
        for (int part = 0; part < 10; ++part) desk.card->feed(CardLine::microphone, Sound(1, {4000, 4000}));
        desk.card->feed(CardLine::lineIn, Sound(framesPerSecond, {600, 600}));
        song->Play(0);
        take->Start(0);
    }

    StereoFrame nextHeard() {
        desk.card->advance(1);
        return desk.heard.back();
    }
    StereoFrame nextRecorded() {
        desk.card->advance(1);
        return captured(*take).back();
    }
};

TEST(VirtualCard, LevelsAndMutesActOnWhatIsHeard) {
    Studio studio;
    VirtualCard& card = *studio.desk.card;
    EXPECT_EQ(studio.nextHeard(), (StereoFrame{10600, 10600}));
    card.setMuted(CardLine::lineIn, true);
    EXPECT_EQ(studio.nextHeard(), (StereoFrame{10000, 10000}));
    card.setLevel(CardLine::wave, {65535, 0});
    EXPECT_EQ(studio.nextHeard(), (StereoFrame{10000, 0}));
    card.setLevel(CardLine::wave, {65535, 65535});
    card.setLevel(CardLine::master, half);
    EXPECT_EQ(studio.nextHeard(), halved);
    card.setMuted(CardLine::microphone, false);
    card.setLevel(CardLine::microphone, half);
    EXPECT_EQ(studio.nextHeard(), (StereoFrame{6000, 6000}));
    card.setMuted(CardLine::master, true);
    EXPECT_EQ(studio.nextHeard(), (StereoFrame{0, 0}));
}

TEST(VirtualCard, TheSelectedLineIsRecordedAtItsOwnLevel) {
    Studio studio;
    VirtualCard& card = *studio.desk.card;
    card.setLevel(CardLine::master, half);
    EXPECT_EQ(card.selectedRecording(), RecordingLine::stereoMix);
    EXPECT_EQ(studio.nextRecorded(), (StereoFrame{5300, 5300}));
    card.selectRecording(RecordingLine::wave);
    EXPECT_EQ(studio.nextRecorded(), (StereoFrame{10000, 10000}));
    card.setRecordingLevel(RecordingLine::wave, half);
    EXPECT_EQ(studio.nextRecorded(), halved);
    card.selectRecording(RecordingLine::microphone);  // whatever its mute in the loudspeakers
    EXPECT_EQ(studio.nextRecorded(), (StereoFrame{4000, 4000}));
    card.selectRecording(RecordingLine::lineIn);
    EXPECT_EQ(studio.nextRecorded(), (StereoFrame{600, 600}));
    card.selectRecording(RecordingLine::cd);
    EXPECT_EQ(studio.nextRecorded(), (StereoFrame{0, 0}));
}

}  // namespace
}  // namespace lyrebrook
