#include "platform/forms/TextBox.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocumentFragment>
#include <QValidator>

#include "platform/forms/Boundary.h"

namespace lyrebrook {
namespace {

/// Makes one line of what is pasted or set: the box would hide its line breaks, but hand them on.
class JoinLines final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
        for (const char16_t lineBreak : {u'\r', u'\n'}) text.replace(lineBreak, u' ');
        return Acceptable;
    }
};

QWidget* newBox(QWidget* container, Lines lines) {
    if (lines == Lines::single) {
        auto* line = new QLineEdit(container);
        line->setValidator(new JoinLines(line));
        return line;
    }
    auto* page = new QPlainTextEdit(container);
    page->setTabChangesFocus(true);
    return page;
}

QString withLineFeeds(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString withCarriageReturns(QString text) {
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

constexpr int codeOfEnter = 13;

}  // namespace

TextBox::TextBox(QWidget* container, const QString& text, Lines lines)
    : Control(newBox(container, lines)), lines_(lines) {
    setText(text);
    const auto changed = [this] { fromQt([this] { Change.fire(); }); };
    if (lines_ == Lines::single)
        QObject::connect(&line(), &QLineEdit::textChanged, changed);
    else
        QObject::connect(&page(), &QPlainTextEdit::textChanged, changed);
}

QLineEdit& TextBox::line() const {
    return as<QLineEdit>();
}

QPlainTextEdit& TextBox::page() const {
    return as<QPlainTextEdit>();
}

QString TextBox::Text() const {
    return lines_ == Lines::single ? line().text() : withCarriageReturns(page().toPlainText());
}

void TextBox::setText(const QString& text) {
    const QString before = Text();
    {
        const QSignalBlocker noSignal(widget());
        if (lines_ == Lines::single) {
            line().setText(text);
            line().setCursorPosition(0);  // a text that is too wide shows its beginning
        } else {
            page().setPlainText(withLineFeeds(text));
        }
    }
    if (Text() != before) Change.fire();
}

QString TextBox::SelText() const {
    if (lines_ == Lines::single) return line().selectedText();
    return withCarriageReturns(page().textCursor().selection().toPlainText());
}

void TextBox::setLocked(bool locked) {
    lines_ == Lines::single ? line().setReadOnly(locked) : page().setReadOnly(locked);
}

void TextBox::setAlignment(Qt::Alignment alignment) {
    if (lines_ == Lines::single) return line().setAlignment(alignment);
    QTextOption option = page().document()->defaultTextOption();
    option.setAlignment(alignment);
    page().document()->setDefaultTextOption(option);
}

TextAlignment TextBox::Alignment() const {
    const Qt::Alignment alignment =
        lines_ == Lines::single ? line().alignment() : page().document()->defaultTextOption().alignment();
    if (alignment & Qt::AlignHCenter) return TextAlignment::centre;
    return alignment & Qt::AlignRight ? TextAlignment::right : TextAlignment::left;
}

Font TextBox::Font() const {
    widget()->ensurePolished();  // a box that was never seen doesn't know its style yet
    const QFont font = widget()->font();
    lyrebrook::Font result;
    result.Name = font.family();
    result.Bold = font.bold();
    result.Italic = font.italic();
    result.Size = QFontInfo(font).pointSizeF();
    result.Strikethrough = font.strikeOut();
    result.Underline = font.underline();
    result.Weight = static_cast<std::int16_t>(font.weight());
    return result;
}

void TextBox::setHint(const QString& hint) {
    lines_ == Lines::single ? line().setPlaceholderText(hint) : page().setPlaceholderText(hint);
}

bool TextBox::filter(QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (key.key() == Qt::Key_Enter || key.key() == Qt::Key_Return) {
        KeyPress.fire(codeOfEnter);
    } else if (!key.text().isEmpty()) {
        KeyPress.fire(key.text().at(0).unicode());
    }
    return false;
}

}  // namespace lyrebrook
