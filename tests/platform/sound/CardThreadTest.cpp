#include <array>
#include <functional>
#include <mutex>
#include <random>
#include <thread>

#include "SoundDesk.h"
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

class Endless final : public SoundSource {
  public:
    std::size_t render(std::span<float> samples) noexcept override {
        std::ranges::fill(samples, 0.1F);
        return samples.size() / 2;
    }
};

/// What no source may do.
class Forgetful final : public SoundSource {
  public:
    explicit Forgetful(bool locks) : locks_(locks) {}
    std::size_t render(std::span<float>) noexcept override {
        if (locks_) mutex_.lock();
        return ramp(3).size();
    }

  private:
    bool locks_;
    std::mutex mutex_;
};

void play(std::unique_ptr<SoundSource> source) {
    SoundDesk desk;
    SoundVoice voice(SoundSystem::engine(), std::move(source), SoundBus::wave);
    voice.start();
    desk.card->advance(1);
}

TEST(CardThreadDeathTest, MemoryAndLocksEndTheProgram) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(play(std::make_unique<Forgetful>(false)), "malloc on the card's thread");
    EXPECT_DEATH(play(std::make_unique<Forgetful>(true)), "pthread_mutex_lock on the card's thread");
}

/// Does one thing after the other that a person at the recorder could cause, at random.
class Session {
  public:
    explicit Session(SoundDesk& desk) : desk_(desk) {}

    void actAtRandom() {
        auto& track = tracks_[static_cast<std::size_t>(pick(tracks_.size()))];
        if (track == nullptr) track = desk_.buffer(ramp(pick(3000)));
        const std::array<std::function<void()>, 9> acts{
            [&] { track->Play(0); },
            [&] { track->Stop(); },
            [&] { track->SetCurrentPosition(static_cast<std::int32_t>(pick(12000))); },
            [&] { track->SetVolume(-static_cast<std::int32_t>(pick(4000))); },
            [&] { overwrite(*track); },
            [&] { track.reset(); },
            [&] { replaceVoice(); },
            [&] { replaceTake(); },
            [&] { restartTogether(); },
        };
        acts[static_cast<std::size_t>(pick(acts.size()))]();
        if (take_) taken_ += captured(*take_).size();
    }

    std::size_t framesTaken() const { return taken_; }

  private:
    Frames pick(std::size_t below) { return static_cast<Frames>(random_() % below); }

    void overwrite(DirectSoundSecondaryBuffer8& track) {
        const std::array<std::byte, 4> frame{};
        if (content(track, 1).front() != StereoFrame{}) track.WriteBuffer(0, 4, frame, 0);
    }

    void replaceVoice() {
        voice_ = std::make_unique<SoundVoice>(SoundSystem::engine(), std::make_unique<Endless>(), SoundBus::wave);
        voice_->start();
    }

    void replaceTake() {
        take_ = desk_.capture(2000);
        take_->Start(static_cast<std::int32_t>(pick(2)));
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
    const std::jthread crank([&desk](const std::stop_token& stopping) {
        while (!stopping.stop_requested()) desk.card->advance(64);
    });
    for (int i = 0; i < 4000; ++i) session.actAtRandom();
    EXPECT_GT(session.framesTaken(), 0U);
}

}  // namespace
}  // namespace lyrebrook
