#include "platform/winmm/MessageWindow.h"

#include <QObject>
#include <algorithm>
#include <deque>
#include <mutex>
#include <utility>

namespace lyrebrook {
namespace {

LRESULT defaultWindowProcedure(HWND, std::int32_t, WPARAM, LPARAM) {
    return 0;
}

}  // namespace

/// What waits for a window. Shared with whoever puts messages in, who may live longer.
class MessageWindow::Queue : public std::enable_shared_from_this<Queue> {
  public:
    explicit Queue(MessageWindow& window) : window_(&window), receiver_(std::make_unique<QObject>()) {}

    /// The program's thread: the window is about to go.
    void close() {
        const std::lock_guard lock(mutex_);
        receiver_.reset();
        waiting_.clear();
    }

    void put(const WindowMessage& message) {
        const std::lock_guard lock(mutex_);
        if (receiver_ == nullptr || std::ranges::find(waiting_, message) != waiting_.end()) return;
        waiting_.push_back(message);
        QMetaObject::invokeMethod(
            receiver_.get(), [self = shared_from_this()] { self->deliverNext(); }, Qt::QueuedConnection);
    }

  private:
    void deliverNext() {
        const WindowMessage next = takeNext();
        window_->boundary_(
            [this, next] { CallWindowProcA(window_->procedure_, window_, next.message, next.wParam, next.lParam); });
    }

    WindowMessage takeNext() {
        const std::lock_guard lock(mutex_);
        const WindowMessage next = waiting_.front();
        waiting_.pop_front();
        return next;
    }

    MessageWindow* window_;
    std::mutex mutex_;
    std::unique_ptr<QObject> receiver_;
    std::deque<WindowMessage> waiting_;
};

MessageWindow::MessageWindow(Boundary boundary)
    : boundary_(boundary), procedure_(defaultWindowProcedure), queue_(std::make_shared<Queue>(*this)) {}

MessageWindow::~MessageWindow() {
    queue_->close();
}

MessagePost MessageWindow::post() {
    return [queue = queue_](const WindowMessage& message) { queue->put(message); };
}

WindowProcedure SetWindowLongA(HWND window, std::int32_t index, WindowProcedure procedure) {
    if (window == nullptr || index != GWL_WNDPROC) return nullptr;
    return std::exchange(window->procedure_, procedure);
}

LRESULT CallWindowProcA(WindowProcedure procedure, HWND window, std::int32_t message, WPARAM wParam, LPARAM lParam) {
    return procedure == nullptr ? 0 : procedure(window, message, wParam, lParam);
}

}  // namespace lyrebrook
