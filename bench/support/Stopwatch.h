#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace lyrebrook {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What a piece of work took: by the clock, and of the processor.
struct Cost {
    Milliseconds clock{0};
    Milliseconds processor{0};
};

/// Work in this process. The processor's time is that of the calling thread.
Cost costOf(const std::function<void()>& work);

/// A program of its own, found by PATH, with what it writes thrown away. Ends this process when it fails: a ratio to
/// something that didn't run says nothing.
Cost costOfCommand(const std::vector<std::string>& command);

}  // namespace lyrebrook
