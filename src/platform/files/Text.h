#pragma once

#include <QString>

namespace lyrebrook {

/// The text without the blanks (U+0020 and nothing else) at its two ends.
QString trimBlanks(const QString& text);

}  // namespace lyrebrook
