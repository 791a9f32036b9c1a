#pragma once

#include <QPointer>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace lyrebrook {

/// Whoever has messages for a form. Asked on the form's thread, never from inside one of its own calls.
class MusicNotifier {
  public:
    /// Looks whether something has happened on the card's thread.
    virtual void notice() = 0;

    /// Whether there is a message whose event has not been signalled, and that event, counted as signalled from now.
    virtual bool hasSignal() const = 0;
    virtual std::int32_t takeSignal() = 0;

    /// Something may still happen, so that it is worth asking again.
    virtual bool listens() const = 0;

  protected:
    ~MusicNotifier() = default;
};

/// Brings what happened on the card's thread to the forms, as ordinary events of the form's thread. A timer asks the
/// notifiers while one of them listens; it lives as long as the application and needs no one to stop it. All of it
/// belongs to the form's thread.
class MusicNotifications {
  public:
    using Handler = std::function<void(std::int32_t eventId)>;

    static MusicNotifications& ofProcess();

    std::int32_t createEvent(Handler handler);
    void destroyEvent(std::int32_t eventId);

    void add(MusicNotifier& notifier);
    void remove(MusicNotifier& notifier);

    /// To be called when a notifier begins to listen.
    void wake();

    /// Runs the handlers of what has happened so far, in the caller's stack.
    void deliver();

  private:
    void tick();
    void notice();
    bool deliverOne();

    std::map<std::int32_t, Handler> handlers_;
    std::vector<MusicNotifier*> notifiers_;
    std::int32_t lastEventId_ = 0;
    QPointer<QTimer> timer_;
};

}  // namespace lyrebrook
