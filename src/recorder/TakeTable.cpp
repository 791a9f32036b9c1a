#include "recorder/TakeTable.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

void TakeTable::note(Stretch stretch) {
    const auto place = static_cast<std::size_t>(takeCount);
    if (place >= stretches_.size())
        throw RuntimeError(RuntimeErrorNumber::subscriptOutOfRange, "Subscript out of range");
    stretches_[place] = stretch;
}

}  // namespace lyrebrook
