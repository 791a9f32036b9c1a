#include "mixer/levelColumn.h"

#include <algorithm>

#include "platform/base/Numbers.h"
#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

std::uint32_t toByte(float value) {
    return static_cast<std::uint32_t>(roundHalfToEven(static_cast<double>(value)));
}

}  // namespace

std::vector<std::uint32_t> vuRamp(std::int32_t height) {
    const std::int32_t rows = std::max(height, 2);
    const std::int32_t half = rows / 2;
    constexpr float full = 255;
    const float stepDown = full / static_cast<float>(half);
    const float stepUp = stepDown * 2;
    float red = 0;
    float green = 0;  // only ever lowered: the ramp has no green in it
    std::vector<std::uint32_t> colours(static_cast<std::size_t>(half), 0);
    for (std::int32_t row = half; row < rows; ++row) {
        if (red < full)
            red = std::min(red + stepUp, full);
        else
            green = std::max(green - stepDown, 0.0F);
        colours.push_back(toByte(green) << 8U | toByte(red));
    }
    return colours;
}

std::int32_t topLitRow(std::int32_t fullScale, std::int32_t level, double height) {
    return toInt32(height - static_cast<double>(std::min(level, fullScale)) / fullScale * height);
}

QString levelText(std::int32_t level, std::int32_t fullScale) {
    return QString::number(toInt32(static_cast<double>(level) / fullScale * 32));
}

QString percentText(std::int32_t value, std::int32_t min, std::int32_t max) {
    const double range = static_cast<double>(max) - min;
    if (range == 0) throw RuntimeError(RuntimeErrorNumber::divisionByZero, "Division by zero");
    return QString::number(toInt32(100 - value / range * 100));
}

std::int32_t turnedOver(std::int32_t value, std::int32_t min, std::int32_t max) {
    return toInt32(static_cast<double>(max) - value + min);
}

}  // namespace lyrebrook
