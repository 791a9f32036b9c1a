#include "lyrics/LyricStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace lyrebrook {
namespace {

TEST(LyricStore, SortsEntriesByCharacterCodesAndLeavesTheSpareRowAndTheLastColumn) {
    std::mt19937 random(5);
    for (const std::size_t entries : {0U, 1U, 2U, 3U, 64U, 999U}) {
        LyricRows rows = emptyLyrics();
        std::vector<QString> positions;
        for (std::size_t i = 0; i < entries; ++i) positions.push_back(convertToNineDigit(QString::number(i * 7)));
        std::shuffle(positions.begin(), positions.end(), random);
        for (std::size_t i = 0; i < entries; ++i) {
            appendLyric(rows, {positions[i], {}, u'~' + positions[i]});
            rows[i][3] = static_cast<int>(i);
        }
        sortLyrics(rows, positionColumn);
        std::sort(positions.begin(), positions.end());
        ASSERT_EQ(rows.size(), entries + 1);
        for (std::size_t i = 0; i < entries; ++i) {
            EXPECT_EQ(cellText(rows[i], positionColumn), positions[i]);
            EXPECT_EQ(cellText(rows[i], lyricColumn), u'~' + positions[i]);
            EXPECT_EQ(rows[i][3], static_cast<int>(i));
        }
        EXPECT_EQ(rows.back(), LyricRow{});
    }
}

TEST(LyricStore, PadsPositionsToNineDigitsAndTakesNoneTwice) {
    LyricRows rows = emptyLyrics();
    for (const char* position : {"12", "123456789", "1234567890", "", "000000012"})
        addLyricToArray(rows, {QString::fromLatin1(position), QString::fromLatin1(position), {}});
    ASSERT_EQ(upperBound(rows), 4);
    const std::pair<const char*, const char*> expected[] = {
        {"000000012", "12"}, {"123456789", "123456789"}, {"1234567890", "1234567890"}, {"000000000", ""}};
    for (std::size_t row = 0; row < 4; ++row) {
        EXPECT_EQ(cellText(rows[row], positionColumn), QString::fromLatin1(expected[row].first));
        EXPECT_EQ(cellText(rows[row], chordColumn), QString::fromLatin1(expected[row].second));
    }
}

}  // namespace
}  // namespace lyrebrook
