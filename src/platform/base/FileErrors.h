#pragma once

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

/// The run-time error with the number and the words that the product has for it, "Disk full" for `diskFull`.
RuntimeError fileError(RuntimeErrorNumber number);

/// The run-time error for an `errno` of a file call. A missing name becomes "Path not found": the callers for which the
/// file itself must exist say `fileNotFound` on their own.
RuntimeError fileErrorOf(int errorNumber);

}  // namespace lyrebrook
