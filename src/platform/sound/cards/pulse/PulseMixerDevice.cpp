#include "platform/sound/cards/pulse/PulseMixerDevice.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/sound/cards/lineKinds.h"
#include "platform/sound/cards/pulse/CardShare.h"
#include "platform/sound/cards/pulse/pulseLevels.h"

namespace lyrebrook {
namespace {

/// By their number at the speakers.
constexpr std::array buses{CardLine::wave, CardLine::softwareSynth};

const MixerControlInfo volumeControl{.kind = MixerControlKind::volume, .items = {}};
const MixerControlInfo muteControl{.kind = MixerControlKind::mute, .maximum = 1, .items = {}};

bool isMaster(std::int32_t line) {
    return line == mixerLineId(speakersNumber, destinationItself);
}

bool isBus(std::int32_t line) {
    return destinationOf(line) == speakersNumber && !isMaster(line);
}

CardLine busOf(std::int32_t line) {
    return buses.at(sourceOf(line));
}

MixerDestination speakersDestination(std::int32_t sides) {
    MixerDestination made{{.id = mixerLineId(speakersNumber, destinationItself),
                           .componentType = speakersKind,
                           .channels = sides,
                           .name = "Master",
                           .controls = {volumeControl, muteControl}},
                          {}};
    made.sources.push_back({.id = mixerLineId(speakersNumber, 0),
                            .componentType = waveOutKind,
                            .name = "Wave",
                            .controls = {volumeControl, muteControl}});
    made.sources.push_back({.id = mixerLineId(speakersNumber, 1),
                            .componentType = synthesizerKind,
                            .name = "SW Synth",
                            .controls = {volumeControl, muteControl}});
    return made;
}

/// A line for a source, told apart by what is plugged in where the server knows that.
MixerLineInfo sourceLine(const PulseDevice& source) {
    MixerLineInfo line{.componentType = lineInKind,
                       .channels = sidesOf(source.channels),
                       .name = source.description,
                       .controls = {volumeControl}};
    switch (source.portType) {
        case PA_DEVICE_PORT_TYPE_MIC:
        case PA_DEVICE_PORT_TYPE_HEADSET:
        case PA_DEVICE_PORT_TYPE_HANDSET:
            line.componentType = microphoneKind;
            line.name = "Mic";
            break;
        case PA_DEVICE_PORT_TYPE_LINE:
            line.name = "Line In";
            break;
        default:
            break;
    }
    return line;
}

LineLevel levelOf(std::span<const std::int32_t> values) {
    const auto side = [](std::int32_t value) { return static_cast<std::uint16_t>(std::clamp(value, 0, 65535)); };
    return {side(values.front()), side(values.back())};
}

}  // namespace

PulseMixerDevice::PulseMixerDevice(MixerParts parts, std::string sink, MixerListener listener)
    : parts_(std::move(parts)), sinkName_(std::move(sink)), listener_(std::move(listener)) {
    const auto picture = parts_.connection->picture();
    makeLayout(*picture);
    defaultSource_ = picture->defaultSource;
    connection_ = picture->connection;
    memory_.look(layout_, [this](const MixerControlPlace& place) { return readNow(place); });
    busWatch_ = parts_.buses->watch([this] { tellChanges(); });
    serverWatch_ = parts_.connection->watch([this] {
        followDefaultSource();
        tellChanges();
    });
}

PulseMixerDevice::~PulseMixerDevice() {
    parts_.connection->unwatch(serverWatch_);
}

void PulseMixerDevice::makeLayout(const ServerPicture& picture) {
    const PulseDevice* const output = sink(picture);
    layout_ = {speakersDestination(output == nullptr ? 2 : sidesOf(output->channels)),
               {{.id = mixerLineId(waveInNumber, destinationItself),
                 .componentType = waveInKind,
                 .name = "Recording",
                 .controls = {{.kind = MixerControlKind::multiplexer, .items = {}}}},
                {}}};
    for (const PulseDevice& each : picture.sources) {
        if (!each.isMonitor) addInput(sourceLine(each), {RecordingSource::Kind::named, each.name});
    }
    if (output != nullptr) {
        const bool ofDefault = sinkName_.empty();
        const RecordingSource mix{ofDefault ? RecordingSource::Kind::cardOutput : RecordingSource::Kind::named,
                                  ofDefault ? std::string{} : output->monitor};
        addInput({.componentType = analogKind,
                  .channels = sidesOf(output->channels),
                  .name = "Stereo Mix",
                  .controls = {volumeControl}},
                 mix);
    }
    // The program's own output is taken as it is, so there is nothing to set at it.
    addInput({.componentType = analogKind,
              .name = "Song Mix",
              .controls = {{.kind = MixerControlKind::peakMeter, .minimum = -32768, .maximum = 32767, .items = {}}}},
             {RecordingSource::Kind::ownOutput, {}});
    auto& selection = layout_.back().line.controls.front();
    selection.maximum = static_cast<std::int32_t>(inputs_.size()) - 1;
}

void PulseMixerDevice::addInput(const MixerLineInfo& line, const RecordingSource& source) {
    MixerDestination& waveIn = layout_.back();
    waveIn.sources.push_back(line);
    waveIn.sources.back().id = mixerLineId(waveInNumber, static_cast<std::uint16_t>(inputs_.size()));
    waveIn.line.controls.front().items.push_back(waveIn.sources.back().id);
    inputs_.push_back(source);
}

const PulseDevice* PulseMixerDevice::sink(const ServerPicture& picture) const {
    return findDevice(picture.sinks, sinkName_.empty() ? picture.defaultSink : sinkName_);
}

const PulseDevice* PulseMixerDevice::source(const ServerPicture& picture, const RecordingSource& input) const {
    if (input.kind == RecordingSource::Kind::ownOutput) return nullptr;
    if (input.kind == RecordingSource::Kind::named) return findDevice(picture.sources, input.name);
    const PulseDevice* const output = sink(picture);
    return output == nullptr ? nullptr : findDevice(picture.sources, output->monitor);
}

MixerValues PulseMixerDevice::read(const MixerControlPlace& control) const {
    if (auto now = readNow(control)) return now;
    const std::lock_guard lock(mutex_);
    return memory_.last(control);
}

MixerValues PulseMixerDevice::readNow(const MixerControlPlace& control) const {
    if (control.kind == MixerControlKind::multiplexer) return readSelection();
    return isBus(control.line) ? readBus(control) : readDevice(control);
}

MixerValues PulseMixerDevice::readDevice(const MixerControlPlace& control) const {
    const auto picture = parts_.connection->picture();
    const PulseDevice* const device =
        isMaster(control.line) ? sink(*picture) : source(*picture, inputs_.at(sourceOf(control.line)));
    if (device == nullptr) return std::nullopt;
    if (control.kind == MixerControlKind::mute) return std::vector{device->muted ? 1 : 0};
    return levelsOf(device->volume, device->channels);
}

MixerValues PulseMixerDevice::readBus(const MixerControlPlace& control) const {
    const CardLine bus = busOf(control.line);
    if (control.kind == MixerControlKind::mute) return std::vector{parts_.buses->muted(bus) ? 1 : 0};
    const LineLevel level = parts_.buses->level(bus);
    return std::vector<std::int32_t>{level.left, level.right};
}

MixerValues PulseMixerDevice::readSelection() const {
    const RecordingSource chosen = parts_.card->source.chosen();
    std::vector<std::int32_t> flags;
    for (const RecordingSource& input : inputs_) flags.push_back(input == chosen ? 1 : 0);
    return flags;
}

bool PulseMixerDevice::write(const MixerControlPlace& control, std::span<const std::int32_t> values) {
    if (control.kind == MixerControlKind::multiplexer) return writeSelection(values);
    return isBus(control.line) ? writeBus(control, values) : writeDevice(control, values);
}

bool PulseMixerDevice::writeDevice(const MixerControlPlace& control, std::span<const std::int32_t> values) {
    const auto picture = parts_.connection->picture();
    const bool master = isMaster(control.line);
    const PulseDevice* const device = master ? sink(*picture) : source(*picture, inputs_.at(sourceOf(control.line)));
    if (device == nullptr) return false;
    MixerOrder order{master ? PulseSide::sink : PulseSide::source, {}};
    if (control.kind == MixerControlKind::mute) {
        order.what = SetMute{device->name, values.front() != 0};
    } else {
        order.what = SetVolume{device->name, volumeOf(values, device->channels)};
    }
    if (!parts_.connection->give(order)) return false;
    tellChanges();
    return true;
}

bool PulseMixerDevice::writeBus(const MixerControlPlace& control, std::span<const std::int32_t> values) {
    const CardLine bus = busOf(control.line);
    if (control.kind == MixerControlKind::mute) {
        parts_.buses->setMuted(bus, values.front() != 0);
    } else {
        parts_.buses->setLevel(bus, levelOf(values));
    }
    return true;
}

/// One line is always selected: taking the last one away changes nothing.
bool PulseMixerDevice::writeSelection(std::span<const std::int32_t> flags) {
    const auto flag = std::ranges::find_if(flags, [](std::int32_t each) { return each != 0; });
    if (flag == flags.end()) return true;
    const RecordingSource& chosen = inputs_.at(static_cast<std::size_t>(flag - flags.begin()));
    parts_.card->source.choose(chosen);
    const auto picture = parts_.connection->picture();
    if (const PulseDevice* const device = source(*picture, chosen)) makeDefault(device->name);
    tellChanges();
    return true;
}

void PulseMixerDevice::makeDefault(const std::string& name) {
    const std::lock_guard lock(mutex_);
    if (parts_.connection->give(DefaultSource{name}) && name != defaultSource_) ordered_.push_back(name);
}

void PulseMixerDevice::followDefaultSource() {
    const auto picture = parts_.connection->picture();
    if (!somebodyChoseDefault(*picture) || parts_.card->source.chosen().kind == RecordingSource::Kind::ownOutput)
        return;
    const auto chosen = std::ranges::find_if(inputs_, [&](const RecordingSource& input) {
        const PulseDevice* const device = source(*picture, input);
        return device != nullptr && device->name == picture->defaultSource;
    });
    if (chosen != inputs_.end()) parts_.card->source.follow(*chosen);
}

/// A default that moved because its source went away, or because the server began anew, was nobody's choice; one that
/// we ordered may be told late.
bool PulseMixerDevice::somebodyChoseDefault(const ServerPicture& picture) {
    const std::lock_guard lock(mutex_);
    const std::string before = std::exchange(defaultSource_, picture.defaultSource);
    const bool anew = std::exchange(connection_, picture.connection) != picture.connection;
    if (anew) ordered_.clear();
    if (anew || before == picture.defaultSource) return false;
    const auto ours = std::ranges::find(ordered_, picture.defaultSource);
    if (ours != ordered_.end()) {
        ordered_.erase(ordered_.begin(), ours + 1);
        return false;
    }
    return findDevice(picture.sources, before) != nullptr;
}

void PulseMixerDevice::tellChanges() {
    std::vector<MixerControlPlace> changed;
    {
        const std::lock_guard lock(mutex_);
        changed = memory_.look(layout_, [this](const MixerControlPlace& place) { return readNow(place); });
    }
    for (const MixerControlPlace& place : changed) listener_({place.line, place.kind});
}

}  // namespace lyrebrook
