#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "lyrics/LyricStore.h"

namespace lyrebrook {

/// Which line of the lyric store is on show while the song goes on, and which comes next. Positions are bytes of the
/// music, so that lines follow it and not a clock. Reads the store, which outlives it and may change at any time.
/// Program's thread. RuntimeError at a position that is no number.
class LyricTimeline {
  public:
    /// A line is shown that many bytes ahead, 1.13 seconds, so that a singer can read it.
    static constexpr std::int32_t lyricLead = 200000;

    /// What the two boxes hold.
    struct Line {
        QString lyric;
        QString chord;
        bool operator==(const Line&) const = default;
    };

    explicit LyricTimeline(const LyricRows& rows) : rows_(rows) {}

    /// The line at a place in the song, an empty one in front of all.
    Line seekLyric(std::int32_t playPos);

    /// The next line, once its time has come.
    std::optional<Line> advanceLyric(std::int32_t playPos);

    /// What the boxes hold when nobody has typed in them, to tell later whether somebody did.
    void setShown(const Line& line) { shown_ = line; }
    bool isShown(const Line& line) const { return shown_ == line; }

    /// Position of the row on show, the one that an update changes.
    std::int32_t shownLyricPos() const { return shownLyricPos_; }

  private:
    static constexpr std::int32_t noneLeft = -1;

    Line show(std::int32_t row);

    const LyricRows& rows_;
    Line shown_;
    std::int32_t shownLyricPos_ = 0;
    std::int32_t nextLyricRow_ = 0;
};

}  // namespace lyrebrook
