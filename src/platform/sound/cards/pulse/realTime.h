#pragma once

#include <sys/types.h>

namespace lyrebrook {

/// From here on the calling thread's work goes before what doesn't make sound, where the user has the right to that or
/// RealtimeKit grants it; elsewhere all stays as it is. Doesn't wait: RealtimeKit's answer comes a moment later. What
/// this process starts doesn't inherit it.
void goBeforeOthers();

/// The second way: asks RealtimeKit on the system's bus for one thread of this process, and waits for its answers, a
/// second at most for each. It grants that only to a process with a limit, usually 0.2 s, on how long such a thread
/// runs without a rest; a thread that reaches half of that loses what it was granted. True when it was granted.
bool askRealTimeKit(pid_t thread);

}  // namespace lyrebrook
