#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

/// Whether the song runs, and how far the music has come. There is no word from the card: the end of the song is a
/// cursor that reads 0 again. Then `playing` falls and nothing else happens.
class Transport {
  public:
    bool playing = false;

    /// The song is about to start with the longest track at `cursor`. At 0 the next reading may be 0 still.
    void begin(std::int32_t cursor);

    /// A reading of the music's cursor.
    void read(std::int32_t musicCursor);

    /// Byte of the music at the last reading.
    std::int32_t playPos() const { return playPos_; }

  private:
    std::int32_t playPos_ = 0;
    bool startGrace_ = false;
};

/// Time of a position in a song, both in bytes, as "00:00.00".
QString timeText(std::int32_t position, std::int32_t songBytes);

/// A take ends itself before the capture, which is as long as the song, runs out.
constexpr bool endsTake(float position) {
    return static_cast<double>(position) > 0.98;
}

}  // namespace lyrebrook
