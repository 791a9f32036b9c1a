#include "platform/forms/Control.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QStyle>
#include <array>

#include "platform/base/Check.h"
#include "platform/forms/Boundary.h"
#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

/// Names of `Look` in the style sheet.
constexpr std::array lookNames = {"",       "title",  "heading",  "hint",      "readout", "words",
                                  "notice", "status", "primary",  "danger",    "compact", "bare",
                                  "page",   "strip",  "playback", "recording", "lamp"};

/// A message box, a menu or another program that takes the focus for a while doesn't end what the user does here.
bool staysInForm(const QEvent& event) {
    switch (static_cast<const QFocusEvent&>(event).reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            return false;
        default:
            return true;
    }
}

QColor readableOn(const QColor& background) {
    const int lightness = qGray(background.rgb());
    constexpr int middle = 110;
    return lightness > middle ? theme::well : theme::text;
}

}  // namespace

class Control::Filter final : public QObject {
  public:
    explicit Filter(Control& control) : control_(control) {}

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && staysInForm(*event)) {
            fromQt([this] { control_.GotFocus.fire(); });
        } else if (event->type() == QEvent::FocusOut && staysInForm(*event)) {
            fromQt([this] { control_.LostFocus.fire(); });
        }
        bool taken = false;
        fromQt([&] { taken = control_.filter(*event); });
        return taken;
    }

  private:
    Control& control_;
};

Control::Control(QWidget* widget) : widget_(widget), filter_(std::make_unique<Filter>(*this)) {
    CHECK(widget->parentWidget());
    widget->installEventFilter(filter_.get());
    widget->show();
}

Control::~Control() {
    if (widget_) widget_->removeEventFilter(filter_.get());
    delete widget_;
}

Twips Control::read(const std::optional<Length>& length, int pixels) {
    return length && length->pixels == pixels ? length->twips : toTwips(pixels);
}

Twips Control::Left() const {
    return read(left_, widget_->x());
}

Twips Control::Top() const {
    return read(top_, widget_->y());
}

Twips Control::Width() const {
    return read(width_, widget_->width());
}

Twips Control::Height() const {
    return read(height_, widget_->height());
}

void Control::setLeft(Twips left) {
    left_ = given(left);
    widget_->move(left_->pixels, widget_->y());
}

void Control::setTop(Twips top) {
    top_ = given(top);
    widget_->move(widget_->x(), top_->pixels);
}

void Control::setWidth(Twips width) {
    width_ = given(width);
    widget_->resize(width_->pixels, widget_->height());
}

void Control::setHeight(Twips height) {
    height_ = given(height);
    widget_->resize(widget_->width(), height_->pixels);
}

void Control::Move(Twips left, Twips top) {
    setLeft(left);
    setTop(top);
}

void Control::Move(Twips left, Twips top, Twips width, Twips height) {
    Move(left, top);
    setWidth(width);
    setHeight(height);
}

bool Control::Visible() const {
    return !widget_->isHidden();
}

void Control::setVisible(bool visible) {
    widget_->setVisible(visible);
}

bool Control::Enabled() const {
    return widget_->isEnabledTo(widget_->parentWidget());
}

void Control::setEnabled(bool enabled) {
    widget_->setEnabled(enabled);
}

void Control::setBackColor(Colour colour) {
    if (backColor_ == colour) return;
    backColor_ = colour;
    applyColours();
}

void Control::setForeColor(Colour colour) {
    if (foreColor_ == colour) return;
    foreColor_ = colour;
    applyColours();
}

void Control::setFontBold(bool bold) {
    if (bold_ == bold) return;
    bold_ = bold;
    applyColours();
}

void Control::setLook(Look look) {
    widget_->setProperty("look", QString::fromLatin1(lookNames.at(static_cast<std::size_t>(look))));
    repolish();
}

void Control::repolish() {
    widget_->style()->unpolish(widget_);
    widget_->style()->polish(widget_);
    QEvent change(QEvent::StyleChange);  // or a label goes on with the borders that it had
    QCoreApplication::sendEvent(widget_, &change);
    widget_->updateGeometry();
}

void Control::applyColours() {
    QString rules;
    const auto add = [&](const char* property, const QString& value) {
        rules += QString::fromLatin1(property) + u':' + value + u';';
    };
    if (backColor_ != buttonFace) {
        add("background-color", toQColor(backColor_).name());
        add("color", readableOn(toQColor(backColor_)).name());
    }
    if (!isSystemColour(foreColor_)) add("color", toQColor(foreColor_).name());
    if (bold_) add("font-weight", *bold_ ? QStringLiteral("bold") : QStringLiteral("normal"));
    const QString kind = QString::fromLatin1(widget_->metaObject()->className());
    widget_->setStyleSheet(rules.isEmpty() ? rules : kind + u'{' + rules + u'}');
}

QString Control::ToolTipText() const {
    return widget_->toolTip();
}

void Control::setToolTipText(const QString& text) {
    widget_->setToolTip(text);
}

void Control::setAccessibleName(const QString& name) {
    widget_->setAccessibleName(name);
}

void Control::setContainer(QWidget* container) {
    const bool visible = Visible();
    const QRect place = widget_->geometry();
    widget_->setParent(container);
    widget_->setGeometry(place);
    setVisible(visible);
}

void Control::SetFocus() {
    widget_->setFocus(Qt::OtherFocusReason);
}

void Control::Refresh() {
    widget_->repaint();
}

void Control::ZOrder() {
    widget_->raise();
}

bool Control::standsAbove(const Control& sibling) const {
    const QObjectList& siblings = widget_->parent()->children();
    return siblings.indexOf(widget_.data()) > siblings.indexOf(sibling.widget_.data());
}

bool Control::filter(QEvent&) {
    return false;
}

}  // namespace lyrebrook
