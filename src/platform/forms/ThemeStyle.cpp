#include "platform/forms/ThemeStyle.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/forms/Theme.h"
#include "platform/forms/ThemeIcon.h"

namespace lyrebrook {
namespace {

constexpr int markSize = 18;
constexpr double corner = 4;

struct MarkColours {
    QColor edge;
    QColor fill;
    QColor mark;
};

MarkColours markColours(const QStyleOption& option) {
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool on = option.state & QStyle::State_On;
    if (!enabled) return {theme::edge, theme::panel, theme::disabledText};
    const bool attended = option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus);
    return {on || attended ? theme::accent : theme::quietText, on ? theme::accent : theme::well, theme::well};
}

QRectF markArea(const QStyleOption& option) {
    return QRectF(option.rect).adjusted(1, 1, -1, -1);
}

void paintTick(QPainter& painter, const QRectF& area, const QColor& colour) {
    const auto at = [&](double x, double y) { return area.topLeft() + QPointF(x * area.width(), y * area.height()); };
    painter.setPen(QPen(colour, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.74), at(0.8, 0.28)});
}

void paintCheckBox(QPainter& painter, const QStyleOption& option) {
    const MarkColours colours = markColours(option);
    painter.setPen(QPen(colours.edge, 1.5));
    painter.setBrush(colours.fill);
    painter.drawRoundedRect(markArea(option), corner, corner);
    if (option.state & QStyle::State_On) paintTick(painter, markArea(option), colours.mark);
}

void paintOptionButton(QPainter& painter, const QStyleOption& option) {
    const MarkColours colours = markColours(option);
    painter.setPen(QPen(colours.edge, 1.5));
    painter.setBrush(theme::well);
    painter.drawEllipse(markArea(option));
    if (!(option.state & QStyle::State_On)) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.state & QStyle::State_Enabled ? theme::accent : theme::disabledText);
    const double inset = markArea(option).width() * 0.26;
    painter.drawEllipse(markArea(option).adjusted(inset, inset, -inset, -inset));
}

void paintArrow(QPainter& painter, const QStyleOption& option, double turn) {
    painter.translate(QRectF(option.rect).center());
    painter.rotate(turn);
    painter.setPen(QPen(option.state & QStyle::State_Enabled ? theme::quietText : theme::disabledText, 1.8,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{-4, -2}, {0, 2}, {4, -2}});
}

void paintFocus(QPainter& painter, const QStyleOption& option) {
    painter.setPen(QPen(theme::accent, 1.5));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75), corner, corner);
}

void paintBox(QPainter& painter, const QStyleOptionComplex& option) {
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool focused = option.state & QStyle::State_HasFocus;
    painter.setPen(QPen(focused ? theme::accent : theme::edge, 1));
    painter.setBrush(enabled ? theme::well : theme::window);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

}  // namespace

ThemeStyle::ThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
        case PE_IndicatorCheckBox:
            paintCheckBox(*painter, *option);
            break;
        case PE_IndicatorRadioButton:
            paintOptionButton(*painter, *option);
            break;
        case PE_IndicatorArrowDown:
            paintArrow(*painter, *option, 0);
            break;
        case PE_IndicatorArrowUp:
            paintArrow(*painter, *option, 180);
            break;
        case PE_IndicatorArrowRight:
            paintArrow(*painter, *option, -90);
            break;
        case PE_IndicatorArrowLeft:
            paintArrow(*painter, *option, 90);
            break;
        case PE_FrameFocusRect:
            paintFocus(*painter, *option);
            break;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
    if (control != CC_ComboBox && control != CC_SpinBox)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintBox(*painter, *option);
    painter->restore();
    const auto drawArrow = [&](PrimitiveElement element, SubControl place) {
        QStyleOption arrow(*option);
        arrow.rect = subControlRect(control, option, place, widget);
        drawPrimitive(element, &arrow, painter, widget);
    };
    if (control == CC_ComboBox) return drawArrow(PE_IndicatorArrowDown, SC_ComboBoxArrow);
    drawArrow(PE_IndicatorArrowUp, SC_SpinBoxUp);
    drawArrow(PE_IndicatorArrowDown, SC_SpinBoxDown);
}

QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control != CC_ComboBox || part != SC_ComboBoxEditField) return rect;
    constexpr int inLineWithTextBoxes = 5;
    return rect.adjusted(inLineWithTextBoxes, 0, 0, 0);
}

QIcon ThemeStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    const QIcon own = themeIcon(icon);
    return own.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : own;
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    constexpr int asHighAsATextBox = 28;
    return type == CT_ComboBox ? own.expandedTo(QSize(0, asHighAsATextBox)) : own;
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return markSize;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const {
    constexpr int never = 0;
    if (hint == SH_EtchDisabledText || hint == SH_DialogButtonBox_ButtonsHaveIcons) return never;
    return QProxyStyle::styleHint(hint, option, widget, result);
}

}  // namespace lyrebrook
