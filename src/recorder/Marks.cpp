#include "recorder/Marks.h"

namespace lyrebrook {

bool Marks::toggleIn(float position) {
    if (punchOutSet && punchOut <= static_cast<double>(position)) return false;
    punchInSet = !punchInSet;
    punchIn = punchInSet ? static_cast<double>(position) : 0;
    return true;
}

bool Marks::toggleOut(float position) {
    if (punchInSet && static_cast<double>(position) <= punchIn) return false;
    punchOutSet = !punchOutSet;
    punchOut = punchOutSet ? static_cast<double>(position) : songEnd;
    return true;
}

bool Marks::toggleRepeat() {
    if (!repeatOn && !(punchInSet && punchOutSet)) return false;
    repeatOn = !repeatOn;
    return true;
}

}  // namespace lyrebrook
