#pragma once

#include <memory>

#include "platform/sound/SoundEngine.h"

namespace lyrebrook {

/// While one of these is in scope, calls on buffers, captures and voices are held back; they land together on one frame
/// of the timeline when the outermost goes out of scope. The program's thread only.
class SoundTransaction {
  public:
    explicit SoundTransaction(std::shared_ptr<SoundEngine> engine) : engine_(std::move(engine)) {
        engine_->beginTransaction();
    }
    ~SoundTransaction() { engine_->endTransaction(); }
    SoundTransaction(const SoundTransaction&) = delete;
    SoundTransaction& operator=(const SoundTransaction&) = delete;

  private:
    std::shared_ptr<SoundEngine> engine_;
};

}  // namespace lyrebrook
