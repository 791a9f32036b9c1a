#include "mixer/lineNames.h"

#include <array>

namespace lyrebrook {
namespace {

struct Rule {
    QLatin1StringView contains;
    QLatin1StringView orContains;  // empty when there is no second word
    QLatin1StringView shortName;
};

using namespace Qt::Literals::StringLiterals;

/// Tried in this order; the first hit decides.
constexpr std::array<Rule, 14> rules{{
    {"Wave"_L1, "WAVE"_L1, "Wave"_L1},
    {"CD"_L1, "cd"_L1, "CD"_L1},
    {"Mic"_L1, "MIC"_L1, "Mic"_L1},
    {"Line In"_L1, "LINE"_L1, "Line"_L1},
    {"Mono"_L1, "MONO"_L1, "Mono"_L1},
    {"SW Synth"_L1, "SYNTH"_L1, "Synth"_L1},
    {"Midi"_L1, "MIDI"_L1, "Midi"_L1},
    {"Aux"_L1, "AUX"_L1, "Aux"_L1},
    {"Video"_L1, "VIDEO"_L1, "Video"_L1},
    {"Phone"_L1, "PHONE"_L1, "Phone"_L1},
    {"Analog"_L1, "ANALOG"_L1, "Analog/Mon"_L1},
    {"S/PDIF"_L1, {}, "S/PDIF"_L1},
    {"PC Speaker"_L1, "SPEAKER"_L1, "PC Speak"_L1},
    {"Recording Control"_L1, "RECORDING"_L1, "Master"_L1},
}};

bool holdsFor(const Rule& rule, const QString& name) {
    return name.contains(rule.contains) || (!rule.orContains.isEmpty() && name.contains(rule.orContains));
}

}  // namespace

QString changeLineName(const QString& lineName) {
    for (const Rule& rule : rules) {
        if (!holdsFor(rule, lineName)) continue;
        const bool isStereoAnalog = rule.shortName == "Analog/Mon"_L1 && lineName.contains("Ster"_L1);
        return isStereoAnalog ? u"Analog/Ster"_s : QString(rule.shortName);
    }
    return lineName;
}

}  // namespace lyrebrook
