#include "platform/sound/DirectSound8.h"

#include "platform/base/RuntimeError.h"
#include "platform/sound/WaveFile.h"
#include "platform/sound/bufferChecks.h"

namespace lyrebrook {

DirectSound8::DirectSound8(std::shared_ptr<SoundEngine> engine) : engine_(std::move(engine)) {}

void DirectSound8::SetCooperativeLevel(std::int64_t, std::int32_t level) {
    if (level >= 1 && level <= 4) return;
    throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "Invalid procedure call or argument");
}

std::unique_ptr<DirectSoundSecondaryBuffer8> DirectSound8::CreateSoundBuffer(const DSBUFFERDESC& description) {
    requireTrackFormat(description.fxFormat);
    const Frames length = framesToHold(requireSize(description.lBufferBytes));
    return std::make_unique<DirectSoundSecondaryBuffer8>(engine_, std::make_shared<SoundData>(SoundMemory(length)));
}

std::unique_ptr<DirectSoundSecondaryBuffer8> DirectSound8::CreateSoundBufferFromFile(const std::filesystem::path& path,
                                                                                     const DSBUFFERDESC&) {
    return std::make_unique<DirectSoundSecondaryBuffer8>(engine_, readWaveFile(path));
}

}  // namespace lyrebrook
