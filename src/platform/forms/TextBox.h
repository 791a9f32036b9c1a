#pragma once

#include "platform/forms/Control.h"
#include "platform/printing/TextStyle.h"

class QLineEdit;
class QPlainTextEdit;

namespace lyrebrook {

enum class Lines { single, multiple };

/// A box of plain text. Lines of a multi-line text are joined by CR LF on this side of the box; a box of a single line
/// joins them by blanks, and holds 32767 characters.
class TextBox final : public Control {
  public:
    explicit TextBox(QWidget* container, const QString& text = {}, Lines lines = Lines::single);

    QString Text() const;
    void setText(const QString& text);
    QString SelText() const;
    /// A locked box shows its text, and lets it be selected, but not be changed.
    void setLocked(bool locked);
    TextAlignment Alignment() const;
    void setAlignment(Qt::Alignment alignment);
    /// The letters that the box shows its text in.
    lyrebrook::Font Font() const;
    /// What the empty box says, in grey.
    void setHint(const QString& hint);

    Event<> Change;       ///< the text became another, by typing or by `setText`
    Event<int> KeyPress;  ///< code of a key that makes a character, 13 for Enter; before the box takes it

  protected:
    bool filter(QEvent& event) override;

  private:
    QLineEdit& line() const;
    QPlainTextEdit& page() const;

    Lines lines_;
};

}  // namespace lyrebrook
