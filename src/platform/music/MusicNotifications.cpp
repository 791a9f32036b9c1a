#include "platform/music/MusicNotifications.h"

#include <QCoreApplication>

#include <algorithm>

namespace lyrebrook {
namespace {

constexpr int askEveryMilliseconds = 10;

}  // namespace

MusicNotifications& MusicNotifications::ofProcess() {
    static MusicNotifications notifications;
    return notifications;
}

std::int32_t MusicNotifications::createEvent(Handler handler) {
    handlers_.emplace(++lastEventId_, std::move(handler));
    return lastEventId_;
}

void MusicNotifications::destroyEvent(std::int32_t eventId) {
    handlers_.erase(eventId);
}

void MusicNotifications::add(MusicNotifier& notifier) {
    notifiers_.push_back(&notifier);
}

void MusicNotifications::remove(MusicNotifier& notifier) {
    std::erase(notifiers_, &notifier);
}

void MusicNotifications::wake() {
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr) return;
    if (!timer_) {
        timer_ = new QTimer(application);
        timer_->setTimerType(Qt::PreciseTimer);
        QObject::connect(timer_, &QTimer::timeout, timer_, [this] { tick(); });
    }
    timer_->start(askEveryMilliseconds);
}

// The handlers run in an event of their own: one that opens a message box must not keep the timer from its next turn.
void MusicNotifications::tick() {
    notice();
    const auto listens = [](const MusicNotifier* each) { return each->listens(); };
    if (std::none_of(notifiers_.begin(), notifiers_.end(), listens)) timer_->stop();
    const auto hasSignal = [](const MusicNotifier* each) { return each->hasSignal(); };
    if (std::none_of(notifiers_.begin(), notifiers_.end(), hasSignal)) return;
    QMetaObject::invokeMethod(
        timer_, [this] { deliver(); }, Qt::QueuedConnection);
}

void MusicNotifications::notice() {
    for (MusicNotifier* each : notifiers_) each->notice();
}

void MusicNotifications::deliver() {
    notice();
    while (deliverOne()) {
    }
}

// A handler may unload its form and with it notifiers and events, so nothing is held across its call.
bool MusicNotifications::deliverOne() {
    const auto hasSignal = [](const MusicNotifier* each) { return each->hasSignal(); };
    const auto found = std::find_if(notifiers_.begin(), notifiers_.end(), hasSignal);
    if (found == notifiers_.end()) return false;
    const std::int32_t eventId = (*found)->takeSignal();
    const auto entry = handlers_.find(eventId);
    if (entry == handlers_.end()) return true;
    const Handler handler = entry->second;
    handler(eventId);
    return true;
}

}  // namespace lyrebrook
