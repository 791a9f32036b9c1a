#include "platform/sound/cards/PulseCard.h"

#include "platform/sound/cards/pulse/CardLoop.h"
#include "platform/sound/cards/pulse/CardShare.h"
#include "platform/sound/cards/pulse/MixerConnection.h"
#include "platform/sound/cards/pulse/PulseMixer.h"

namespace lyrebrook {

PulseCard::PulseCard() : share_(std::make_shared<CardShare>()), loop_(std::make_unique<CardLoop>(*share_)) {}

PulseCard::~PulseCard() {
    stop();
}

bool PulseCard::reachServer(std::chrono::milliseconds limit) {
    return loop_->reachServer(limit);
}

void PulseCard::start(SoundCardClient& client) {
    loop_->begin(client);
    thread_ = std::jthread([this](const std::stop_token& stopping) { loop_->run(stopping); });
}

void PulseCard::stop() {
    if (!thread_.joinable()) return;
    thread_.request_stop();
    loop_->wake();
    thread_.join();
    loop_->end();
}

void PulseCard::openInput() {
    share_->inputWanted.store(true);
    loop_->wake();
}

void PulseCard::closeInput() {
    share_->inputWanted.store(false);
}

std::int32_t PulseCard::outputCount() const {
    return share_->outputs.load();
}

void PulseCard::holdSource() {
    share_->source.holdStill();
}

void PulseCard::releaseSource() {
    if (share_->source.letGo()) share_->buses.tellWatchers();
}

/// Mixers that are open at the same time share a connection, which goes with the last of them.
std::shared_ptr<MixerBackend> PulseCard::mixer() {
    auto connection = mixerConnection_.lock();
    if (connection == nullptr) connection = std::make_shared<MixerConnection>();
    mixerConnection_ = connection;
    return std::make_shared<PulseMixer>(connection, std::shared_ptr<CardLines>(share_, &share_->buses), share_);
}

void PulseCard::selectSource(const RecordingSource& source) {
    share_->source.choose(source);
    loop_->wake();
}

CardNotice PulseCard::notice() const {
    return share_->notice.load();
}

std::uint32_t PulseCard::underruns() const {
    return share_->underruns.load();
}

Frames PulseCard::lostInput() const {
    return share_->lostInput.load();
}

}  // namespace lyrebrook
