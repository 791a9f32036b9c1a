#include "recorder/SoundNotice.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/sound/DirectSoundCaptureBuffer8.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t longestSilence = 2 * bytesPerSecond;
constexpr std::chrono::seconds shown{5};

QString lossOf(CardNotice card) {
    switch (card) {
        case CardNotice::outputLost:
            return QStringLiteral("The sound card is gone. What was recorded is kept.");
        case CardNotice::inputLost:
            return QStringLiteral("The recording source is gone. What was recorded is kept.");
        case CardNotice::none:
            break;
    }
    return {};
}

QString returnOf(CardNotice lost) {
    return lost == CardNotice::outputLost ? QStringLiteral("The sound card is back.")
                                          : QStringLiteral("The recording source is back.");
}

/// Exact zeros; whatever passes a microphone trembles.
bool isSilent(const DirectSoundCaptureBuffer8& capture, std::int32_t from, std::int32_t to) {
    std::array<std::byte, 4096> block{};
    while (from < to) {
        const std::int32_t size = std::min(to - from, static_cast<std::int32_t>(block.size()));
        capture.ReadBuffer(from, size, block, 0);
        const auto read = std::span{block}.first(static_cast<std::size_t>(size));
        if (!std::ranges::all_of(read, [](std::byte byte) { return byte == std::byte{0}; })) return false;
        from += size;
    }
    return true;
}

}  // namespace

void SoundNotice::look(CardNotice card, const DirectSoundCaptureBuffer8* recording, Moment now) {
    seeCard(card, now);
    seeLosses(recording, now);
    listen(recording);
}

void SoundNotice::seeCard(CardNotice card, Moment now) {
    const CardNotice before = std::exchange(card_, card);
    if (before == card || card != CardNotice::none) return;
    back_ = returnOf(before);
    backSince_ = now;
}

bool SoundNotice::tellsOfCard(Moment now) const {
    return card_ != CardNotice::none || (!back_.isEmpty() && now - backSince_ < shown);
}

/// A card that was away explains what is missing.
void SoundNotice::seeLosses(const DirectSoundCaptureBuffer8* recording, Moment now) {
    const Frames missed = recording == nullptr ? 0 : recording->missed();
    if (missed > missed_ && !tellsOfCard(now)) missedSince_ = now;
    missed_ = missed;
}

void SoundNotice::listen(const DirectSoundCaptureBuffer8* recording) {
    DSCURSORS cursors;
    if (recording != nullptr) recording->GetCurrentPosition(cursors);
    if (recording == nullptr || cursors.lWrite < heardUpTo_) heardUpTo_ = silentBytes_ = 0;
    const std::int32_t arrived = cursors.lWrite - heardUpTo_;
    if (arrived == 0) return;
    silentBytes_ = isSilent(*recording, heardUpTo_, cursors.lWrite) ? silentBytes_ + arrived : 0;
    heardUpTo_ = cursors.lWrite;
}

QString SoundNotice::text(Moment now) const {
    if (card_ != CardNotice::none) return lossOf(card_);
    if (tellsOfCard(now)) return back_;
    if (missedSince_ && now - *missedSince_ < shown) {
        return QStringLiteral("A piece of sound was lost. The computer was too busy.");
    }
    if (silentBytes_ < longestSilence) return {};
    return QStringLiteral("No sound is arriving from the recording source.");
}

}  // namespace lyrebrook
