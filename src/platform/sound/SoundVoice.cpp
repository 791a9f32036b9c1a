#include "platform/sound/SoundVoice.h"

#include "platform/sound/SourceVoice.h"
#include "platform/sound/mixing.h"

namespace lyrebrook {

SoundVoice::SoundVoice(std::shared_ptr<SoundEngine> engine, std::unique_ptr<SoundSource> source, SoundBus bus)
    : engine_(std::move(engine)), voice_(std::make_unique<SourceVoice>(std::move(source), bus)) {
    engine_->attach(*voice_);
}

SoundVoice::~SoundVoice() {
    engine_->detach(std::move(voice_));
}

void SoundVoice::start() {
    engine_->post({.unit = voice_.get(), .verb = Verb::start, .ticket = ++ticket_});
}

void SoundVoice::stop() {
    engine_->post({.unit = voice_.get(), .verb = Verb::stop, .ticket = ++ticket_});
}

void SoundVoice::setVolume(std::int32_t hundredthsOfDecibel) {
    engine_->post({.unit = voice_.get(), .verb = Verb::setGain, .gain = gainOf(hundredthsOfDecibel, 0)});
}

bool SoundVoice::endedAndCaptured() const {
    return ticket_ != 0 && voice_->endedTicket() == ticket_;
}

}  // namespace lyrebrook
