#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace lyrebrook {

/// Walks through bytes that may lie or end too soon: what isn't there is nothing, never a read beyond the end.
class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool atEnd() const { return bytes_.empty(); }

    std::optional<std::uint8_t> peek() const { return atEnd() ? std::nullopt : std::optional(bytes_.front()); }

    std::optional<std::uint8_t> byte() {
        const auto value = peek();
        if (value) bytes_ = bytes_.subspan(1);
        return value;
    }

    /// The next bytes, fewer when fewer are left.
    std::span<const std::uint8_t> upTo(std::size_t count) {
        const auto taken = bytes_.first(std::min(count, bytes_.size()));
        bytes_ = bytes_.subspan(taken.size());
        return taken;
    }

    std::optional<std::uint32_t> bigEndian(std::size_t count) {
        if (bytes_.size() < count) return std::nullopt;
        std::uint32_t value = 0;
        for (const std::uint8_t each : upTo(count)) value = value << 8U | each;
        return value;
    }

    std::optional<std::uint32_t> littleEndian32() {
        const auto value = bigEndian(4);
        return value ? std::optional(__builtin_bswap32(*value)) : std::nullopt;
    }

    /// Seven bits to the byte, the last one without its top bit; at most four bytes.
    std::optional<std::uint32_t> variableLength() {
        std::uint32_t value = 0;
        for (int count = 0; count < 4; ++count) {
            const auto next = byte();
            if (!next) return std::nullopt;
            value = value << 7U | (*next & 0x7FU);
            if (*next < 0x80) return value;
        }
        return std::nullopt;
    }

    /// Steps over `name` if the next bytes are its letters.
    bool takeName(std::string_view name) {
        if (bytes_.size() < name.size() || !std::equal(name.begin(), name.end(), bytes_.begin())) return false;
        bytes_ = bytes_.subspan(name.size());
        return true;
    }

  private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace lyrebrook
