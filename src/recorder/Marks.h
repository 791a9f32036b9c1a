#pragma once

#include <cstdint>

namespace lyrebrook {

/// The IN and OUT marks of the song, as fractions of it, and whether it repeats between them. The values outlive the
/// recorder's screen; that they are set doesn't, so that a song may go on repeating between marks that show as cleared.
class Marks {
  public:
    bool punchInSet = false;
    bool punchOutSet = false;
    bool repeatOn = false;
    double punchIn = 0;
    double punchOut = songEnd;

    /// Sets a mark at the position, or clears it. False, and no change, where the marks would cross.
    bool toggleIn(float position);
    bool toggleOut(float position);

    /// False, and no change, when it can't be switched on for want of a mark.
    bool toggleRepeat();

    bool passedBy(float position) const { return repeatOn && punchOut < static_cast<double>(position); }

  private:
    static constexpr double songEnd = 1;
};

}  // namespace lyrebrook
