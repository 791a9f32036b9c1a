#pragma once

#include "platform/forms/Control.h"

class QComboBox;

namespace lyrebrook {

enum class Editing { free, listOnly };

/// A list that drops down, with a text that can be typed over when editing is free. `Click` comes when a line is
/// picked, by the user or by `setListIndex`; `Change` when the text is typed or set.
class ComboBox final : public Control {
  public:
    explicit ComboBox(QWidget* container, Editing editing = Editing::free);

    QString Text() const;
    void setText(const QString& text);
    void AddItem(const QString& text);
    void Clear();
    int ListCount() const;
    QString List(int index) const;
    int ListIndex() const;
    void setListIndex(int index);

    Event<> Click;
    Event<> Change;

  protected:
    bool filter(QEvent& event) override;

  private:
    QComboBox& combo() const;
};

}  // namespace lyrebrook
