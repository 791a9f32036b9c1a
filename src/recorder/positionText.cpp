#include "recorder/positionText.h"

#include <cmath>

#include "platform/base/Numbers.h"

namespace lyrebrook {

QString pZ(std::int16_t value) {
    QString digits = QString::number(value);
    switch (digits.size()) {
        case 1:
            return u'0' + digits;
        case 2:
            return digits;
        default:
            return {};
    }
}

QString MMss(float seconds) {
    const std::int16_t minutes = toInt16(std::floor(seconds / 60.0F));
    const std::int16_t secs = toInt16(std::floor(seconds - static_cast<float>(minutes * 60)));
    const float rest = seconds - static_cast<float>(minutes * 60) - static_cast<float>(secs);
    const std::int16_t hundredths = toInt16(std::floor(rest * 100.0F));
    return pZ(minutes) + u':' + pZ(secs) + u'.' + pZ(hundredths);
}

}  // namespace lyrebrook
