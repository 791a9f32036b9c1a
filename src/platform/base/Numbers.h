#pragma once

#include <cstdint>
#include <string_view>

namespace lyrebrook {

/// Nearest integer, ties to even, whatever the process's rounding mode.
double roundHalfToEven(double value) noexcept;

/// `value` rounded half to even. RuntimeError `overflow` when the result, or a NaN, does not fit.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// The number at the start of a text: blanks, a sign, digits, a fraction, an exponent; all of the text must be one
/// number. RuntimeError `typeMismatch` otherwise, `overflow` when it does not fit.
std::int16_t textToInt16(std::string_view text);
std::int32_t textToInt32(std::string_view text);

}  // namespace lyrebrook
