#include "recorder/Playback.h"

#include <algorithm>

#include "platform/base/Numbers.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/SoundTransaction.h"
#include "recorder/waveLength.h"

namespace lyrebrook {
namespace {

/// A voice's sound is past its end there although the song isn't.
QString offsetTooBig(int voice) {
    return QStringLiteral(
               "You cannot start from this position on 'Voice track %1' when the off-set for the Voice track is so big "
               "- reduce offset if you have to start here or start from new cursor position.")
        .arg(voice);
}

/// A tenth earlier; near the start of the song that is a tenth into it, which may be later than asked for.
double setBack(double fraction) {
    constexpr double tenth = 0.1;
    return fraction - tenth < 0 ? tenth : fraction - tenth;
}

}  // namespace

std::int32_t trackVolume(std::int32_t level, float masterScale) {
    constexpr double masterRange = 20000;
    const double scale = masterScale;
    return toInt32(-(level / scale) - (1 - scale) * masterRange);
}

void Playback::applyTrackMix(const TrackMix& mix) {
    constexpr std::int32_t centre = 10000;
    const SoundTransaction together(SoundSystem::engine());
    for (int track = 1; track <= trackCount; ++track) {
        if (track == mix.takenTrack) continue;
        DirectSoundSecondaryBuffer8& buffer = tracks_.trackBuffer(track);
        buffer.SetPan(mix.strip(track).pan - centre);
        buffer.SetVolume(trackVolume(mix.strip(track).level, mix.masterScale));
    }
}

void Playback::setTrackFx(int track) {
    const DSEFFECTDESC reverb{.lFlags = 0, .guidDSFXClass = std::string(GUID_DSFX_WAVES_REVERB)};
    std::int32_t result = 0;
    try {
        tracks_.trackBuffer(track).SetFX(1, {&reverb, 1}, {&result, 1});
    } catch (const RuntimeError&) {
        return;  // the buffer plays, with the reverb that it has
    }
}

void Playback::setTrackReverb(int track, std::int32_t mix) {
    constexpr float longestTail = 3000;  // milliseconds
    constexpr float darkTail = 0.1F;
    tracks_.trackBuffer(track)
        .GetObjectInPath(GUID_DSFX_WAVES_REVERB, 0, IID_DirectSoundFXWavesReverb)
        ->SetAllParameters({.fInGain = 0,
                            .fReverbMix = static_cast<float>(mix),
                            .fReverbTime = longestTail,
                            .fHighFreqRTRatio = darkTail});
}

void Playback::startTracks(const TrackMix& mix, DirectSoundCaptureBuffer8* capture) {
    const SoundTransaction together(SoundSystem::engine());
    for (int track = 1; track <= trackCount; ++track) {
        if (track == mix.takenTrack || !reaches(track, cursorFraction_)) continue;
        setTrackFx(track);
        setTrackReverb(track, -mix.strip(track).reverb);
        const bool heard = mix.mixHeard ? track == musicTrack || track == mixTrack : track != mixTrack;
        if (heard) tracks_.trackBuffer(track).Play(0);
    }
    if (capture) capture->Start(0);
}

void Playback::stopTracks() {
    if (!tracks_.loaded()) return;
    const SoundTransaction together(SoundSystem::engine());
    for (int track = 1; track <= trackCount; ++track) tracks_.trackBuffer(track).Stop();
}

void Playback::rejoin(int track, const TrackMix& mix) {
    if (!reaches(track, cursorFraction_)) return;
    tracks_.trackBuffer(track).Stop();
    playTrack(track, mix);
}

void Playback::playTrack(int track, const TrackMix& mix) {
    setTrackFx(track);
    setTrackReverb(track, -mix.strip(track).reverb);
    tracks_.trackBuffer(track).Play(0);
}

bool Playback::reaches(int track, double fraction) const {
    return fraction * tracks_.songBytes() < getWaveLength(track);
}

bool Playback::endsWithin(int track, double target, double cursor) const {
    const std::int32_t length = getWaveLength(track);
    return length > 0 && target > length && cursor < length;
}

void Playback::setPosition(double& fraction, const TrackMix& mix, Song song, const Tell& tell) {
    const std::int32_t songBytes = tracks_.songBytes();
    const std::int32_t target = toInt32(fraction * songBytes + mix.offset);  // one for both voices, also once set back
    for (const int voice : {1, 2}) {
        if (!endsWithin(voice + 1, target, fraction * songBytes)) continue;
        tell(offsetTooBig(voice));
        fraction = setBack(fraction);
    }
    cursorFraction_ = static_cast<float>(fraction);
    const SoundTransaction together(SoundSystem::engine());
    for (int track = 1; track <= trackCount; ++track) {
        DirectSoundSecondaryBuffer8& buffer = tracks_.trackBuffer(track);
        if (!reaches(track, fraction)) {
            buffer.Stop();
            continue;
        }
        moveTrack(track, fraction, mix);
        if (song == Song::runs && buffer.GetStatus() != DSBSTATUS_PLAYING) playTrack(track, mix);
    }
}

void Playback::moveTrack(int track, double fraction, const TrackMix& mix) {
    const double cursor = fraction * tracks_.songBytes();
    double place = cursor;  // the final mix holds the offset already
    if (track == musicTrack) {
        place = std::max(0.0, fraction * getWaveLength(musicTrack) - mix.offset);
    } else if (track != mixTrack && cursor < getWaveLength(track) - mix.offset) {
        place = cursor + mix.offset;
    }
    tracks_.trackBuffer(track).SetCurrentPosition(toInt32(place));
}

}  // namespace lyrebrook
