#pragma once

#include "platform/music/MidiSong.h"
#include "platform/music/PeakLimiter.h"

#include <fluidsynth/types.h>

#include <cstddef>
#include <filesystem>
#include <memory>

namespace lyrebrook {

/// A General MIDI synthesizer at 44100 Hz with the instruments of one SoundFont. Made and destroyed on the form's
/// thread; the rest is for one thread at a time, usually the card's, and neither blocks nor allocates there.
class Synthesizer {
  public:
    /// Notes begin and end at the start of a block.
    static constexpr std::size_t blockFrames = PeakLimiter::blockFrames;
    using Block = PeakLimiter::Block;

    /// RuntimeError when the file isn't a SoundFont.
    explicit Synthesizer(const std::filesystem::path& soundFont);

    void play(const MidiSong& song, const MidiEvent& event) noexcept;

    /// Lets go of all keys and pedals.
    void releaseKeys() noexcept;

    /// The next block, interleaved.
    void render(Block& block) noexcept;

  private:
    struct Deleter {
        void operator()(fluid_settings_t* settings) const;
        void operator()(fluid_synth_t* synth) const;
    };

    std::unique_ptr<fluid_settings_t, Deleter> settings_;  // outlives the synthesizer
    std::unique_ptr<fluid_synth_t, Deleter> synth_;
};

}  // namespace lyrebrook
