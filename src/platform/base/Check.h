#pragma once

namespace lyrebrook {

/// Ends the process after naming the broken condition on standard error.
[[noreturn]] void checkFailed(const char* condition, const char* file, int line) noexcept;

}  // namespace lyrebrook

/// An invariant of ours, tested in release builds too. For mistakes of the program, never for bad input.
#define CHECK(condition) \
    (static_cast<bool>(condition) ? void() : ::lyrebrook::checkFailed(#condition, __FILE__, __LINE__))
