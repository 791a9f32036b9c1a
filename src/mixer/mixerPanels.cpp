#include "mixer/mixerPanels.h"

#include <algorithm>

#include "mixer/FrmVolumeMixer.h"
#include "mixer/levelColumn.h"
#include "mixer/levelMeters.h"
#include "mixer/lineNames.h"
#include "mixer/modMixer.h"
#include "mixer/waveInput.h"
#include "platform/base/Numbers.h"

namespace lyrebrook {
namespace {

/// Puts a line into its place of a table, its ID in the hidden box.
void enterLine(LineTable table, ControlArray<TextBox>& lineIds, int place, std::int32_t id) {
    table.ids.at(static_cast<std::size_t>(place)) = id;
    lineIds[place].setText(QString::number(id));
}

void nameMaster(const LineRow& row) {
    row.setName(0, QStringLiteral("Master"));
    row.panels[0].setForeColor(red);
    row.panels[0].setFontBold(true);
}

/// A refresh under way. The volume of a line that has none is still that of the line before.
struct Refresh {
    bool force = false;
    LineVolume volume;
};

/// Range, and steps for the keyboard that fit it.
void setRange(Slider& slider, std::int32_t min, std::int32_t max) {
    slider.setMin(min);
    slider.setMax(max);
    const auto stepsOf = [&](int parts) {
        return static_cast<std::int32_t>(std::max(1.0, std::abs(static_cast<double>(max) - min) / parts));
    };
    slider.setSmallChange(stepsOf(50));
    slider.setLargeChange(stepsOf(10));
    slider.setTickFrequency(stepsOf(10));
}

void setShown(Slider& slider, std::int32_t value) {
    const SettingControl setting;
    slider.setValue(value);
}

bool shows(const Slider& slider, std::int32_t min, std::int32_t max, std::int32_t value) {
    return slider.Min() == min && slider.Max() == max && slider.Value() == value;
}

void refreshVolume(const LineRow& row, int i, std::int32_t id, Refresh& refresh) {
    Slider& slider = row.volumes[i];
    if (!getLineVolume(gMixerHandle, id, refresh.volume)) return slider.setEnabled(false);
    const auto& [max, min, val] = refresh.volume;
    const std::int32_t place = turnedOver(val, min, max);
    if (!refresh.force && shows(slider, min, max, place)) return;
    setRange(slider, min, max);
    setShown(slider, place);
    row.showPercent(i);
}

std::int32_t negative(std::int32_t value) {
    return toInt32(-static_cast<double>(value));
}

std::int32_t rangeOf(const LineVolume& volume) {
    return toInt32(static_cast<double>(volume.max) - volume.min);
}

using ReadChoice = bool (*)(HMIXER mixer, std::int32_t line, bool& flag);

void refreshChoice(CheckBox& box, std::int32_t id, ReadChoice read, bool force) {
    bool flag = false;
    if (!read(gMixerHandle, id, flag)) return box.setEnabled(false);
    if (!force && (box.Value() == 1) == flag) return;
    const SettingControl setting;
    box.setValue(flag ? 1 : 0);
}

void refreshBalance(Slider& slider, std::int32_t id, const Refresh& refresh) {
    std::int32_t balance = 0;
    if (!getLineBalance(gMixerHandle, id, balance)) return slider.setEnabled(false);
    const std::int32_t reach = refresh.volume.val;
    if (!refresh.force && shows(slider, negative(reach), reach, balance)) return;
    const std::int32_t limit = reach != 0 ? reach : rangeOf(refresh.volume);
    setRange(slider, negative(limit), limit);
    setShown(slider, balance);
}

void refreshRow(const LineRow& row, LineTable table, ReadChoice readChoice, Refresh& refresh) {
    const int lines = std::min(table.count, row.panels.Count());  // the table may be of an earlier opening
    for (int i = 0; i < lines; ++i) {
        const std::int32_t id = table.ids[static_cast<std::size_t>(i)];
        refreshVolume(row, i, id, refresh);
        refreshChoice(row.choices[i], id, readChoice, refresh.force);
        refreshBalance(row.balances[i], id, refresh);
    }
}

}  // namespace

void fillLineIDs(HMIXER mixer, std::int32_t componentType, const LineRow& row, LineTable table) {
    table.count = 0;
    MIXERLINE destination;
    if (!getDestination(mixer, componentType, destination)) return;
    const bool isFirst = isFirstDestination(destination);
    const auto sources = usableSources(mixer, destination);
    const int lines = static_cast<int>(sources.size()) + (isFirst ? 1 : 0);
    table.count = std::min(lines, row.panels.Count());
    for (int i = table.count; i < row.panels.Count(); ++i) row.panels[i].setVisible(false);
    table.ids.assign(static_cast<std::size_t>(table.count), 0);
    auto& lineIds = isFirst ? frmVolumeMixer->txtPlaybackLineID : frmVolumeMixer->txtRecordLineID;
    int place = 0;
    if (isFirst) {
        enterLine(table, lineIds, place++, destination.dwLineID);
        nameMaster(row);
    }
    for (const MIXERLINE& source : sources) {
        if (place >= table.count) break;
        enterLine(table, lineIds, place, source.dwLineID);
        row.setName(place++, changeLineName(recordText(source.szShortName)));
    }
}

void loadMixerLines(HMIXER mixer, LineTable playback, LineTable recording) {
    fillLineIDs(mixer, MIXERLINE_COMPONENTTYPE_DST_SPEAKERS, frmVolumeMixer->playbackRow(), playback);
    fillLineIDs(mixer, MIXERLINE_COMPONENTTYPE_DST_WAVEIN, frmVolumeMixer->recordingRow(), recording);
    refreshMixerControls(true);
}

void refreshMixerControls(bool force) {
    Refresh refresh{.force = force, .volume = {}};
    refreshRow(frmVolumeMixer->playbackRow(), {gPlaybackLineCount, gPlaybackLineIDs}, getLineMute, refresh);
    refreshRow(frmVolumeMixer->recordingRow(), {gRecordLineCount, gRecordLineIDs}, getLineSelected, refresh);
    if (!gCapturing) return;
    updateVUMeters(gLeftLevel, gRightLevel, fullScaleOf(gRecFormats.at(static_cast<std::size_t>(gRecFormatIndex))));
}

}  // namespace lyrebrook
