#include "platform/forms/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>

#include "platform/base/Check.h"
#include "platform/forms/ThemeStyle.h"

namespace lyrebrook {
namespace {

QPalette palette() {
    QPalette palette(theme::button, theme::window);
    const QList<std::pair<QPalette::ColorRole, QColor>> colours{
        {QPalette::WindowText, theme::text},
        {QPalette::Text, theme::text},
        {QPalette::ButtonText, theme::text},
        {QPalette::BrightText, theme::accent},
        {QPalette::Base, theme::well},
        {QPalette::AlternateBase, theme::panel},
        {QPalette::ToolTipBase, theme::well},
        {QPalette::ToolTipText, theme::text},
        {QPalette::Highlight, theme::accent},
        {QPalette::HighlightedText, theme::well},
        {QPalette::Link, theme::accent},
        {QPalette::LinkVisited, theme::accent},
        {QPalette::PlaceholderText, theme::quietText},
    };
    for (const auto& [role, colour] : colours) palette.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme::disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, theme::edge);
    return palette;
}

/// The first of these that is there: small texts must be clear, figures of one width.
QFont font() {
    QFont font(QStringList{QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(10);
    return font;
}

QString styleSheet() {
    QFile file(QStringLiteral(":/forms/theme.qss"));
    CHECK(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

}  // namespace

void applyTheme(QApplication& application) {
    application.setStyle(new ThemeStyle);
    application.setPalette(palette());
    application.setFont(font());
    application.setStyleSheet(styleSheet());
}

}  // namespace lyrebrook
