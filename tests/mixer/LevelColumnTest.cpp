#include "mixer/levelColumn.h"

#include <gmock/gmock.h>

#include <cstring>

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
    EXPECT_EQ(topLitRow(15768, 0, 150), 150);
    EXPECT_EQ(topLitRow(15768, 15768, 150), 0);
    EXPECT_EQ(topLitRow(15768, 99999, 150), 0);
    EXPECT_EQ(topLitRow(100, 33, 150), 100) << "a half goes to even";
}

TEST(Percent, IsCountedFromTheSlidersLowerEnd) {
    EXPECT_EQ(percentText(0, 0, 65535), QStringLiteral("100"));
    EXPECT_EQ(percentText(65535, 0, 65535), QStringLiteral("0"));
    EXPECT_EQ(percentText(199, 0, 200), QStringLiteral("0")) << "a half goes to even";
    EXPECT_EQ(percentText(197, 0, 200), QStringLiteral("2"));
    EXPECT_THROW(percentText(5, 5, 5), RuntimeError);
    EXPECT_EQ(turnedOver(10, -100, 100), -10);
}

template <class Sample>
InputPeaks peaksOf(std::vector<Sample> samples, std::int32_t channels) {
    WAVEHDR header{.lpData = reinterpret_cast<std::byte*>(samples.data()),
                   .dwBytesRecorded = static_cast<std::int32_t>(samples.size() * sizeof(Sample))};
    return getInputPeaks(header, {channels, 44100, 8 * static_cast<std::int32_t>(sizeof(Sample))});
}

TEST(InputPeaks, CountOnlyThePositiveHalfOfTheWave) {
    using Wide = std::vector<std::int16_t>;
    using Narrow = std::vector<std::uint8_t>;
    const auto sides = [](const InputPeaks& peaks) { return std::pair(peaks.left, peaks.right); };
    EXPECT_EQ(sides(peaksOf(Wide{-9000, -1, -32768, -2}, 2)), std::pair(0, 0));
    EXPECT_EQ(sides(peaksOf(Wide{5, -7, 3, 32767}, 2)), std::pair(5, 32767));
    EXPECT_EQ(sides(peaksOf(Wide{5, -7, 3, 40}, 1)), std::pair(40, 40));
    EXPECT_EQ(sides(peaksOf(Narrow{128, 0, 130, 255}, 2)), std::pair(2, 127));
    EXPECT_EQ(sides(peaksOf(Wide{}, 2)), std::pair(0, 0));
}

}  // namespace
}  // namespace lyrebrook
