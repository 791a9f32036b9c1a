#include "platform/music/DirectMusicSegment8.h"

#include "platform/music/SegmentMusic.h"

namespace lyrebrook {

void DirectMusicSegment8::Unload(const DirectMusicAudioPath8&) {
    music_->unloadInstruments();
}

}  // namespace lyrebrook
