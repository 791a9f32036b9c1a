#pragma once

#include <cstdint>
#include <span>

#include "platform/sound/SoundCard.h"
#include "platform/sound/SoundFormat.h"

namespace lyrebrook {

class EngineUnit;
class SoundData;
class SoundEffect;

/// The engine mixes in steps of at most this many frames, so that working memory has a fixed size.
inline constexpr std::size_t mixBlockFrames = 512;

struct StereoGain {
    float left = 1;
    float right = 1;

    friend bool operator==(const StereoGain&, const StereoGain&) = default;
};

enum class Verb : std::uint8_t { attach, detach, start, stop, moveTo, setGain, setData, setEffect };

/// One order from the program's thread to a unit on the card's thread. Plain data: what it points to is kept alive by
/// the program's thread until the engine has applied the order that replaces it; `beside` need only outlive its own.
struct EngineCommand {
    EngineUnit* unit = nullptr;
    Verb verb = Verb::attach;
    bool looping = false;
    std::uint32_t ticket = 0;
    Frames position = 0;
    StereoGain gain = {};
    const SoundData* data = nullptr;
    SoundEffect* effect = nullptr;
    const EngineUnit* beside = nullptr;
};

/// A step of the timeline being mixed. `scratch` is lent for the length of the call and as long as the buses.
struct MixBlock {
    Frames first = 0;
    std::size_t frames = 0;
    SoundBuses buses;
    std::span<float> scratch;
};

/// How far the timeline has come: frames in front of each index are mixed, have sounded, were captured.
struct Progress {
    Frames mixed = 0;
    Frames sounded = 0;
    Frames captured = 0;
    bool captureRuns = false;
};

/// Something that the engine serves on the card's thread: a playing buffer, a source or a capture. Made and destroyed
/// on the program's thread, owned by the object there that it belongs to; between `attach` and the applied `detach` it
/// is the card's thread that calls these.
class EngineUnit {
  public:
    EngineUnit() = default;
    EngineUnit(const EngineUnit&) = delete;
    EngineUnit& operator=(const EngineUnit&) = delete;
    virtual ~EngineUnit() = default;

    /// `at` is the next frame to be mixed, the one on which the order takes effect.
    virtual void apply(const EngineCommand& command, Frames at) noexcept = 0;
    virtual void mix(const MixBlock&) noexcept {}
    virtual void capture(Frames, std::span<const StereoFrame>) noexcept {}
    virtual void settle(const Progress&) noexcept {}
    virtual bool capturing() const noexcept { return false; }

    /// Where the next frame to be mixed is taken from.
    virtual Frames cursor() const noexcept { return 0; }

  private:
    friend class EngineUnitList;
    EngineUnit* next_ = nullptr;
};

}  // namespace lyrebrook
