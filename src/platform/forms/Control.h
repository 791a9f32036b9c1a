#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <memory>
#include <optional>

#include "platform/forms/Colour.h"
#include "platform/forms/Event.h"
#include "platform/forms/Twips.h"

namespace lyrebrook {

/// What the theme gives a control beyond its kind.
enum class Look {
    plain,
    title,      ///< the name of a screen
    heading,    ///< the name of a part of it
    hint,       ///< a quiet line of explanation
    readout,    ///< figures to be read from afar, on black
    words,      ///< a box of words to be sung from, read from afar
    notice,     ///< a line that a person has to see
    status,     ///< a spaced-out word such as a transport's state
    primary,    ///< the button that a screen is for
    danger,     ///< a button that destroys
    compact,    ///< a button without air, for one letter
    bare,       ///< a frame that only holds together
    page,       ///< a frame that fills the place under its tabs
    strip,      ///< a narrow frame of many side by side, and the small words in it
    playback,   ///< a fader of what is heard
    recording,  ///< a fader of what is recorded
    lamp,       ///< a small box that is coloured by its state
};

/// A named object on a form. It owns one widget, unless the widget's container went first, and turns the widget's
/// signals into events; layouts, fonts and painting stay the widget's. Used as a `QWidget*` where a layout or another
/// control's constructor wants one; a picture box in a picture box needs `widget()`, or it reads as a copy.
///
/// Lengths are twips. A length that was set reads back exactly for as long as the widget stands where it put it; in a
/// layout it tells what the layout gave. Only the program's thread.
class Control {
  public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    QWidget* widget() const { return widget_; }
    operator QWidget*() const { return widget_; }  // NOLINT: a control stands for its widget in layouts

    Twips Left() const;
    Twips Top() const;
    Twips Width() const;
    Twips Height() const;
    void setLeft(Twips left);
    void setTop(Twips top);
    void setWidth(Twips width);
    void setHeight(Twips height);
    void Move(Twips left, Twips top);
    void Move(Twips left, Twips top, Twips width, Twips height);

    /// The control's own flag, whether its form is seen or not.
    bool Visible() const;
    void setVisible(bool visible);
    bool Enabled() const;
    void setEnabled(bool enabled);

    Colour BackColor() const { return backColor_; }
    void setBackColor(Colour colour);
    Colour ForeColor() const { return foreColor_; }
    void setForeColor(Colour colour);
    void setFontBold(bool bold);
    void setLook(Look look);

    QString ToolTipText() const;
    void setToolTipText(const QString& text);
    /// What a screen reader says where the control has no caption of its own.
    void setAccessibleName(const QString& name);

    void setContainer(QWidget* container);
    void SetFocus();
    void Refresh();

    /// Brings the control in front of its siblings.
    void ZOrder();
    bool standsAbove(const Control& sibling) const;

    Event<> GotFocus;
    Event<> LostFocus;  ///< the focus went to another control; not when another window took it

  protected:
    /// Takes over `widget`, which already stands in its container.
    explicit Control(QWidget* widget);

    /// Sees the widget's events before the widget does; true keeps one from it.
    virtual bool filter(QEvent& event);
    /// Redoes what depends on `BackColor`, `ForeColor` and the bold flag.
    virtual void applyColours();
    /// After a property that the style sheet asks for.
    void repolish();

    template <class W>
    W& as() const {
        return static_cast<W&>(*widget_);
    }

  private:
    class Filter;

    struct Length {
        Twips twips;
        int pixels;
    };
    static Twips read(const std::optional<Length>& length, int pixels);
    static Length given(Twips twips) { return {twips, toPixels(twips)}; }

    QPointer<QWidget> widget_;
    std::unique_ptr<Filter> filter_;
    std::optional<Length> left_, top_, width_, height_;
    Colour backColor_ = buttonFace;
    Colour foreColor_ = buttonText;
    std::optional<bool> bold_;
};

}  // namespace lyrebrook
