#pragma once

#include <cstdint>
#include <memory>

#include "platform/forms/Desktop.h"
#include "platform/forms/Event.h"

namespace lyrebrook {

/// Fires every `Interval` milliseconds while it is enabled and the interval isn't 0. Another interval, and being
/// enabled anew, start the count over.
class Timer {
  public:
    explicit Timer(std::int32_t interval = 0, bool enabled = false);

    std::int32_t Interval() const { return interval_; }
    void setInterval(std::int32_t milliseconds);
    bool Enabled() const { return enabled_; }
    void setEnabled(bool enabled);

    Event<> Tick;

  private:
    void apply();

    std::int32_t interval_;
    bool enabled_;
    std::unique_ptr<DesktopTimer> timer_;
};

}  // namespace lyrebrook
