#include "lyrics/LyricStore.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/base/Numbers.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

LyricRow rowOf(const LyricEntry& entry) {
    return {entry.position, entry.chord, entry.lyric, {}};
}

auto findPosition(auto& rows, const QString& position) {
    return std::find_if(rows.begin(), rows.end(),
                        [&](const LyricRow& row) { return row[positionColumn].toString() == position; });
}

/// An entry on its way through the sort: the text that it is sorted by, and the row that it came from.
struct SortKey {
    QString text;
    std::size_t row;
};

/// Compares all pairs at the distance of the gap. True when it swapped one.
bool sortPass(std::vector<SortKey>& keys, std::size_t gap) {
    bool swapped = false;
    for (std::size_t i = 0; i + gap < keys.size(); ++i) {
        if (!(keys[i].text > keys[i + gap].text)) continue;
        std::swap(keys[i], keys[i + gap]);
        swapped = true;
    }
    return swapped;
}

void shellSort(std::vector<SortKey>& keys) {
    for (std::size_t gap = keys.size() / 2; gap >= 1; gap /= 2) {
        while (sortPass(keys, gap)) continue;
    }
}

}  // namespace

LyricRows emptyLyrics() {
    return LyricRows(1);
}

std::int16_t upperBound(const LyricRows& rows) {
    return toInt16(static_cast<double>(rows.size()) - 1);
}

QString cellText(const LyricRow& row, LyricColumn column) {
    return row.at(static_cast<std::size_t>(column)).toString();
}

std::int32_t bytePosition(const LyricRow& row) {
    const QString text = cellText(row, positionColumn);
    return text.isEmpty() ? 0 : textToInt32(text.toStdString());
}

QString convertToNineDigit(const QString& position) {
    constexpr int digits = 9;
    return position.rightJustified(digits, u'0');
}

void addLyricToArray(LyricRows& rows, const LyricEntry& entry) {
    const QString position = convertToNineDigit(entry.position);
    if (findPosition(rows, position) != rows.end()) return;
    appendLyric(rows, {position, entry.chord, entry.lyric});
}

void appendLyric(LyricRows& rows, const LyricEntry& entry) {
    if (upperBound(rows) == std::numeric_limits<std::int16_t>::max())
        throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    rows.back() = rowOf(entry);
    rows.emplace_back();
}

void updateLyricLine(LyricRows& rows, const LyricEntry& entry) {
    const auto row = findPosition(rows, convertToNineDigit(entry.position));
    if (row == rows.end()) return;
    if (!entry.chord.isEmpty()) row->at(chordColumn) = entry.chord;
    if (!entry.lyric.isEmpty()) row->at(lyricColumn) = entry.lyric;
}

void deleteLyricLine(LyricRows& rows, const QString& position) {
    const auto row = findPosition(rows, convertToNineDigit(position));
    if (row == rows.end()) return;
    const bool last = upperBound(rows) == 1;
    rows.erase(row);
    if (last) rows.emplace_back();
}

void sortLyrics(LyricRows& rows, std::int16_t column) {
    std::vector<SortKey> keys;
    const std::size_t entries = rows.size() - 1;
    keys.reserve(entries);
    for (std::size_t row = 0; row < entries; ++row)
        keys.push_back({rows[row].at(static_cast<std::size_t>(column)).toString(), row});
    shellSort(keys);
    LyricRows sorted = rows;
    for (std::size_t row = 0; row < entries; ++row) {
        // The column beyond the lyric stays where it is.
        for (const std::size_t moved : {positionColumn, chordColumn, lyricColumn})
            sorted[row].at(moved) = rows[keys[row].row].at(moved);
    }
    rows = std::move(sorted);
}

std::vector<LyricItem> lyricItems(const LyricRows& rows) {
    std::vector<LyricItem> items;
    for (const LyricRow& row : rows) {
        const QString lyric = cellText(row, lyricColumn);
        const bool spare = &row == &rows.back();
        if (lyric.isEmpty() && spare) continue;
        items.push_back({lyric.isEmpty() ? QStringLiteral("*") : lyric, bytePosition(row)});
    }
    return items;
}

}  // namespace lyrebrook
