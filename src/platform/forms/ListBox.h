#pragma once

#include <cstdint>

#include "platform/forms/Control.h"

namespace lyrebrook {

class ListView;

/// Lines of text, unsorted, of which one can be selected. Adding, removing and clearing fire nothing; setting
/// `ListIndex` always fires `Click`, also for the line that is selected already. An index outside of the list is a
/// `RuntimeError`.
class ListBox : public Control {
  public:
    explicit ListBox(QWidget* container);

    void AddItem(const QString& text);
    void RemoveItem(int index);
    void Clear();

    int ListCount() const;
    /// Text of a line, empty outside of the list.
    QString List(int index) const;
    std::int32_t ItemData(int index) const;
    void setItemData(int index, std::int32_t data);
    /// Index of the line that was added last.
    int NewIndex() const { return newIndex_; }

    /// The selected line, -1 for none.
    int ListIndex() const;
    void setListIndex(int index);
    /// Text of the selected line.
    QString Text() const { return List(ListIndex()); }

    Event<> Click;
    Event<> DblClick;

  private:
    ListView& list() const;
    void requireLine(int index) const;

    int newIndex_ = -1;
};

}  // namespace lyrebrook
