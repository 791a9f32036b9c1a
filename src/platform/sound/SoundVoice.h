#pragma once

#include <cstdint>
#include <memory>

#include "platform/sound/SoundEngine.h"
#include "platform/sound/SoundSource.h"

namespace lyrebrook {

class SourceVoice;

enum class SoundBus : std::uint8_t { wave, softwareSynth };

/// The program's handle to a source that sounds. Owns the source, which is destroyed on the program's thread after the
/// card's thread let go of it, so the handle may go at any time. The program's thread only.
class SoundVoice {
  public:
    SoundVoice(std::shared_ptr<SoundEngine> engine, std::unique_ptr<SoundSource> source, SoundBus bus);
    ~SoundVoice();
    SoundVoice(const SoundVoice&) = delete;
    SoundVoice& operator=(const SoundVoice&) = delete;

    /// Has the source rendered from the next frame on; it goes on where it stands, the voice never rewinds it.
    void start();

    /// Silent from the next frame on. A voice that was stopped doesn't report an end.
    void stop();

    /// Hundredths of a decibel, 0 or below; -10000 is silence.
    void setVolume(std::int32_t hundredthsOfDecibel);

    /// The source ended by itself since the last `start`, its last frame has left the speakers, and every running
    /// capture has received what sounded up to there. An input that stays dead for two seconds isn't waited for.
    bool endedAndCaptured() const;

  private:
    std::shared_ptr<SoundEngine> engine_;
    std::unique_ptr<SourceVoice> voice_;
    std::uint32_t ticket_ = 0;
};

}  // namespace lyrebrook
