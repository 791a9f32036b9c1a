#include <gtest/gtest.h>

#include <chrono>

#include "integration/support/MuteServer.h"
#include "integration/support/ServerDesk.h"
#include "platform/sound/cards/chooseCard.h"

namespace lyrebrook {
namespace {

struct Choice {
    bool pulse = false;
    std::int32_t outputs = 0;
    std::chrono::steady_clock::duration took{};
};

Choice choose() {
    const auto begun = std::chrono::steady_clock::now();
    const auto card = chooseCard();
    return {dynamic_cast<PulseCard*>(card.get()) != nullptr, card->outputCount(),
            std::chrono::steady_clock::now() - begun};
}

TEST(CardChoice, TheServerIsTakenWithTheOutputsItReallyHas) {
    SoundServer server(ServerKind::pulseAudio);
    server.start();
    const Choice choice = choose();
    EXPECT_TRUE(choice.pulse);
    EXPECT_EQ(choice.outputs, 1);
    server.control("unload-module module-null-sink");
    EXPECT_EQ(choose().outputs, 0) << "the server's stand-in can't be heard";
}

TEST(CardChoice, WithoutAServerTheEmbeddedCardIsTakenAtOnce) {
    const SoundServer neverStarted(ServerKind::pulseAudio);
    const Choice choice = choose();
    EXPECT_FALSE(choice.pulse);
    EXPECT_LT(choice.took, 500ms);
    SoundSystem::install(chooseCard());
    EXPECT_TRUE(waitUntil([] { return SoundSystem::engine()->mixedFrames() > framesPerSecond / 10; }, 10s))
        << "it plays by itself";
    SoundSystem::remove();
}

TEST(CardChoice, AServerThatNeverAnswersIsWaitedForNoLongerThanASecond) {
    const SoundServer place(ServerKind::pulseAudio);
    const MuteServer mute(place.folder() / "pulse/native");
    const Choice choice = choose();
    EXPECT_FALSE(choice.pulse);
    EXPECT_LE(choice.took, 1000ms);
}

}  // namespace
}  // namespace lyrebrook
