#include "platform/winmm/waveIn.h"

#include <map>
#include <memory>

#include "platform/base/RuntimeError.h"
#include "platform/winmm/WaveInput.h"
#include "platform/winmm/mixer.h"
#include "platform/winmm/recordText.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t allFormats = 0xFFF;
constexpr std::int32_t headerBytesPublished = sizeof(WAVEHDR);

std::map<HWAVEIN, std::unique_ptr<WaveInput>>& openInputs() {
    static std::map<HWAVEIN, std::unique_ptr<WaveInput>> inputs;
    return inputs;
}

WaveInput* openInput(HWAVEIN handle) {
    const auto found = openInputs().find(handle);
    return found == openInputs().end() ? nullptr : found->second.get();
}

/// The card's one input goes by the name of the card, the first mixer device.
std::vector<std::string> inputNames() {
    const auto card = mixerBackend();
    if (card == nullptr) return {};
    auto names = card->deviceNames();
    if (names.size() > 1) names.resize(1);
    return names;
}

bool isInput(std::int32_t device) {
    return (device == WAVE_MAPPER || device == 0) && !inputNames().empty();
}

MMRESULT checkHeader(HWAVEIN input, const WAVEHDR& header, std::int32_t size) {
    if (openInput(input) == nullptr) return MMSYSERR_INVALHANDLE;
    const bool wellFormed = size == headerBytesPublished && header.lpData != nullptr && header.dwBufferLength > 0;
    return wellFormed ? MMSYSERR_NOERROR : MMSYSERR_INVALPARAM;
}

}  // namespace

std::int32_t waveInGetNumDevs() {
    return static_cast<std::int32_t>(inputNames().size());
}

MMRESULT waveInGetDevCapsA(std::int32_t device, WAVEINCAPS& caps, std::int32_t size) {
    if (size != sizeof(WAVEINCAPS)) return MMSYSERR_INVALPARAM;
    if (!isInput(device)) return MMSYSERR_BADDEVICEID;
    caps = {};
    setText(caps.szPname, inputNames().front());
    caps.dwFormats = allFormats;
    caps.wChannels = 2;
    return MMSYSERR_NOERROR;
}

MMRESULT waveInOpen(HWAVEIN& input, const WaveInOpening& opening) {
    static HWAVEIN lastHandle = 0;
    const bool silent = opening.flags == 0;
    if (!silent && (opening.flags != CALLBACK_WINDOW || opening.window == nullptr)) return MMSYSERR_INVALFLAG;
    if (!isInput(opening.device)) return MMSYSERR_BADDEVICEID;
    if (!isWaveInFormat(opening.format)) return WAVERR_BADFORMAT;
    const MessagePost post = silent ? MessagePost([](const WindowMessage&) {}) : opening.window->post();
    try {
        openInputs()[lastHandle + 1] = std::make_unique<WaveInput>(lastHandle + 1, opening.format, post);
    } catch (const RuntimeError&) {
        openInputs().erase(lastHandle + 1);
        return MMSYSERR_NOMEM;
    }
    input = ++lastHandle;
    openInput(input)->tell(MM_WIM_OPEN);
    return MMSYSERR_NOERROR;
}

MMRESULT waveInClose(HWAVEIN input) {
    WaveInput* const open = openInput(input);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    if (!open->empty()) return WAVERR_STILLPLAYING;
    open->tell(MM_WIM_CLOSE);
    openInputs().erase(input);
    return MMSYSERR_NOERROR;
}

MMRESULT waveInPrepareHeader(HWAVEIN input, WAVEHDR& header, std::int32_t size) {
    const MMRESULT wrong = checkHeader(input, header, size);
    if (wrong != MMSYSERR_NOERROR) return wrong;
    header.dwFlags |= WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

MMRESULT waveInUnprepareHeader(HWAVEIN input, WAVEHDR& header, std::int32_t size) {
    const MMRESULT wrong = checkHeader(input, header, size);
    if (wrong != MMSYSERR_NOERROR) return wrong;
    if ((header.dwFlags & WHDR_INQUEUE) != 0) return WAVERR_STILLPLAYING;
    header.dwFlags &= ~WHDR_PREPARED;
    return MMSYSERR_NOERROR;
}

MMRESULT waveInAddBuffer(HWAVEIN input, WAVEHDR& header, std::int32_t size) {
    const MMRESULT wrong = checkHeader(input, header, size);
    if (wrong != MMSYSERR_NOERROR) return wrong;
    if ((header.dwFlags & WHDR_PREPARED) == 0) return WAVERR_UNPREPARED;
    if ((header.dwFlags & WHDR_INQUEUE) != 0) return WAVERR_STILLPLAYING;
    openInput(input)->add(header);
    return MMSYSERR_NOERROR;
}

MMRESULT waveInStart(HWAVEIN input) {
    WaveInput* const open = openInput(input);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    open->start();
    return MMSYSERR_NOERROR;
}

MMRESULT waveInStop(HWAVEIN input) {
    WaveInput* const open = openInput(input);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    open->stop();
    return MMSYSERR_NOERROR;
}

MMRESULT waveInReset(HWAVEIN input) {
    WaveInput* const open = openInput(input);
    if (open == nullptr) return MMSYSERR_INVALHANDLE;
    open->reset();
    return MMSYSERR_NOERROR;
}

}  // namespace lyrebrook
