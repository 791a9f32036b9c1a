#include "platform/base/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

template <class Integer>
Integer narrow(double value) {
    const double rounded = roundHalfToEven(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    }
    return static_cast<Integer>(rounded);
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

double textToDouble(std::string_view text) {
    text = withoutBlanks(text);
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) throw RuntimeError(RuntimeErrorNumber::overflow, "Overflow");
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) {
        throw RuntimeError(RuntimeErrorNumber::typeMismatch, "Type mismatch");
    }
    return value;
}

}  // namespace

double roundHalfToEven(double value) noexcept {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5) return below;
    if (fraction > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) {
    return narrow<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return narrow<std::int32_t>(value);
}

std::int16_t textToInt16(std::string_view text) {
    return toInt16(textToDouble(text));
}

std::int32_t textToInt32(std::string_view text) {
    return toInt32(textToDouble(text));
}

}  // namespace lyrebrook
