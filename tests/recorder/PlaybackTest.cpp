#include "recorder/Playback.h"

#include "recorder/RecorderDesk.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// A song of 1000000 bytes in four tracks, unless told otherwise.
class PlayedSong : public RecorderDesk {
  protected:
    static constexpr std::int32_t songBytes = 1'000'000;

    void song(std::array<std::int32_t, trackCount> bytes) {
        for (int track = 1; track <= trackCount; ++track) {
            const std::int32_t length = bytes[static_cast<std::size_t>(track - 1)];
            if (length > 0) give(track, ramp(length / bytesPerFrame));
        }
        load();
    }

    double moveTo(double fraction, Playback::Song runs = Playback::Song::stands) {
        playback.setPosition(fraction, mix, runs, [this](const QString& text) { told.push_back(text.toStdString()); });
        return fraction;
    }

    std::vector<int> sounding() const {
        std::vector<int> found;
        for (int track = 1; track <= trackCount; ++track) {
            if (tracks.trackBuffer(track).GetStatus() == DSBSTATUS_PLAYING) found.push_back(track);
        }
        return found;
    }

    std::vector<std::int32_t> cursors() const {
        std::vector<std::int32_t> found;
        for (int track = 1; track <= trackCount; ++track) found.push_back(tracks.playCursor(track));
        return found;
    }

    Playback playback{tracks};
    TrackMix mix;
    std::vector<std::string> told;
};

TEST(VolumeOfATrack, IsTakenDownByItsLevelAndTwiceByTheMaster) {
    EXPECT_EQ(trackVolume(3000, 1.0F), -3000);
    EXPECT_EQ(trackVolume(0, 0.9F), -2000);
    EXPECT_EQ(trackVolume(3000, 0.8F), -7750);
}

TEST_F(PlayedSong, StartsAllTracksAndTheCaptureOnOneFrameButNotTheMix) {
    song({songBytes, songBytes, songBytes, songBytes});
    const auto take = capture(1000);
    moveTo(0);
    card->advance(777);
    heard.clear();
    for (TrackMix::Strip& strip : mix.strips) strip.reverb = 50;
    playback.startTracks(mix, take.get());
    EXPECT_THAT(sounding(), ElementsAre(1, 2, 3));
    card->advance(1000);
    EXPECT_THAT(cursors(), ElementsAre(4000, 4000, 4000, 0));
    EXPECT_TRUE(captured(*take) == heard);
    EXPECT_NEAR(heard[999].left, 3 * 1000, 30) << "three tracks on the same frame, and little of a reverb";
}

TEST_F(PlayedSong, LeavesTheTakenTrackSilentAndItsLevelsAlone) {
    song({songBytes, songBytes, 0, 0});
    mix.takenTrack = 2;
    for (TrackMix::Strip& strip : mix.strips) strip.level = 10000;
    playback.startTracks(mix, nullptr);
    EXPECT_THAT(sounding(), ElementsAre(1));
    playback.applyTrackMix(mix);
    mix.takenTrack = TrackMix::none;
    playback.rejoin(2, mix);
    card->advance(500);
    EXPECT_NEAR(heard[499].left, 500, 5) << "only the music was turned down";
}

TEST_F(PlayedSong, OffsetSendsTheVoicesAheadAndHoldsTheMusicBack) {
    song({songBytes - 100'000, songBytes, songBytes, songBytes});
    mix.offset = 20'000;
    moveTo(0.5);
    EXPECT_THAT(cursors(), ElementsAre(430'000, 520'000, 520'000, 500'000));
    moveTo(0.01);
    EXPECT_THAT(cursors(), ElementsAre(0, 30'000, 30'000, 10'000));
}

TEST_F(PlayedSong, IsSetBackWhereTheOffsetCarriesAVoicePastItsEnd) {
    struct Case {
        std::int32_t voice1, voice2, offset;
        double asked, given;
        std::vector<const char*> voices;
    };
    for (const Case& at : {Case{995'000, 0, 100'000, 0.99, 0.89, {"1"}},
                           {995'000, 0, 100'000, 0.5, 0.5, {}},
                           {60'000, 0, 20'000, 0.05, 0.1, {"1"}},  // later than asked for
                           // At 0.45 voice 2 is inside, and the place that was asked for lies behind its end.
                           {600'000, 500'000, 100'000, 0.55, 0.35, {"1", "2"}}}) {
        song({songBytes, at.voice1, at.voice2, 0});
        mix.offset = at.offset;
        told.clear();
        EXPECT_DOUBLE_EQ(moveTo(at.asked), at.given);
        EXPECT_FLOAT_EQ(playback.cursorFraction(), static_cast<float>(at.given));
        ASSERT_EQ(told.size(), at.voices.size()) << at.asked;
        for (std::size_t i = 0; i < told.size(); ++i) {
            EXPECT_THAT(told[i], StartsWith("You cannot start from this position on 'Voice track " +
                                            std::string(at.voices[i]) + "' when the off-set"));
        }
    }
}

TEST_F(PlayedSong, StartsWhatReachesThePlaceThatItWasLastSentTo) {
    song({songBytes, songBytes / 2, 0, 0});
    moveTo(0.4);
    playback.startTracks(mix, nullptr);
    card->advance(songBytes / 5 / bytesPerFrame);
    EXPECT_THAT(sounding(), ElementsAre(1)) << "the voice is over";
    playback.stopTracks();
    playback.startTracks(mix, nullptr);
    EXPECT_THAT(sounding(), ElementsAre(1, 2));
}

TEST_F(PlayedSong, MovedWhileItRunsPlaysAllTracksInRangeTheMixToo) {
    song({songBytes, songBytes / 2, 0, songBytes});
    playback.startTracks(mix, nullptr);
    moveTo(0.6, Playback::Song::runs);
    EXPECT_THAT(sounding(), ElementsAre(1, 4));
    playback.stopTracks();
    EXPECT_THAT(sounding(), IsEmpty());
    EXPECT_EQ(tracks.playCursor(1), 600'000);
}

TEST_F(PlayedSong, ReverbIsGivenToAStandingTrackAndKeptByARunningOne) {
    song({songBytes, 0, 0, 0});
    playback.startTracks(mix, nullptr);
    const auto reverb = [&] {
        return tracks.trackBuffer(1)
            .GetObjectInPath(GUID_DSFX_WAVES_REVERB, 0, IID_DirectSoundFXWavesReverb)
            ->GetAllParameters();
    };
    EXPECT_EQ(reverb(), (DSFXWAVESREVERB{0, -50, 3000, 0.1F}));
    playback.setTrackReverb(1, -12);
    playback.setTrackFx(1);
    EXPECT_EQ(reverb().fReverbMix, -12) << "a running buffer refuses another";
}

}  // namespace
}  // namespace lyrebrook
