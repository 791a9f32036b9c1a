#include "recorder/Transport.h"

#include <utility>

#include "platform/sound/SoundFormat.h"
#include "recorder/positionText.h"

namespace lyrebrook {

void Transport::begin(std::int32_t cursor) {
    startGrace_ = startGrace_ || cursor == 0;
    playing = true;
}

void Transport::read(std::int32_t musicCursor) {
    playPos_ = musicCursor;
    if (std::exchange(startGrace_, false)) return;
    if (playPos_ == 0) playing = false;
}

QString timeText(std::int32_t position, std::int32_t songBytes) {
    if (songBytes == 0) return MMss(0);
    const float song = static_cast<float>(songBytes);
    return MMss(song / static_cast<float>(bytesPerSecond) * static_cast<float>(position) / song);
}

}  // namespace lyrebrook
