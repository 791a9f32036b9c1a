#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

#include <readerwriterqueue/readerwriterqueue.h>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/EngineUnitList.h"
#include "platform/sound/SoundCard.h"

namespace lyrebrook {

/// Mixes all that the program plays and hands out what is captured, for one card. Its public functions belong to the
/// program's thread, the client's functions to the card's. Orders cross over through a lock-free queue and take effect
/// together, batch by batch, at the next frame to be mixed; a batch is one order, or all orders inside a
/// `SoundTransaction`. Memory crosses back by counting: the program's thread keeps what an order replaced until the
/// card's thread has applied that order. Without a card, orders are applied at once and the timeline stands.
class SoundEngine final : private SoundCardClient {
  public:
    explicit SoundEngine(SoundCard& card);
    ~SoundEngine();

    /// Lets go of the card for good; objects that still hold the engine stay usable and silent.
    void leaveCard();

    void post(const EngineCommand& command);

    /// `unit` takes part until it is handed back with `detach`, which destroys it once the card's thread let go of it.
    void attach(EngineUnit& unit);
    void detach(std::unique_ptr<EngineUnit> unit);

    /// Keeps `thing` alive until the orders posted so far are applied.
    void keepUntilApplied(std::shared_ptr<const void> thing);

    void beginTransaction() { ++openTransactions_; }
    void endTransaction();

    /// Counts the captures that want the card's input.
    void openInput();
    void closeInput();

    /// Counts the recordings, during which the card keeps its source.
    void holdSource();
    void releaseSource();

    /// Returns when what has sounded by now could be captured, at once or a moment later. Input that doesn't come by
    /// then isn't waited for.
    void awaitInput() const;

    /// Index of the next frame to be mixed, as last told by the card's thread.
    Frames mixedFrames() const { return mixedFrames_.load(std::memory_order_acquire); }

  private:
    Frames mixFrames(const SoundBuses& buses) noexcept override;
    void framesSounded(Frames upTo) noexcept override;
    void framesCaptured(Frames soundingAt, std::span<const StereoFrame> frames) noexcept override;

    void mixStep(const SoundBuses& buses) noexcept;
    void applyCommands() noexcept;
    void settle() noexcept;
    void publishBatch();
    void freeApplied();

    struct Kept {
        std::uint64_t until;
        std::shared_ptr<const void> thing;
    };

    // The program's thread.
    SoundCard* card_;
    std::uint64_t posted_ = 0;
    std::vector<Kept> kept_;
    std::int32_t openTransactions_ = 0;
    std::int32_t inputUsers_ = 0;
    std::int32_t sourceHolders_ = 0;

    // Between the threads. Counts of orders: those in whole batches, and those that the card's thread is done with.
    moodycamel::ReaderWriterQueue<EngineCommand> commands_;
    std::atomic<std::uint64_t> committed_{0};
    std::atomic<std::uint64_t> applied_{0};
    std::atomic<Frames> mixedFrames_{0};
    std::atomic<Frames> soundedFrames_{0};
    std::atomic<Frames> capturedFrames_{0};

    // The card's thread.
    EngineUnitList units_;
    std::uint64_t taken_ = 0;
    Progress progress_;
    alignas(32) std::array<float, 2 * mixBlockFrames> scratch_{};
};

}  // namespace lyrebrook
