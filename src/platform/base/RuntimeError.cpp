#include "platform/base/RuntimeError.h"

namespace lyrebrook {

RuntimeError::RuntimeError(RuntimeErrorNumber number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

}  // namespace lyrebrook
