#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace lyrebrook {

class MessageWindow;

/// A window that messages are sent to; null is none.
using HWND = MessageWindow*;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;  // may carry an address
using LRESULT = std::intptr_t;

using WindowProcedure = LRESULT (*)(HWND window, std::int32_t message, WPARAM wParam, LPARAM lParam);

struct WindowMessage {
    std::int32_t message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;

    friend bool operator==(const WindowMessage&, const WindowMessage&) = default;
};

/// Puts messages into one window's queue, from any thread. One that waits there already is not put in a second time;
/// what comes when the window is gone is dropped.
using MessagePost = std::function<void(const WindowMessage&)>;

/// The end at which a form receives messages of its devices. Each comes as an event of the program's thread, never from
/// inside a call, and goes to the window procedure in place. The form owns it; messages that still wait when it goes
/// are dropped. The program's thread only.
class MessageWindow {
  public:
    /// Runs the window procedure for a message: nothing may unwind from it into the event loop. The forms' `fromQt`.
    using Boundary = void (*)(const std::function<void()>& action);

    explicit MessageWindow(Boundary boundary);
    ~MessageWindow();
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;

    HWND handle() { return this; }

    MessagePost post();

  private:
    friend WindowProcedure SetWindowLongA(HWND window, std::int32_t index, WindowProcedure procedure);
    class Queue;

    Boundary boundary_;
    WindowProcedure procedure_;
    std::shared_ptr<Queue> queue_;
};

inline constexpr std::int32_t GWL_WNDPROC = -4;

/// Puts a procedure in the place of a window's present one, which is returned; a fresh window has one that does
/// nothing. The only index is `GWL_WNDPROC`; another returns null and changes nothing.
WindowProcedure SetWindowLongA(HWND window, std::int32_t index, WindowProcedure procedure);

/// The result of `procedure`; 0 when it is null.
LRESULT CallWindowProcA(WindowProcedure procedure, HWND window, std::int32_t message, WPARAM wParam, LPARAM lParam);

}  // namespace lyrebrook
