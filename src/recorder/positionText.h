#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

/// Two digits of a value. Texts of any other length than 1 or 2 give nothing, so a position of 100 minutes or more
/// loses its minutes; "-5" stands as it is.
QString pZ(std::int16_t value);

/// Position of the form "00:00.00". RuntimeError `overflow` past 32767 minutes.
QString MMss(float seconds);

}  // namespace lyrebrook
