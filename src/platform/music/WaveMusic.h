#pragma once

#include "platform/music/SegmentMusic.h"
#include "platform/sound/SoundData.h"

#include <filesystem>
#include <memory>

namespace lyrebrook {

/// A sound file's music. The tempo leaves it as it is.
class WaveMusic final : public SegmentMusic {
  public:
    /// RuntimeError when the file holds no sound.
    explicit WaveMusic(const std::filesystem::path& path);

    SoundBus bus() const override { return SoundBus::wave; }
    std::unique_ptr<SegmentSource> makeSource(const Playing& playing) override;

  private:
    std::shared_ptr<SoundData> sound_;
};

}  // namespace lyrebrook
