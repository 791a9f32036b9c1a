#pragma once

#include <cstdint>
#include <memory>

namespace lyrebrook {

class DirectMusicAudioPath8;
class SegmentMusic;

/// A loaded MIDI or wave file, made by `DirectMusicLoader8`. The form's thread only. It may be destroyed while it
/// sounds: the performance that plays it shares its music.
class DirectMusicSegment8 {
  public:
    explicit DirectMusicSegment8(std::shared_ptr<SegmentMusic> music) : music_(std::move(music)) {}

    /// A MIDI file plays with General MIDI instruments in any case, so this finds its work done; on a wave it is moot.
    void SetStandardMidiFile() {}

    /// How often the segment is played again after the first time, -1 for ever. Taken up by the next PlaySegmentEx.
    void SetRepeats(std::int32_t repeats) { repeats_ = repeats; }

    /// Gives back the instruments that wait for the next PlaySegmentEx, which loads them anew.
    void Unload(const DirectMusicAudioPath8& path);

    const std::shared_ptr<SegmentMusic>& music() const { return music_; }
    std::int32_t repeats() const { return repeats_; }

  private:
    std::shared_ptr<SegmentMusic> music_;
    std::int32_t repeats_ = 0;
};

}  // namespace lyrebrook
