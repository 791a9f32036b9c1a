#include "platform/sound/cards/pulse/PulseMixer.h"

#include <algorithm>
#include <utility>

#include "platform/sound/cards/pulse/MixerConnection.h"
#include "platform/sound/cards/pulse/PulseMixerDevice.h"

namespace lyrebrook {
namespace {

/// A server on this machine answers in a few milliseconds.
constexpr std::chrono::milliseconds longestWait{1000};

/// What servers offer when there is no card at all.
constexpr std::string_view noRealOutput = "auto_null";

/// The default sink first.
std::vector<PulseDevice> devicesOf(const ServerPicture& picture) {
    std::vector<PulseDevice> devices;
    const auto add = [&](bool isDefault) {
        for (const PulseDevice& sink : picture.sinks) {
            const bool wanted = (sink.name == picture.defaultSink) == isDefault;
            if (wanted && (isDefault || sink.name != noRealOutput)) devices.push_back(sink);
        }
    };
    add(true);
    add(false);
    return devices;
}

}  // namespace

PulseMixer::PulseMixer(std::shared_ptr<MixerConnection> connection, std::shared_ptr<CardLines> buses,
                       std::shared_ptr<CardShare> card)
    : connection_(std::move(connection)), buses_(std::move(buses)), card_(std::move(card)) {}

std::vector<std::string> PulseMixer::deviceNames() {
    std::vector<std::string> names;
    connection_->waitForPicture(longestWait);
    for (const PulseDevice& device : devicesOf(*connection_->picture())) names.push_back(device.description);
    return names;
}

std::unique_ptr<MixerDevice> PulseMixer::open(std::int32_t device, MixerListener listener) {
    connection_->waitForPicture(longestWait);
    const auto picture = connection_->picture();
    const auto devices = devicesOf(*picture);
    if (device < 0 || std::cmp_greater_equal(device, devices.size())) return nullptr;
    const std::string& name = devices[static_cast<std::size_t>(device)].name;
    const bool followsDefault = name == picture->defaultSink;
    return std::make_unique<PulseMixerDevice>(MixerParts{connection_, buses_, card_},
                                              followsDefault ? std::string{} : name, std::move(listener));
}

}  // namespace lyrebrook
