#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lyrebrook {

/// What a control of a line is for. A selection lists the lines that it chooses from as its items: of a multiplexer one
/// at a time, of a mixer as many as one likes. A peak meter can't be set.
enum class MixerControlKind : std::uint8_t { volume, mute, mixer, multiplexer, peakMeter };

struct MixerControlInfo {
    MixerControlKind kind = MixerControlKind::volume;
    std::int32_t minimum = 0;
    std::int32_t maximum = 65535;
    std::vector<std::int32_t> items;  // IDs of the lines that a selection is about
};

/// A line of a card. The low word of its ID is the number of the destination that it belongs to, the high word its own
/// number there; a destination itself has 0xFFFF for it.
struct MixerLineInfo {
    std::int32_t id = 0;
    std::int32_t componentType = 0;
    std::int32_t channels = 2;
    std::string name;  // UTF-8, of any length
    std::vector<MixerControlInfo> controls;
};

struct MixerDestination {
    MixerLineInfo line;
    std::vector<MixerLineInfo> sources;
};
using MixerLayout = std::vector<MixerDestination>;

constexpr std::int32_t mixerLineId(std::uint16_t destination, std::uint16_t source) {
    return static_cast<std::int32_t>(std::uint32_t{source} << 16 | destination);
}
inline constexpr std::uint16_t destinationItself = 0xFFFF;

struct MixerControlPlace {
    std::int32_t line = 0;
    MixerControlKind kind = MixerControlKind::volume;

    friend auto operator<=>(const MixerControlPlace&, const MixerControlPlace&) = default;
};

/// A change on a card, by whomever: of a control, or without one of the line as a whole.
struct MixerChange {
    std::int32_t line = 0;
    std::optional<MixerControlKind> control;
};

/// Called on any thread, at any time until the device that it was given to is closed.
using MixerListener = std::function<void(const MixerChange&)>;

/// A mixer device while it is open. Its layout stays as it was found at the opening, also when a device of the server
/// goes away; reading then tells how things stood last. The program's thread only; nothing here waits for a server.
class MixerDevice {
  public:
    virtual ~MixerDevice() = default;

    virtual const MixerLayout& layout() const = 0;

    /// A volume's value for each channel, a mute's one flag, a selection's flag for each item. Nothing when it can't be
    /// read.
    virtual std::optional<std::vector<std::int32_t>> read(const MixerControlPlace& control) const = 0;

    /// The same, as many values as `read` gives. The listener hears of what it changed. False when it can't be set.
    virtual bool write(const MixerControlPlace& control, std::span<const std::int32_t> values) = 0;
};

/// What a card's mixer is made of. The program's thread only.
class MixerBackend {
  public:
    virtual ~MixerBackend() = default;

    /// One name a device, UTF-8, of any length.
    virtual std::vector<std::string> deviceNames() = 0;

    /// Null when there is no such device. The device may outlive its backend and the card.
    virtual std::unique_ptr<MixerDevice> open(std::int32_t device, MixerListener listener) = 0;
};

}  // namespace lyrebrook
