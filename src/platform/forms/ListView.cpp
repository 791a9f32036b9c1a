#include "platform/forms/ListView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <utility>

#include "platform/forms/Boundary.h"

namespace lyrebrook {
namespace {

void tell(const std::function<void()>& listener) {
    if (listener) fromQt(listener);
}

/// Shows the beginning of a line that is wider than any screen: to lay out megabytes takes Qt half a minute.
class LineBeginnings final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& line, const QLocale& locale) const override {
        constexpr qsizetype mostCharacters = 2000;
        return QStyledItemDelegate::displayText(line.toString().left(mostCharacters), locale);
    }
};

}  // namespace

ListView::ListView(QWidget* container) : QListWidget(container) {
    setUniformItemSizes(true);
    setItemDelegate(new LineBeginnings(this));
}

int ListView::selectedLine() const {
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

bool ListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex line = indexAt(help.pos());
    if (sizeHintForIndex(line).width() <= viewport()->width()) return QListWidget::viewportEvent(event);
    QToolTip::showText(help.globalPos(), itemFromIndex(line)->text(), viewport(), visualRect(line));
    return true;
}

void ListView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton && itemAt(event->position().toPoint());
    QListWidget::mousePressEvent(event);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (std::exchange(pressed_, false) && selectedLine() >= 0) tell(picked);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint())) tell(opened);
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if (enterOpens && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && selectedLine() >= 0)
        return tell(opened);
    const int before = selectedLine();
    QListWidget::keyPressEvent(event);
    if (selectedLine() != before) tell(picked);
}

}  // namespace lyrebrook
