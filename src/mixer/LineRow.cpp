#include "mixer/LineRow.h"

#include "mixer/levelColumn.h"
#include "platform/base/Numbers.h"

namespace lyrebrook {
namespace {

constexpr Twips gap = 5;

template <class T>
T& showIn(Frame& panel, ControlArray<T>& array, int index) {
    T& element = array.load(index);
    element.setContainer(panel);
    element.setVisible(true);
    return element;
}

double pixels(Twips length) {
    return length / twipsPerPixel;
}

}  // namespace

void LineRow::add(int index, const QString& lineName) const {
    Frame& panel = panels.load(index);
    panel.setVisible(true);
    if (index > 0) {
        const Frame& before = panels[index - 1];
        panel.Move(before.Left() + before.Width() + gap, before.Top());
        strip.setWidth(strip.Width() + panelWidth + gap);
    }
    showIn(panel, volumes, index).setValue(newVolume);
    showIn(panel, percents, index);
    showIn(panel, choices, index);
    showIn(panel, balances, index);
    showIn(panel, sides, index);
    showIn(panel, lineIds, index).setVisible(false);
    setName(index, lineName);
}

void LineRow::setName(int index, const QString& lineName) const {
    panels[index].setCaption(lineName);
    volumes[index].setAccessibleName(lineName + QStringLiteral(" volume"));
    percents[index].setAccessibleName(lineName + QStringLiteral(" volume in percent"));
    balances[index].setAccessibleName(lineName + QStringLiteral(" balance"));
    choices[index].setAccessibleName(lineName + u' ' + choices[index].Caption());
}

void LineRow::showPercent(int index) const {
    const Slider& volume = volumes[index];
    percents[index].setText(percentText(volume.Value(), volume.Min(), volume.Max()));
}

void LineRow::layScrollBars() const {
    viewport.setScaleMode(ScaleMode::pixels);
    strip.setBorder(false);
    across.Move(viewport.Left(), viewport.Top() + viewport.Height());
    across.setWidth(viewport.Width());
    down.Move(viewport.Left() + viewport.Width(), viewport.Top());
    down.setHeight(viewport.Height());
    across.setMax(toInt16(pixels(strip.Width() - viewport.Width())));
    down.setMax(toInt16(pixels(strip.Height())));
    across.setVisible(true);
    down.setVisible(false);
}

}  // namespace lyrebrook
