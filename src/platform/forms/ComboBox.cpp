#include "platform/forms/ComboBox.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "platform/base/RuntimeError.h"
#include "platform/forms/Boundary.h"

namespace lyrebrook {

ComboBox::ComboBox(QWidget* container, Editing editing) : Control(new QComboBox(container)) {
    combo().setEditable(editing == Editing::free);
    combo().setInsertPolicy(QComboBox::NoInsert);
    QObject::connect(&combo(), &QComboBox::activated, [this] { fromQt([this] { Click.fire(); }); });
    if (editing == Editing::listOnly) return;
    combo().setCompleter(nullptr);
    QObject::connect(combo().lineEdit(), &QLineEdit::textEdited, [this] { fromQt([this] { Change.fire(); }); });
}

QComboBox& ComboBox::combo() const {
    return as<QComboBox>();
}

/// Enter after a typed text would pick the line that reads the same.
bool ComboBox::filter(QEvent& event) {
    if (event.type() != QEvent::KeyPress || !combo().isEditable()) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

QString ComboBox::Text() const {
    return combo().currentText();
}

void ComboBox::setText(const QString& text) {
    if (text == Text()) return;
    combo().setEditText(text);
    Change.fire();
}

void ComboBox::AddItem(const QString& text) {
    const QString shown = Text();
    const int index = combo().currentIndex();
    combo().addItem(text);
    combo().setCurrentIndex(index);  // Qt picks the first line of all by itself
    combo().setEditText(shown);
}

void ComboBox::Clear() {
    combo().clear();
    combo().clearEditText();
}

int ComboBox::ListCount() const {
    return combo().count();
}

QString ComboBox::List(int index) const {
    return combo().itemText(index);
}

int ComboBox::ListIndex() const {
    const int index = combo().currentIndex();
    return List(index) == Text() ? index : -1;
}

void ComboBox::setListIndex(int index) {
    if (index < -1 || index >= ListCount())
        throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "Invalid procedure call or argument");
    combo().setCurrentIndex(index);
    Click.fire();
}

}  // namespace lyrebrook
