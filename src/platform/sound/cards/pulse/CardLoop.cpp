#include "platform/sound/cards/pulse/CardLoop.h"

#include <algorithm>

#include "platform/base/Check.h"
#include "platform/sound/cards/pulse/CardShare.h"
#include "platform/sound/cards/pulse/realTime.h"

namespace lyrebrook {
namespace {

constexpr std::chrono::milliseconds longestTurn{10};

/// A recording often follows a meter, and an open input is one that has woken up.
constexpr std::chrono::seconds keptOpen{5};

/// A person is told of what lasts.
constexpr std::chrono::milliseconds patience{1000};

}  // namespace

CardLoop::CardLoop(CardShare& share)
    : share_(share), loop_(pa_mainloop_new()), server_(*loop_), output_(mixer_), input_(output_) {
    CHECK(loop_ != nullptr);
}

bool CardLoop::reachServer(std::chrono::milliseconds limit) {
    const CardMoment end = CardClock::now() + limit;
    server_.keepUp(CardClock::now());
    while (!server_.ready() && !server_.failed() && CardClock::now() < end) turn(longestTurn);
    share_.outputs.store(server_.outputs());
    return server_.ready();
}

void CardLoop::begin(SoundCardClient& client) {
    const CardMoment now = CardClock::now();
    client_ = &client;
    mixer_.begin(client, share_.buses);
    output_.begin(now);
    lastHeard_ = now;
    lastArrived_ = now;
}

void CardLoop::run(const std::stop_token& stopping) {
    goBeforeOthers();
    while (!stopping.stop_requested()) {
        keepUp(CardClock::now());
        turn(longestTurn);
    }
}

void CardLoop::end() {
    input_.close();
    output_.close();
    server_.close();
}

void CardLoop::turn(std::chrono::milliseconds longestWait) {
    const auto microseconds = std::chrono::microseconds(longestWait).count();
    if (pa_mainloop_prepare(loop_.get(), static_cast<int>(microseconds)) < 0) return;
    if (pa_mainloop_poll(loop_.get()) < 0) return;
    pa_mainloop_dispatch(loop_.get());
}

void CardLoop::keepUp(CardMoment now) {
    takeOrders(now);
    if (server_.keepUp(now)) {
        input_.close();
        output_.close();
    }
    pa_context* const server = server_.ready() ? server_.context() : nullptr;
    output_.keepUp(server, now);
    if (server != nullptr) input_.keepUp(*server, inputWanted(now), now, *client_);
    tellSounded(now);
    report(now);
}

void CardLoop::takeOrders(CardMoment now) {
    if (const auto chosen = share_.source.takeNews()) {
        kind_ = chosen->kind;
        input_.select(*chosen);
    }
    const bool wanted = share_.inputWanted.load();
    if (wanted && !wanted_) wantedSince_ = now;
    if (wanted) lastWanted_ = now;
    wanted_ = wanted;
    mixer_.captureOwnSound(wanted && kind_ == RecordingSource::Kind::ownOutput);
}

bool CardLoop::inputWanted(CardMoment now) const {
    return wanted_ || (lastWanted_ != CardMoment{} && now - lastWanted_ < keptOpen);
}

void CardLoop::tellSounded(CardMoment now) {
    const auto sounding = static_cast<Frames>(output_.soundingAt(now));
    sounded_ = std::max(sounded_, std::min(sounding, mixer_.mixed()));
    client_->framesSounded(sounded_);
}

void CardLoop::report(CardMoment now) {
    if (output_.streaming() || output_.wakingUp(now)) lastHeard_ = now;
    const bool mayBeSilent = !inputWanted(now) || kind_ == RecordingSource::Kind::ownOutput || !output_.streaming();
    if (mayBeSilent || input_.arriving(now)) lastArrived_ = now;
    share_.outputs.store(server_.outputs());
    share_.underruns.store(output_.underruns());
    share_.lostInput.store(input_.lost());
    share_.notice.store(currentNotice(now));
}

CardNotice CardLoop::currentNotice(CardMoment now) const {
    if (now - lastHeard_ > patience) return CardNotice::outputLost;
    if (now - lastArrived_ > patience) return CardNotice::inputLost;
    return CardNotice::none;
}

}  // namespace lyrebrook
