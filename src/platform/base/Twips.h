#pragma once

namespace lyrebrook {

/// A length on a screen or on paper: 1440 to the inch. Fractions are kept: a bar's width is computed.
using Twips = double;

inline constexpr Twips twipsPerInch = 1440;

}  // namespace lyrebrook
