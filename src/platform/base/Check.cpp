#include "platform/base/Check.h"

#include <cstdio>
#include <cstdlib>

namespace lyrebrook {

void checkFailed(const char* condition, const char* file, int line) noexcept {
    std::fprintf(stderr, "%s:%d: broken invariant: %s\n", file, line, condition);
    std::abort();
}

}  // namespace lyrebrook
