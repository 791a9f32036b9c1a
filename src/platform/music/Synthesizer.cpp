#include "platform/music/Synthesizer.h"

#include "platform/base/RuntimeError.h"
#include "platform/music/FluidSynthSetup.h"

#include <fluidsynth.h>

namespace lyrebrook {
namespace {

constexpr int midiChannels = 16;
constexpr int drumChannel = 9;

enum Controller : int { sustainPedal = 64, sostenutoPedal = 66 };

}  // namespace

void Synthesizer::Deleter::operator()(fluid_settings_t* settings) const {
    delete_fluid_settings(settings);
}

void Synthesizer::Deleter::operator()(fluid_synth_t* synth) const {
    delete_fluid_synth(synth);
}

Synthesizer::Synthesizer(const std::filesystem::path& soundFont)
    : settings_(makeRealTimeSettings()), synth_(new_fluid_synth(settings_.get())) {
    if (!synth_ || fluid_synth_sfload(synth_.get(), soundFont.c_str(), 1) == FLUID_FAILED) {
        throw RuntimeError(RuntimeErrorNumber::deviceInputOutput,
                           "The SoundFont \"" + soundFont.string() + "\" can't be read.");
    }
    // Drums sound at the pitch at which they were sampled, where a straight line between samples is as good.
    fluid_synth_set_interp_method(synth_.get(), drumChannel, FLUID_INTERP_LINEAR);
}

void Synthesizer::play(const MidiSong& song, const MidiEvent& event) noexcept {
    fluid_synth_t* synth = synth_.get();
    const int channel = event.status & 0x0F;
    const int first = event.first;
    const int second = event.second;
    switch (event.status & 0xF0) {
        case 0x80:
            fluid_synth_noteoff(synth, channel, first);
            break;
        case 0x90:
            fluid_synth_noteon(synth, channel, first, second);
            break;
        case 0xA0:
            fluid_synth_key_pressure(synth, channel, first, second);
            break;
        case 0xB0:
            fluid_synth_cc(synth, channel, first, second);
            break;
        case 0xC0:
            fluid_synth_program_change(synth, channel, first);
            break;
        case 0xD0:
            fluid_synth_channel_pressure(synth, channel, first);
            break;
        case 0xE0:
            fluid_synth_pitch_bend(synth, channel, second << 7 | first);
            break;
        default:
            const auto message = song.exclusiveOf(event);
            fluid_synth_sysex(synth, reinterpret_cast<const char*>(message.data()), static_cast<int>(message.size()),
                              nullptr, nullptr, nullptr, 0);
    }
}

void Synthesizer::releaseKeys() noexcept {
    for (int channel = 0; channel < midiChannels; ++channel) {
        fluid_synth_cc(synth_.get(), channel, sustainPedal, 0);
        fluid_synth_cc(synth_.get(), channel, sostenutoPedal, 0);
        fluid_synth_all_notes_off(synth_.get(), channel);
    }
}

void Synthesizer::render(Block& block) noexcept {
    fluid_synth_write_float(synth_.get(), blockFrames, block.data(), 0, 2, block.data(), 1, 2);
}

}  // namespace lyrebrook
