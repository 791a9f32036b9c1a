#include "recorder/TakeTable.h"

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

void TakeTable::note(Stretch stretch) {
    stretches_[place(takeCount)] = stretch;
}

std::size_t TakeTable::place(std::int32_t take) {
    const auto place = static_cast<std::size_t>(take);
    if (place < std::tuple_size_v<decltype(stretches_)>) return place;
    throw RuntimeError(RuntimeErrorNumber::subscriptOutOfRange, "Subscript out of range");
}

}  // namespace lyrebrook
