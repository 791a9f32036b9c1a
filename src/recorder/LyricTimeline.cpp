#include "recorder/LyricTimeline.h"

#include <algorithm>

#include "platform/files/Text.h"

namespace lyrebrook {

LyricTimeline::Line LyricTimeline::seekLyric(std::int32_t playPos) {
    nextLyricRow_ = 0;
    const std::int32_t spare = upperBound(rows_);
    for (std::int32_t row = spare - 1; row >= 0; --row) {
        if (bytePosition(rows_[static_cast<std::size_t>(row)]) > playPos) continue;
        nextLyricRow_ = row + 1 == spare ? noneLeft : row + 1;
        return show(row);
    }
    return {};
}

std::optional<LyricTimeline::Line> LyricTimeline::advanceLyric(std::int32_t playPos) {
    // Without entries the spare row has its turn. The editor may have taken rows away.
    const std::int32_t spare = upperBound(rows_);
    if (nextLyricRow_ == noneLeft || nextLyricRow_ >= std::max(spare, 1)) return {};
    const std::int32_t row = nextLyricRow_;
    if (bytePosition(rows_[static_cast<std::size_t>(row)]) > std::int64_t{playPos} + lyricLead) return {};
    if (spare > 0) ++nextLyricRow_;
    if (nextLyricRow_ == spare) nextLyricRow_ = noneLeft;
    return show(row);
}

LyricTimeline::Line LyricTimeline::show(std::int32_t number) {
    const LyricRow& row = rows_[static_cast<std::size_t>(number)];
    shownLyricPos_ = bytePosition(row);
    return {trimBlanks(cellText(row, lyricColumn)), trimBlanks(cellText(row, chordColumn))};
}

}  // namespace lyrebrook
