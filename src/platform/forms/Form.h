#pragma once

#include <QMainWindow>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/forms/ControlArray.h"
#include "platform/forms/Event.h"
#include "platform/forms/Twips.h"

namespace lyrebrook {

class FormSlot;

enum class MousePointer : std::int32_t { standard = 0, hourglass = 11 };

/// A screen: one window, its controls as members of the subclass, its handlers connected with `on`. Made by its
/// `FormInstance` and living until it is unloaded; an unloaded form hears no event, and is destroyed once nothing of
/// any form is on the stack. Closing the window unloads the form. Only the program's thread.
class Form {
  public:
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    /// Shows the form without waiting and makes it the active one.
    void Show();
    void Hide();
    void Unload();
    bool Visible() const;

    QString Caption() const;
    void setCaption(const QString& caption);
    void setMousePointer(MousePointer pointer);

    /// Size of the area that holds the controls, which the user then can't change.
    void setFixedClientSize(Twips width, Twips height);

    QMainWindow& window() const { return *window_; }
    /// The area that holds the controls: their container, and the owner of the form's layout.
    QWidget* content() const { return window_->centralWidget(); }

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}

  protected:
    explicit Form(const QString& caption);

    /// Connects an event with its only handler, a function object or a procedure of the form. An error that leaves the
    /// handler shows the general error dialog and ends the program.
    template <class... Args, class Handler>
    void on(Event<Args...>& event, Handler handler) {
        event.handler_ = guard<Args...>(bound<Args...>(std::move(handler)));
    }

    /// Connects the event of every element of an array, present and future; the index comes first.
    template <class T, class Owner, class... Args, class Handler>
    void on(ControlArray<T>& array, Event<Args...> Owner::*event, Handler handler) {
        const std::function<void(int, Args...)> indexed = bound<int, Args...>(std::move(handler));
        array.forEach([this, event, indexed](int index, T& element) {
            on(element.*event, [index, indexed](Args... args) { indexed(index, args...); });
        });
    }

  private:
    friend class FormSlot;
    friend class ActiveForm;
    class WindowFilter;

    struct Life {
        bool loaded = true;
    };
    static void run(const Life& life, const std::function<void()>& handler);

    template <class... Args>
    std::function<void(Args...)> guard(std::function<void(Args...)> handler) {
        return [life = life_, handler = std::move(handler)](Args... args) { run(*life, [&] { handler(args...); }); };
    }

    template <class... Args, class Handler>
    std::function<void(Args...)> bound(Handler handler) {
        return handler;
    }
    template <class... Args, class F>
    std::function<void(Args...)> bound(void (F::*procedure)(Args...)) {
        return [form = static_cast<F*>(this), procedure](Args... args) { (form->*procedure)(args...); };
    }

    void bury();

    FormSlot* slot_ = nullptr;
    std::shared_ptr<Life> life_;
    std::unique_ptr<QMainWindow> window_;
    std::unique_ptr<WindowFilter> filter_;
};

}  // namespace lyrebrook
