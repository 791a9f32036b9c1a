#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "platform/directx/DirectX8.h"

namespace lyrebrook {

inline constexpr std::int32_t DSSCL_PRIORITY = 2;

/// The default device for playing, or for recording. When it can't be had, a message says why and the program ends.
std::unique_ptr<DirectSound8> openPlayback(DirectX8& dx);
std::unique_ptr<DirectSoundCapture8> openRecording(DirectX8& dx);

/// Saves a sound as a wave file. When that fails, a message says why, the old file is whole, and the result is false.
bool saveSound(const DirectSoundSecondaryBuffer8& sound, const QString& path);

/// The same for what can't be had a second time: when it fails, the person may remove the cause and have it tried
/// again. False once they give it up.
bool saveSoundOrAsk(const DirectSoundSecondaryBuffer8& sound, const QString& path);

}  // namespace lyrebrook
