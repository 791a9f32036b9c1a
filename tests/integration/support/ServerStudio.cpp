#include "integration/support/ServerStudio.h"

#include "platform/directx/DirectX8.h"
#include "shell/modConfig.h"

namespace lyrebrook {

ServerStudio::ServerStudio(ServerKind kind) : server(kind) {
    server.start();
    auto made = std::make_unique<PulseCard>();
    EXPECT_TRUE(made->reachServer(1s));
    card = made.get();
    SoundSystem::install(std::move(made));
    gSongName = QStringLiteral("My Song");
    // A null sink that nobody has used yet has taken two seconds of silence, and plays these first.
    live(2500ms);
}

bool ServerStudio::liveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    auto seen = std::chrono::steady_clock::now();
    return waitUntil(
        [&] {
            const auto gone =
                std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - seen);
            seen += gone;
            DirectX8::deliverPendingEvents();
            studio.desk().advanceTime(static_cast<std::int32_t>(gone.count()));
            return done();
        },
        limit);
}

void ServerStudio::live(std::chrono::milliseconds time) {
    liveUntil([] { return false; }, time);
}

}  // namespace lyrebrook
