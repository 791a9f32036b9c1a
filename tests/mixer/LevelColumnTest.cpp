#include "mixer/levelColumn.h"

#include <gmock/gmock.h>

#include "mixer/waveInput.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

TEST(VuRamp, IsBlackToTheMiddleAndRisesToFullRed) {
    EXPECT_THAT(vuRamp(10), ElementsAre(0, 0, 0, 0, 0, 102, 204, 255, 255, 255));
    EXPECT_THAT(vuRamp(5), ElementsAre(0, 0, 255, 255, 255));
    for (const int height : {2, 1, 0, -7}) EXPECT_THAT(vuRamp(height), ElementsAre(0, 255)) << height;
}

TEST(LevelColumn, IsLitUpToTheLevelAndNotBeyondTheTop) {
    for (const auto& [level, top] : {std::pair(0, 150), {33, 100}, {100, 0}, {999, 0}})  // 100.5 goes to even
        EXPECT_EQ(topLitRow(100, level, 150), top);
}

TEST(Percent, IsCountedFromTheSlidersLowerEnd) {
    for (const auto& [value, text] : {std::pair(0, "100"), {200, "0"}, {199, "0"}, {197, "2"}})  // halves go to even
        EXPECT_EQ(percentText(value, 0, 200), text);
    EXPECT_THROW(percentText(5, 5, 5), RuntimeError);
    EXPECT_EQ(turnedOver(10, -100, 100), -10);
}

template <class Sample>
std::pair<std::int32_t, std::int32_t> peaksOf(std::vector<Sample> samples, std::int32_t channels) {
    const WAVEHDR header{.lpData = reinterpret_cast<std::byte*>(samples.data()),
                         .dwBytesRecorded = static_cast<std::int32_t>(samples.size() * sizeof(Sample))};
    const InputPeaks peaks = getInputPeaks(header, {channels, 44100, 8 * static_cast<std::int32_t>(sizeof(Sample))});
    return {peaks.left, peaks.right};
}

TEST(InputPeaks, CountOnlyThePositiveHalfOfTheWave) {
    EXPECT_EQ(peaksOf<std::int16_t>({-9000, -1, -32768, -2}, 2), std::pair(0, 0));
    EXPECT_EQ(peaksOf<std::int16_t>({5, -7, 3, 32767}, 2), std::pair(5, 32767));
    EXPECT_EQ(peaksOf<std::int16_t>({5, -7, 3, 40}, 1), std::pair(40, 40));
    EXPECT_EQ(peaksOf<std::uint8_t>({128, 0, 130, 255}, 2), std::pair(2, 127));
    EXPECT_EQ(peaksOf<std::int16_t>({}, 2), std::pair(0, 0));
}

}  // namespace
}  // namespace lyrebrook
