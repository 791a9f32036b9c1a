#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/base/RuntimeError.h"
#include "platform/sound/DirectSound8.h"

namespace lyrebrook {

inline constexpr int trackCount = 4;
inline constexpr int musicTrack = 1;
inline constexpr int mixTrack = 4;

/// A track's name to the user: "Music", "Voice 1", "Voice 2", "Mix".
QString trackName(int track);

/// The four tracks of the current song, numbered from 1: the recorded music, two voices, the final mix. A track is a
/// wave file; one without a file, or with a file that can't be read, has an empty buffer that takes the same calls.
/// Owns the buffers from `loadTracks` to `CloseAudio`. Program's thread.
class Tracks {
  public:
    /// A file that is there and gave no sound.
    struct Unreadable {
        int track;
        RuntimeError error;
    };

    /// Reads all tracks from the disk, and measures the song by the longest file. Tells what couldn't be read.
    std::vector<Unreadable> loadTracks(DirectSound8& ds);
    bool loaded() const { return slots_[musicTrack].buffer != nullptr; }

    /// Silences and releases the buffers; what was measured stays.
    void CloseAudio();

    DirectSoundSecondaryBuffer8& trackBuffer(int track) const { return *slot(track).buffer; }

    /// The file was there at load, or a take was saved since.
    bool trackExists(int track) const { return slot(track).exists; }

    /// Bytes of sound in the track's buffer.
    std::int32_t soundBytes(int track) const { return slot(track).soundBytes; }

    /// Whether nothing would be lost if the buffer took the place of the file: not so for a file that is torn, of
    /// another format, or was exchanged after it was loaded.
    bool bufferHoldsFile(int track) const;

    /// A saved take's buffer takes the place of the track's.
    void replaceBuffer(int track, std::unique_ptr<DirectSoundSecondaryBuffer8> buffer);

    /// Length of the song: that of its longest file, as it was at load. Takes don't change it.
    std::int32_t songBytes() const { return songBytes_; }
    /// The lowest number among the longest; track 1 as long as no track has any sound.
    int longestTrack() const { return longestTrack_; }

    /// Byte of the next frame to sound.
    std::int32_t playCursor(int track) const;
    /// The same as a fraction of the song; 0 in a song without length.
    float getPosition(int track) const;

  private:
    struct Slot {
        QString file;
        std::unique_ptr<DirectSoundSecondaryBuffer8> buffer;
        bool exists = false;
        bool readable = false;
        std::int32_t soundBytes = 0;
    };

    const Slot& slot(int track) const { return slots_.at(static_cast<std::size_t>(track)); }
    void readFile(Slot& slot, int track, DirectSound8& ds, std::vector<Unreadable>& unreadable);

    std::array<Slot, trackCount + 1> slots_;  // by track number; the first stays empty
    std::int32_t songBytes_ = 0;
    int longestTrack_ = musicTrack;
};

}  // namespace lyrebrook
