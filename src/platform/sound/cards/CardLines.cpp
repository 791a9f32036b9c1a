#include "platform/sound/cards/CardLines.h"

#include <utility>

namespace lyrebrook {
namespace {

std::uint32_t packed(LineLevel level) {
    return std::uint32_t{level.left} << 16 | level.right;
}

LineLevel unpacked(std::uint32_t level) noexcept {
    return {static_cast<std::uint16_t>(level >> 16), static_cast<std::uint16_t>(level)};
}

StereoGain gainAt(LineLevel level) noexcept {
    constexpr float top = 65535;
    return {static_cast<float>(level.left) / top, static_cast<float>(level.right) / top};
}

template <class Line>
std::size_t indexOf(Line line) noexcept {
    return static_cast<std::size_t>(line);
}

}  // namespace

CardLines::CardLines() {
    for (auto& level : recordingLevels_) level = fullLevel;
}

void CardLines::setLevel(CardLine line, LineLevel level) {
    lines_[indexOf(line)].level = packed(level);
    tellWatchers();
}

LineLevel CardLines::level(CardLine line) const {
    return unpacked(lines_[indexOf(line)].level);
}

void CardLines::setMuted(CardLine line, bool muted) {
    lines_[indexOf(line)].muted = muted;
    tellWatchers();
}

bool CardLines::muted(CardLine line) const {
    return lines_[indexOf(line)].muted;
}

void CardLines::selectRecording(RecordingLine line) {
    selected_ = line;
    tellWatchers();
}

void CardLines::setRecordingLevel(RecordingLine line, LineLevel level) {
    recordingLevels_[indexOf(line)] = packed(level);
    tellWatchers();
}

LineLevel CardLines::recordingLevel(RecordingLine line) const {
    return unpacked(recordingLevels_[indexOf(line)]);
}

CardLines::Watch CardLines::watch(std::function<void()> changed) {
    auto made = std::make_shared<const std::function<void()>>(std::move(changed));
    watchers_.emplace_back(made);
    return made;
}

void CardLines::tellWatchers() {
    std::erase_if(watchers_, [](const auto& watcher) { return watcher.expired(); });
    const auto told = watchers_;
    for (const auto& watcher : told) {
        if (const Watch there = watcher.lock()) (*there)();
    }
}

StereoGain CardLines::gain(CardLine line) const noexcept {
    const LineControl& control = lines_[indexOf(line)];
    return control.muted ? StereoGain{0, 0} : gainAt(unpacked(control.level));
}

StereoGain CardLines::recordingGain() const noexcept {
    return gainAt(unpacked(recordingLevels_[indexOf(selectedRecording())]));
}

}  // namespace lyrebrook
