#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <functional>

#include "platform/sound/DirectSoundCaptureBuffer8.h"
#include "recorder/Tracks.h"

namespace lyrebrook {

/// Where the sliders and boxes of the track mixer stand.
struct TrackMix {
    struct Strip {
        std::int32_t level = 0;    ///< hundredths of a decibel taken off
        std::int32_t pan = 10000;  ///< 10000 is the centre
        std::int32_t reverb = 50;  ///< decibels below the full effect
    };

    static constexpr int none = 0;

    std::array<Strip, trackCount + 1> strips;  ///< by track number
    float masterScale = 1;                     ///< 1 down to 0.8
    std::int32_t offset = 0;                   ///< bytes by which the voices go ahead and the music stays behind
    bool mixHeard = false;                     ///< the final mix is listened to
    int takenTrack = none;                     ///< the armed track while a take runs: it is left alone

    const Strip& strip(int track) const { return strips.at(static_cast<std::size_t>(track)); }
};

/// Plays the tracks together. There is no mixing here: level, pan and reverb are set on each buffer, and all buffers
/// that start or move in one call do so on one frame. Program's thread.
class Playback {
  public:
    using Tell = std::function<void(const QString& message)>;
    enum class Song { stands, runs };

    explicit Playback(Tracks& tracks) : tracks_(tracks) {}

    /// Pan and volume of all tracks, but for the one that is taken.
    void applyTrackMix(const TrackMix& mix);

    /// A fresh reverb, which a buffer that plays refuses: it then keeps the one it has.
    void setTrackFx(int track);
    /// `mix` in decibels, 0 or below.
    void setTrackReverb(int track, std::int32_t mix);

    /// Starts what reaches the place of the last `setPosition`, which is where the song was last sent and not where it
    /// has come to since. A capture starts on the same frame.
    void startTracks(const TrackMix& mix, DirectSoundCaptureBuffer8* capture);
    void stopTracks();

    /// Starts a track that stands, anew if it runs, when it reaches the place of the last `setPosition`.
    void rejoin(int track, const TrackMix& mix);

    /// Sends all tracks to a fraction of the song: the music stays behind by the offset, the voices go ahead by it.
    /// Where that carries a voice past its end, `tell` says so and the caller's fraction is set back. While the song
    /// runs, all tracks that reach so far play from there, the final mix too.
    void setPosition(double& fraction, const TrackMix& mix, Song song, const Tell& tell);

    /// Fraction last given to `setPosition`.
    float cursorFraction() const { return cursorFraction_; }

  private:
    bool endsWithin(int track, double target, double cursor) const;
    void moveTrack(int track, double fraction, const TrackMix& mix);
    void playTrack(int track, const TrackMix& mix);
    bool reaches(int track, double fraction) const;

    Tracks& tracks_;
    float cursorFraction_ = 0;
};

/// Volume of a track in hundredths of a decibel. The master works twice: it stretches what the track's own level takes
/// off, and takes off about 2 dB of its own a step.
std::int32_t trackVolume(std::int32_t level, float masterScale);

}  // namespace lyrebrook
