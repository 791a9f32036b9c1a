#include "mixer/deviceLists.h"

#include "mixer/FrmVolumeMixer.h"
#include "mixer/modMixer.h"
#include "mixer/waveInput.h"

namespace lyrebrook {
namespace {

template <class Caps>
using ReadCaps = MMRESULT (*)(std::int32_t device, Caps& caps, std::int32_t size);

template <class Caps>
std::int32_t listDevices(ListBox& list, std::int32_t devices, ReadCaps<Caps> read) {
    for (std::int32_t device = 0; device < devices; ++device) {
        Caps caps;
        if (read(device, caps, sizeof caps) != MMSYSERR_NOERROR) return device;
        list.AddItem(QStringLiteral("Device #%1:    ").arg(device) + recordText(caps.szPname));
    }
    return devices;
}

QString textOf(const WaveFormatEntry& format) {
    return QStringLiteral("%1KHz %2bit ").arg(format.samplesPerSec / 1000).arg(format.bitsPerSample) +
           (format.channels == 1 ? QStringLiteral("Mono") : QStringLiteral("Stereo"));
}

}  // namespace

std::int32_t listMixerDevices() {
    return listDevices<MIXERCAPS>(frmVolumeMixer->lstMixerDevs, mixerGetNumDevs(), mixerGetDevCapsA);
}

std::int32_t listWaveInDevices() {
    return listDevices<WAVEINCAPS>(frmVolumeMixer->lstWaveInDevs, waveInGetNumDevs(), waveInGetDevCapsA);
}

std::int32_t listRecFormats() {
    if (!getWaveInFormats(gWaveInDeviceID, gRecFormatCount, gRecFormats)) return 0;
    for (const WaveFormatEntry& format : gRecFormats) frmVolumeMixer->lstRecFormats.AddItem(textOf(format));
    return gRecFormatCount;
}

}  // namespace lyrebrook
