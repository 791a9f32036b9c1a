#pragma once

#include <functional>

namespace lyrebrook {

/// What a control tells its form. It has at most one handler, set with `Form::on`, which makes the handler safe to call
/// from anywhere; an event without a handler does nothing. Fired on the program's thread, in step with its cause. What
/// Qt or a library causes is fired inside of `fromQt`. A form has events of its own for what other layers tell it.
template <class... Args>
class Event {
  public:
    void fire(Args... args) const {
        if (!handler_) return;
        const auto handler = handler_;  // an unload inside the handler may take the event with it
        handler(args...);
    }

  private:
    friend class Form;

    std::function<void(Args...)> handler_;
};

}  // namespace lyrebrook
