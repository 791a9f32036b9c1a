#pragma once

#include <cstdint>

namespace lyrebrook {

/// Kinds of a mixer's lines, by their published numbers.
inline constexpr std::int32_t speakersKind = 4;
inline constexpr std::int32_t waveInKind = 7;
inline constexpr std::int32_t lineInKind = 0x1002;
inline constexpr std::int32_t microphoneKind = 0x1003;
inline constexpr std::int32_t synthesizerKind = 0x1004;
inline constexpr std::int32_t compactDiscKind = 0x1005;
inline constexpr std::int32_t waveOutKind = 0x1008;
inline constexpr std::int32_t auxiliaryKind = 0x1009;
inline constexpr std::int32_t analogKind = 0x100A;

/// Number of a destination, the low word of its lines' IDs.
inline constexpr std::uint16_t speakersNumber = 0;
inline constexpr std::uint16_t waveInNumber = 1;

constexpr std::uint16_t destinationOf(std::int32_t line) {
    return static_cast<std::uint16_t>(line);
}
constexpr std::uint16_t sourceOf(std::int32_t line) {
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(line) >> 16);
}

}  // namespace lyrebrook
