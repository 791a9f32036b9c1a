#include "recorder/waveLength.h"

#include <QFileInfo>
#include <algorithm>

#include "platform/sound/SoundFormat.h"
#include "shell/modConfig.h"

namespace lyrebrook {

std::int32_t getWaveLength(int track) {
    const qint64 bytes = QFileInfo(trackFilePath(track)).size() - headerBytes;
    return bytes > INT32_MAX ? 0 : static_cast<std::int32_t>(std::max<qint64>(bytes, 0));
}

}  // namespace lyrebrook
