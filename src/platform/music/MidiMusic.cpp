#include "platform/music/MidiMusic.h"

#include "platform/music/MidiSource.h"
#include "platform/music/SoundFont.h"

namespace lyrebrook {

MidiMusic::MidiMusic(MidiSong song) : song_(std::make_shared<const MidiSong>(std::move(song))) {}

void MidiMusic::loadInstruments() {
    if (!synthesizer_) synthesizer_ = std::make_unique<Synthesizer>(loadedSoundFont());
}

std::unique_ptr<SegmentSource> MidiMusic::makeSource(const Playing& playing) {
    return std::make_unique<MidiSource>(song_, std::move(synthesizer_), playing);
}

}  // namespace lyrebrook
