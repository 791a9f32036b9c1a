#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace lyrebrook {

/// Text of a record's field, up to its end or the first zero byte.
template <std::size_t N>
std::string_view textOf(const std::array<char, N>& field) {
    return {field.data(), static_cast<std::size_t>(std::ranges::find(field, '\0') - field.begin())};
}

/// Puts UTF-8 text into a field that has to end in a zero byte; what doesn't fit is cut between characters.
template <std::size_t N>
void setText(std::array<char, N>& field, std::string_view text) {
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    std::size_t length = std::min(text.size(), N - 1);
    while (length > 0 && length < text.size() && continues(text[length])) --length;
    field.fill('\0');
    std::ranges::copy(text.substr(0, length), field.begin());
}

}  // namespace lyrebrook
