#pragma once

#include "platform/music/MidiSong.h"
#include "platform/music/SegmentMusic.h"
#include "platform/music/Synthesizer.h"

#include <memory>

namespace lyrebrook {

/// A MIDI file's music. The instruments for its next playing are a synthesizer, which takes some 40 ms to make.
class MidiMusic final : public SegmentMusic {
  public:
    explicit MidiMusic(MidiSong song);

    SoundBus bus() const override { return SoundBus::softwareSynth; }
    bool instrumentsReady() const override { return synthesizer_ != nullptr; }
    void loadInstruments() override;
    void unloadInstruments() override { synthesizer_.reset(); }
    std::unique_ptr<SegmentSource> makeSource(const Playing& playing) override;

  private:
    std::shared_ptr<const MidiSong> song_;
    std::unique_ptr<Synthesizer> synthesizer_;
};

}  // namespace lyrebrook
