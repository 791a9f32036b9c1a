#include <atomic>
#include <cstdlib>
#include <mutex>
#include <random>
#include <thread>

#include "SoundDesk.h"
#include "platform/sound/RealTimeScope.h"
#include "platform/sound/SoundVoice.h"

#if defined(__SANITIZE_THREAD__)
/// The order queue's places are handed back by fences, which ThreadSanitizer can't see. What the orders point to is
/// published by the engine's own counter and stays under watch.
extern "C" const char* __tsan_default_suppressions() {
    return "race:moodycamel::ReaderWriterQueue\n";
}
#endif

namespace lyrebrook {
namespace {

TEST(CardThreadDeathTest, TheTrapCatchesMemoryAndLocks) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            const RealTimeScope scope;
            Sound frames(3);
            static_cast<const volatile void*>(frames.data());
        },
        "malloc on the card's thread");
    EXPECT_DEATH(
        {
            std::mutex mutex;
            const RealTimeScope scope;
            mutex.lock();
        },
        "pthread_mutex_lock on the card's thread");
}

class Endless final : public SoundSource {
  public:
    std::size_t render(std::span<float> samples) noexcept override {
        std::ranges::fill(samples, 0.1F);
        return samples.size() / 2;
    }
};

/// Turns the crank in a thread of its own, as fast as it goes.
class TurningCrank {
  public:
    explicit TurningCrank(VirtualCard& card)
        : thread_([&card](const std::stop_token& stopping) {
              while (!stopping.stop_requested()) card.advance(64);
          }) {}

  private:
    std::jthread thread_;
};

/// Does one thing after the other that a person at the recorder could cause, at random.
class Session {
  public:
    explicit Session(SoundDesk& desk) : desk_(desk) {}

    void actAtRandom() {
        auto& track = tracks_[static_cast<std::size_t>(pick(tracks_.size()))];
        if (track == nullptr) track = desk_.buffer(ramp(pick(3000)));
        switch (pick(10)) {
            case 0:
                track->Play(0);
                break;
            case 1:
                track->Stop();
                break;
            case 2:
                track->SetCurrentPosition(static_cast<std::int32_t>(pick(12000)));
                break;
            case 3:
                track->SetVolume(-static_cast<std::int32_t>(pick(4000)));
                break;
            case 4:
                overwrite(*track);
                break;
            case 5:
                track.reset();
                break;
            case 6:
                voice_ =
                    std::make_unique<SoundVoice>(SoundSystem::engine(), std::make_unique<Endless>(), SoundBus::wave);
                break;
            case 7:
                if (voice_) voice_->start();
                break;
            case 8:
                take_ = desk_.capture(2000);
                take_->Start(static_cast<std::int32_t>(pick(2)));
                break;
            default:
                restartTogether();
                break;
        }
        if (take_) taken_ += captured(*take_).size();
    }

    std::size_t framesTaken() const { return taken_; }

  private:
    Frames pick(std::size_t below) { return static_cast<Frames>(random_() % below); }

    void overwrite(DirectSoundSecondaryBuffer8& track) {
        const std::array<std::byte, 4> frame{};
        if (content(track, 1).front() != StereoFrame{}) track.WriteBuffer(0, 4, frame, 0);
    }

    void restartTogether() {
        const SoundTransaction together(SoundSystem::engine());
        for (const auto& track : tracks_) {
            if (track == nullptr) continue;
            track->SetCurrentPosition(0);
            track->Play(0);
            EXPECT_EQ(cursors(*track).lPlay, 0);
        }
    }

    SoundDesk& desk_;
    std::mt19937 random_{7};
    std::array<std::unique_ptr<DirectSoundSecondaryBuffer8>, 4> tracks_;
    std::unique_ptr<SoundVoice> voice_;
    std::unique_ptr<DirectSoundCaptureBuffer8> take_;
    std::size_t taken_ = 0;
};

TEST(CardThread, BearsWhateverTheProgramDoesMeanwhile) {
    SoundDesk desk;
    Session session(desk);
    const TurningCrank crank(*desk.card);
    for (int i = 0; i < 4000; ++i) session.actAtRandom();
    EXPECT_GT(session.framesTaken(), 0U);
}

}  // namespace
}  // namespace lyrebrook
