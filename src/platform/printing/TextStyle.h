#pragma once

#include <QString>
#include <cstdint>

namespace lyrebrook {

/// What a text box and a printer agree on about letters. A name that this machine doesn't have stands for the family
/// that comes nearest.
struct Font {
    QString Name;
    bool Bold = false;
    std::int16_t Charset = 1;  ///< only handed on: texts are Unicode, and each letter finds a font that has it
    bool Italic = false;
    double Size = 10;  ///< points
    bool Strikethrough = false;
    bool Underline = false;
    std::int16_t Weight = 400;  ///< 100 to 900; has the last word over `Bold`

    bool operator==(const Font&) const = default;
};

enum class TextAlignment : std::int16_t { left = 0, right = 1, centre = 2 };

}  // namespace lyrebrook
