#pragma once

#include <cstdint>

namespace lyrebrook {

/// A form that is told of events. The call comes as an event of the form's thread, never from inside a call of the
/// form's own. It must not throw: a form hands it on through the handlers' own boundary.
class DirectXEvent8 {
  public:
    virtual void DXCallback(std::int32_t eventId) = 0;

  protected:
    ~DirectXEvent8() = default;
};

}  // namespace lyrebrook
