#include "platform/forms/ThemeIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <functional>

#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

constexpr double side = 16;  // of the square that the painters paint on

void paintSign(QPainter& painter, const QColor& colour, QChar sign) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(theme::well);
    painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, sign);
}

void paintFolder(QPainter& painter, const QColor& colour) {
    QPainterPath folder;
    folder.addRoundedRect(QRectF(1, 3, 6.5, 5), 1, 1);
    folder.addRoundedRect(QRectF(1, 4.5, side - 2, 9), 1.2, 1.2);
    folder.setFillRule(Qt::WindingFill);
    painter.setPen(Qt::NoPen);
    painter.fillPath(folder, colour);
}

QIcon paintedIcon(const std::function<void(QPainter&)>& paint) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 96, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / side, size / side);
        paint(painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

QIcon sign(const QColor& colour, char16_t sign) {
    return paintedIcon([&](QPainter& painter) { paintSign(painter, colour, sign); });
}

QIcon folder(const QColor& colour) {
    return paintedIcon([&](QPainter& painter) { paintFolder(painter, colour); });
}

}  // namespace

QIcon themeIcon(QStyle::StandardPixmap icon) {
    switch (icon) {
        case QStyle::SP_MessageBoxInformation:
            return sign(theme::information, u'i');
        case QStyle::SP_MessageBoxQuestion:
            return sign(theme::information, u'?');
        case QStyle::SP_MessageBoxWarning:
            return sign(theme::accent, u'!');
        case QStyle::SP_MessageBoxCritical:
            return sign(theme::danger, u'×');
        case QStyle::SP_DirOpenIcon:
            return folder(theme::accent);
        case QStyle::SP_DirClosedIcon:
        case QStyle::SP_DirIcon:
            return folder(theme::quietText);
        default:
            return {};
    }
}

}  // namespace lyrebrook
