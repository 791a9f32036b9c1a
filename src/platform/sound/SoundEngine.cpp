#include "platform/sound/SoundEngine.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/base/Check.h"
#include "platform/sound/RealTimeScope.h"

namespace lyrebrook {

SoundEngine::SoundEngine(SoundCard& card) : card_(&card) {
    card_->start(*this);
}

SoundEngine::~SoundEngine() {
    leaveCard();
}

void SoundEngine::leaveCard() {
    if (card_ == nullptr) return;
    card_->stop();
    card_ = nullptr;
    applyCommands();
    freeApplied();
}

void SoundEngine::post(const EngineCommand& command) {
    freeApplied();
    commands_.enqueue(command);
    ++posted_;
    if (openTransactions_ == 0) publishBatch();
}

void SoundEngine::attach(EngineUnit& unit) {
    post({.unit = &unit, .verb = Verb::attach});
}

void SoundEngine::detach(std::unique_ptr<EngineUnit> unit) {
    post({.unit = unit.get(), .verb = Verb::detach});
    keepUntilApplied(std::shared_ptr<const EngineUnit>(std::move(unit)));
}

void SoundEngine::keepUntilApplied(std::shared_ptr<const void> thing) {
    if (thing != nullptr) kept_.push_back({posted_, std::move(thing)});
    freeApplied();
}

void SoundEngine::endTransaction() {
    CHECK(openTransactions_ > 0);
    if (--openTransactions_ == 0) publishBatch();
}

void SoundEngine::openInput() {
    if (inputUsers_++ == 0 && card_ != nullptr) card_->openInput();
}

void SoundEngine::closeInput() {
    if (--inputUsers_ == 0 && card_ != nullptr) card_->closeInput();
}

void SoundEngine::holdSource() {
    if (sourceHolders_++ == 0 && card_ != nullptr) card_->holdSource();
}

void SoundEngine::releaseSource() {
    if (--sourceHolders_ == 0 && card_ != nullptr) card_->releaseSource();
}

void SoundEngine::awaitInput() const {
    if (card_ == nullptr || !card_->runsByItself() || card_->notice() != CardNotice::none) return;
    constexpr std::chrono::milliseconds longest{300};
    constexpr std::chrono::milliseconds look{2};
    // What was told to have sounded is a turn of the card old.
    const Frames sounded = soundedFrames_.load() + static_cast<Frames>(mixBlockFrames);
    const auto end = std::chrono::steady_clock::now() + longest;
    while (capturedFrames_.load() < sounded && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(look);
    }
}

void SoundEngine::publishBatch() {
    committed_.store(posted_, std::memory_order_release);
    if (card_ == nullptr) applyCommands();
}

void SoundEngine::freeApplied() {
    const std::uint64_t applied = applied_.load(std::memory_order_acquire);
    std::erase_if(kept_, [applied](const Kept& kept) { return kept.until <= applied; });
}

Frames SoundEngine::mixFrames(const SoundBuses& buses) noexcept {
    const RealTimeScope scope;
    const Frames first = progress_.mixed;
    const std::size_t samples = buses.wave.size();
    for (std::size_t done = 0; done < samples;) {
        const std::size_t part = std::min(samples - done, scratch_.size());
        mixStep({buses.wave.subspan(done, part), buses.softwareSynth.subspan(done, part)});
        done += part;
    }
    mixedFrames_.store(progress_.mixed, std::memory_order_release);
    return first;
}

void SoundEngine::mixStep(const SoundBuses& buses) noexcept {
    applyCommands();
    std::ranges::fill(buses.wave, 0.0F);
    std::ranges::fill(buses.softwareSynth, 0.0F);
    const MixBlock block{.first = progress_.mixed,
                         .frames = buses.wave.size() / 2,
                         .buses = buses,
                         .scratch = std::span{scratch_}.first(buses.wave.size())};
    units_.forEach([&block](EngineUnit& unit) { unit.mix(block); });
    progress_.mixed += static_cast<Frames>(block.frames);
}

void SoundEngine::applyCommands() noexcept {
    const std::uint64_t committed = committed_.load(std::memory_order_acquire);
    EngineCommand command;
    for (; taken_ < committed; ++taken_) {
        CHECK(commands_.try_dequeue(command));
        if (command.verb == Verb::attach) {
            units_.add(*command.unit);
        } else if (command.verb == Verb::detach) {
            units_.remove(*command.unit);
        } else {
            command.unit->apply(command, progress_.mixed);
        }
    }
    applied_.store(taken_, std::memory_order_release);
}

void SoundEngine::framesSounded(Frames upTo) noexcept {
    const RealTimeScope scope;
    progress_.sounded = upTo;
    soundedFrames_.store(upTo, std::memory_order_release);
    settle();
}

void SoundEngine::framesCaptured(Frames soundingAt, std::span<const StereoFrame> frames) noexcept {
    const RealTimeScope scope;
    units_.forEach([&](EngineUnit& unit) { unit.capture(soundingAt, frames); });
    progress_.captured = std::max(progress_.captured, soundingAt + static_cast<Frames>(frames.size()));
    capturedFrames_.store(progress_.captured, std::memory_order_release);
    settle();
}

void SoundEngine::settle() noexcept {
    progress_.captureRuns = false;
    units_.forEach([this](EngineUnit& unit) { progress_.captureRuns |= unit.capturing(); });
    units_.forEach([this](EngineUnit& unit) { unit.settle(progress_); });
}

}  // namespace lyrebrook
