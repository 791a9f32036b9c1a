#include "platform/forms/ListBox.h"

#include "platform/base/RuntimeError.h"
#include "platform/forms/ListView.h"

namespace lyrebrook {

ListBox::ListBox(QWidget* container) : Control(new ListView(container)) {
    list().picked = [this] { Click.fire(); };
    list().opened = [this] { DblClick.fire(); };
}

ListView& ListBox::list() const {
    return as<ListView>();
}

void ListBox::requireLine(int index) const {
    if (index < 0 || index >= ListCount())
        throw RuntimeError(RuntimeErrorNumber::invalidProcedureCall, "Invalid procedure call or argument");
}

void ListBox::AddItem(const QString& text) {
    list().addItem(text);
    newIndex_ = ListCount() - 1;
}

void ListBox::RemoveItem(int index) {
    requireLine(index);
    const bool selected = index == ListIndex();
    delete list().takeItem(index);
    if (selected) list().setCurrentRow(-1);  // Qt would go on to a neighbour
}

void ListBox::Clear() {
    list().clear();
    newIndex_ = -1;
}

int ListBox::ListCount() const {
    return list().count();
}

QString ListBox::List(int index) const {
    const QListWidgetItem* line = list().item(index);
    return line ? line->text() : QString();
}

std::int32_t ListBox::ItemData(int index) const {
    requireLine(index);
    return list().item(index)->data(Qt::UserRole).toInt();
}

void ListBox::setItemData(int index, std::int32_t data) {
    requireLine(index);
    list().item(index)->setData(Qt::UserRole, data);
}

int ListBox::ListIndex() const {
    return list().selectedLine();
}

void ListBox::setListIndex(int index) {
    if (index != -1) requireLine(index);
    list().setCurrentRow(index);
    Click.fire();
}

}  // namespace lyrebrook
