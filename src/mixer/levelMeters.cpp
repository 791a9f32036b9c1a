#include "mixer/levelMeters.h"

#include <cmath>

#include "mixer/FrmVolumeMixer.h"
#include "mixer/levelColumn.h"
#include "mixer/modMixer.h"
#include "platform/base/Numbers.h"

namespace lyrebrook {

std::vector<std::uint32_t> gVUColors;
std::array<std::int32_t, 2> gLastLevels{};

namespace {

constexpr std::int32_t feedFullScale = 15768;

/// Quiet sound stands at the noise floor.
double fedLevel(double average) {
    constexpr double quiet = 3000;
    constexpr double noiseFloor = 1500;
    return average < quiet ? noiseFloor : std::min<double>(average, feedFullScale);
}

void update(std::int32_t& last, std::int32_t level, std::int32_t fullScale, PictureBox& picture, TextBox& box) {
    if (level == last) return;
    last = level;
    drawVUMeter(fullScale - 1, level, picture);
    box.setText(levelText(level, fullScale));
}

}  // namespace

void buildVUColors(std::int32_t height) {
    gVUColors = vuRamp(height);
}

void drawVUMeter(std::int32_t fullScale, std::int32_t level, PictureBox& picture) {
    const double height = picture.ScaleHeight();
    const double width = picture.ScaleWidth();
    const std::int32_t top = topLitRow(fullScale, level, height);
    std::size_t k = 0;
    for (std::int32_t row = toInt32(height - 1); row >= top; --row) {
        picture.DrawLine(QLineF(0, row, width, row), gVUColors.at(k++));
    }
    for (std::int32_t row = top - 1; row >= 0; --row) picture.DrawLine(QLineF(0, row, width, row), picture.BackColor());
}

void updateVUMeters(std::int32_t left, std::int32_t right, std::int32_t fullScale) {
    update(gLastLevels[0], left, fullScale, frmVolumeMixer->picLeftVUMeter, frmVolumeMixer->txtLeftVUMeter);
    update(gLastLevels[1], right, fullScale, frmVolumeMixer->picRightVUMeter, frmVolumeMixer->txtRightVUMeter);
}

void feedLevelColumns(const std::optional<LevelBars::Averages>& averages) {
    if (!averages || !gMixerOpen || gVUColors.empty()) return;  // it may still be opening, with a message box
    const double left = fedLevel(averages->left);
    drawVUMeter(feedFullScale, toInt32(left), frmVolumeMixer->picLeftVUMeter);
    drawVUMeter(feedFullScale, toInt32(fedLevel(averages->right)), frmVolumeMixer->picRightVUMeter);
    constexpr int tooLoud = 80;
    const Colour lamp = std::floor(left / feedFullScale * 100) > tooLoud ? red : green;
    frmVolumeMixer->txtLeftVUMeter.setBackColor(lamp);
    frmVolumeMixer->txtRightVUMeter.setBackColor(lamp);
}

}  // namespace lyrebrook
