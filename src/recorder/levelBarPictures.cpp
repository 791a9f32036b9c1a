#include "recorder/levelBarPictures.h"

#include <QHBoxLayout>
#include <QPainter>

#include "platform/forms/Frame.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/Theme.h"
#include "recorder/LevelBars.h"

namespace lyrebrook {
namespace {

constexpr int barHeight = 18;
constexpr int gap = 4;
constexpr int wellWidth = static_cast<int>(LevelBars::fullWidth / twipsPerPixel);

void paintBar(QPainter& painter, const QRectF& area) {
    QLinearGradient colours(0, 0, wellWidth, 0);
    colours.setColorAt(0, theme::lightDone.darker(140));
    colours.setColorAt(0.6, theme::lightDone);
    colours.setColorAt(0.8, theme::accent);
    colours.setColorAt(1, theme::danger);
    painter.fillRect(area, colours);
    painter.setPen(theme::well);
    for (int x = 4; x < area.width(); x += 5) painter.drawLine(x, 0, x, static_cast<int>(area.height()));
}

void place(PictureBox& bar, QWidget* well, int top) {
    bar.setContainer(well);
    bar.setPainting(paintBar);
    bar.setToolTipText(QStringLiteral("Recording levels"));
    bar.Move(0, toTwips(top), LevelBars::restWidth, toTwips(barHeight));
}

}  // namespace

void layOutLevelBars(Frame& frame, PictureBox& left, PictureBox& right) {
    auto* well = new QWidget;
    well->setFixedSize(wellWidth, 2 * barHeight + gap);
    well->setAutoFillBackground(true);
    well->setPalette(QPalette(theme::well));
    place(left, well, 0);
    place(right, well, barHeight + gap);
    left.setAccessibleName(QStringLiteral("Left recording level"));
    right.setAccessibleName(QStringLiteral("Right recording level"));
    auto* row = new QHBoxLayout(frame.widget());
    row->setSpacing(10);
    row->addWidget(well, 0, Qt::AlignCenter);
}

void showLevels(const LevelBars& bars, PictureBox& left, PictureBox& right) {
    left.setWidth(bars.left());
    right.setWidth(bars.right());
}

}  // namespace lyrebrook
