#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "platform/directx/DirectX8.h"

namespace lyrebrook {

/// The music objects of a screen that plays backtracks: made together and let go in their order. `dx` stays until the
/// screen itself lets go of it, since other objects of the screen may come from it. The form's thread.
struct BacktrackMusic {
    /// RuntimeError when there is no card, or no instruments for MIDI; `close` is then still to be called.
    void open(std::int64_t windowHandle, DirectXEvent8& sink);

    /// Stops the sound and lets go of everything but `dx`. May be called at any time.
    void close();

    void load(const QString& path);

    std::unique_ptr<DirectX8> dx;
    std::unique_ptr<DirectMusicPerformance8> perf;
    std::unique_ptr<DirectMusicLoader8> loader;
    std::unique_ptr<DirectMusicSegment8> seg;  ///< what is loaded, or nothing
    std::int32_t hEvent = 0;
};

}  // namespace lyrebrook
