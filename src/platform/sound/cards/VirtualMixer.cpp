#include "platform/sound/cards/VirtualMixer.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "platform/sound/cards/MixerMemory.h"
#include "platform/sound/cards/lineKinds.h"

namespace lyrebrook {
namespace {

template <class Line>
struct NamedLine {
    Line line;
    std::int32_t kind;
    const char* name;
};

/// A line's place in its table is its number at the destination.
constexpr std::array playbackLines{
    NamedLine<CardLine>{CardLine::wave, waveOutKind, "Wave"},
    NamedLine<CardLine>{CardLine::softwareSynth, synthesizerKind, "SW Synth"},
    NamedLine<CardLine>{CardLine::cd, compactDiscKind, "CD"},
    NamedLine<CardLine>{CardLine::lineIn, lineInKind, "Line In"},
    NamedLine<CardLine>{CardLine::microphone, microphoneKind, "Mic"},
    NamedLine<CardLine>{CardLine::aux, auxiliaryKind, "Aux"},
};
/// The mix comes last: of the lines that a preset wants for the song the last one is taken, and a MIDI song isn't in
/// Wave.
constexpr std::array recordingLines{
    NamedLine<RecordingLine>{RecordingLine::microphone, microphoneKind, "Mic"},
    NamedLine<RecordingLine>{RecordingLine::lineIn, lineInKind, "Line In"},
    NamedLine<RecordingLine>{RecordingLine::cd, compactDiscKind, "CD"},
    NamedLine<RecordingLine>{RecordingLine::wave, waveOutKind, "Wave"},
    NamedLine<RecordingLine>{RecordingLine::aux, auxiliaryKind, "Aux"},
    NamedLine<RecordingLine>{RecordingLine::stereoMix, analogKind, "Stereo Mix"},
};

const MixerControlInfo volumeControl{.kind = MixerControlKind::volume, .items = {}};
const MixerControlInfo muteControl{.kind = MixerControlKind::mute, .maximum = 1, .items = {}};

/// The lines of a table, each with the same controls.
template <class Table>
std::vector<MixerLineInfo> sourcesOf(const Table& table, std::uint16_t destination,
                                     const std::vector<MixerControlInfo>& controls) {
    std::vector<MixerLineInfo> sources(table.size());
    std::uint16_t number = 0;
    for (const auto& each : table) {
        sources[number] = {.id = mixerLineId(destination, number),
                           .componentType = each.kind,
                           .name = each.name,
                           .controls = controls};
        ++number;
    }
    return sources;
}

MixerDestination speakersDestination() {
    return {{.id = mixerLineId(speakersNumber, destinationItself),
             .componentType = speakersKind,
             .name = "Master",
             .controls = {volumeControl, muteControl}},
            sourcesOf(playbackLines, speakersNumber, {volumeControl, muteControl})};
}

MixerDestination waveInDestination() {
    auto sources = sourcesOf(recordingLines, waveInNumber, {volumeControl});
    MixerControlInfo selection{
        .kind = MixerControlKind::multiplexer, .maximum = recordingLines.size() - 1, .items = {}};
    std::ranges::transform(sources, std::back_inserter(selection.items), &MixerLineInfo::id);
    return {{.id = mixerLineId(waveInNumber, destinationItself),
             .componentType = waveInKind,
             .name = "Recording",
             .controls = {selection}},
            std::move(sources)};
}

/// Only for lines of the layout.
CardLine playbackLine(std::int32_t line) {
    const std::uint16_t number = sourceOf(line);
    return number == destinationItself ? CardLine::master : playbackLines.at(number).line;
}

RecordingLine recordingLine(std::int32_t line) {
    return recordingLines.at(sourceOf(line)).line;
}

LineLevel levelOf(std::span<const std::int32_t> values) {
    const auto side = [](std::int32_t value) { return static_cast<std::uint16_t>(std::clamp(value, 0, 65535)); };
    return {side(values[0]), side(values[1])};
}

class VirtualMixerDevice final : public MixerDevice {
  public:
    VirtualMixerDevice(std::shared_ptr<CardLines> lines, MixerListener listener)
        : lines_(std::move(lines)),
          listener_(std::move(listener)),
          layout_{speakersDestination(), waveInDestination()},
          watch_(lines_->watch([this] { tellChanges(); })) {
        changes();
    }

    const MixerLayout& layout() const override { return layout_; }

    MixerValues read(const MixerControlPlace& control) const override {
        switch (control.kind) {
            case MixerControlKind::volume:
                return readLevel(control.line);
            case MixerControlKind::mute:
                return std::vector{lines_->muted(playbackLine(control.line)) ? 1 : 0};
            default:
                return readSelection();
        }
    }

    bool write(const MixerControlPlace& control, std::span<const std::int32_t> values) override {
        switch (control.kind) {
            case MixerControlKind::volume:
                writeLevel(control.line, levelOf(values));
                return true;
            case MixerControlKind::mute:
                lines_->setMuted(playbackLine(control.line), values[0] != 0);
                return true;
            default:
                writeSelection(values);
                return true;
        }
    }

  private:
    std::vector<std::int32_t> readLevel(std::int32_t line) const {
        const LineLevel level = destinationOf(line) == speakersNumber ? lines_->level(playbackLine(line))
                                                                      : lines_->recordingLevel(recordingLine(line));
        return {level.left, level.right};
    }

    void writeLevel(std::int32_t line, LineLevel level) {
        if (destinationOf(line) == speakersNumber) {
            lines_->setLevel(playbackLine(line), level);
        } else {
            lines_->setRecordingLevel(recordingLine(line), level);
        }
    }

    std::vector<std::int32_t> readSelection() const {
        std::vector<std::int32_t> flags(recordingLines.size());
        std::ranges::transform(recordingLines, flags.begin(),
                               [this](const auto& each) { return each.line == lines_->selectedRecording() ? 1 : 0; });
        return flags;
    }

    /// One line is always selected: taking the last one away changes nothing.
    void writeSelection(std::span<const std::int32_t> flags) {
        const auto chosen = std::ranges::find_if(flags, [](std::int32_t flag) { return flag != 0; });
        if (chosen == flags.end()) return;
        lines_->selectRecording(recordingLines.at(static_cast<std::size_t>(chosen - flags.begin())).line);
    }

    std::vector<MixerControlPlace> changes() {
        return memory_.look(layout_, [this](const MixerControlPlace& place) { return read(place); });
    }

    void tellChanges() {
        for (const MixerControlPlace& place : changes()) listener_({place.line, place.kind});
    }

    std::shared_ptr<CardLines> lines_;
    MixerListener listener_;
    MixerLayout layout_;
    MixerMemory memory_;
    CardLines::Watch watch_;
};

}  // namespace

VirtualMixer::VirtualMixer(std::shared_ptr<CardLines> lines) : lines_(std::move(lines)) {}

std::vector<std::string> VirtualMixer::deviceNames() {
    return {"Virtual sound card"};
}

std::unique_ptr<MixerDevice> VirtualMixer::open(std::int32_t device, MixerListener listener) {
    if (device != 0) return nullptr;
    return std::make_unique<VirtualMixerDevice>(lines_, std::move(listener));
}

}  // namespace lyrebrook
