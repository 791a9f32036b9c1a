#pragma once

#include <QString>

namespace lyrebrook {

/// The short name of a line: what cards call their lines, in a hundred ways, becomes one small vocabulary by which the
/// presets know them. A name that says nothing known stays as it is.
QString changeLineName(const QString& lineName);

}  // namespace lyrebrook
