#pragma once

#include <atomic>
#include <cstddef>
#include <span>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundMemory.h"
#include "platform/sound/UnitState.h"

namespace lyrebrook {

/// The recording side of a capture buffer. Each frame has its place by its index on the timeline, counted from the
/// frame at which the tape started; a place that nothing came for is silence. Lives on the card's thread while
/// attached, which writes frame by frame; `state` and `read` are for the program's thread, which may read a place of
/// a looping tape while it is written over and then finds the old frame or the new one.
class CaptureTape final : public EngineUnit {
  public:
    /// RuntimeError `outOfMemory` when memory is short.
    explicit CaptureTape(Frames length);

    void apply(const EngineCommand& command, Frames at) noexcept override;
    void capture(Frames soundingAt, std::span<const StereoFrame> frames) noexcept override;
    bool capturing() const noexcept override { return running_; }

    UnitState state() const noexcept { return published_.load(); }

    /// Of the last start that had a unit beside it: where that unit stood.
    UnitState stoodBeside() const noexcept { return besideAtStart_.load(); }

    /// Frames since the last start for which nothing came before later ones did.
    Frames missed() const noexcept { return missed_.load(std::memory_order_relaxed); }

    Frames length() const noexcept { return static_cast<Frames>(frames_.size()); }

    /// Copies bytes from `start` on, as many as `bytes` holds; the range lies inside the tape.
    void read(std::size_t start, std::span<std::byte> bytes) const noexcept;

  private:
    void lay(Frames place, std::span<const StereoFrame> frames) noexcept;
    void fillUpTo(Frames place) noexcept;
    void put(Frames place, StereoFrame frame) noexcept;
    void readWhole(std::size_t first, std::span<std::byte> bytes) const noexcept;
    StereoFrame at(std::size_t place) const noexcept;
    void publish() noexcept;

    SoundMemory memory_;
    std::span<StereoFrame> frames_;  // of the memory
    bool running_ = false;
    bool looping_ = false;
    Frames origin_ = 0;
    Frames laid_ = 0;
    std::atomic<Frames> missed_{0};
    std::uint32_t ticket_ = 0;
    PublishedState published_;
    PublishedState besideAtStart_;
};

}  // namespace lyrebrook
