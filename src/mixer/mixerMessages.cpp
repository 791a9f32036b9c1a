#include "mixer/mixerMessages.h"

#include "mixer/mixerPanels.h"
#include "mixer/waveInput.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/Desktop.h"
#include "platform/winmm/mixerRecords.h"

namespace lyrebrook {

WindowProcedure gOldWindowProc = nullptr;

namespace {

constexpr std::int32_t headerBytes = sizeof(WAVEHDR);

/// The header at an address, which must be one of ours.
WAVEHDR& headerAt(LPARAM address) {
    const auto start = reinterpret_cast<LPARAM>(gInputHeaders.data());
    const LPARAM index = (address - start) / headerBytes;
    if (index < 0 || index >= static_cast<LPARAM>(gInputHeaders.size()))
        throw RuntimeError(RuntimeErrorNumber::subscriptOutOfRange, "Subscript out of range");
    return gInputHeaders[static_cast<std::size_t>(index)];
}

/// Reads a full buffer and hands it back to the input. One that can't be handed back drops out of the queue.
void recycle(WAVEHDR& header) {
    if (waveInUnprepareHeader(gWaveInHandle, header, headerBytes) != MMSYSERR_NOERROR) return;
    const InputPeaks peaks = getInputPeaks(header, gRecFormats.at(static_cast<std::size_t>(gRecFormatIndex)));
    gLeftLevel = peaks.left;
    gRightLevel = peaks.right;
    if (waveInPrepareHeader(gWaveInHandle, header, headerBytes) == MMSYSERR_NOERROR)
        waveInAddBuffer(gWaveInHandle, header, headerBytes);
}

}  // namespace

LRESULT mixerWindowProc(HWND window, std::int32_t message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case MM_WIM_CLOSE:
            gCapturing = false;
            break;
        case MM_WIM_DATA:
            if (!gCapturing) break;
            recycle(headerAt(lParam));
            refreshMixerControls(false);
            break;
        case MM_MIXM_LINE_CHANGE:
        case MM_MIXM_CONTROL_CHANGE:
            refreshMixerControls(false);
            break;
        default:
            break;
    }
    return CallWindowProcA(gOldWindowProc, window, message, wParam, lParam);
}

void closeWaveIn(HWAVEIN& handle) {
    waveInReset(handle);
    waveInClose(handle);
    handle = 0;
    desktop().waitWhile([] { return gCapturing; });
}

}  // namespace lyrebrook
