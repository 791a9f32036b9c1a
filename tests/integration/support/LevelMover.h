#pragma once

#include <chrono>
#include <string>

namespace lyrebrook {

/// Another program that moves a sink's level up and down, evenly over a time, and leaves it at half. Returns the
/// processor time that it took of the calling thread.
std::chrono::duration<double> moveLevel(const std::string& sink, int times, std::chrono::milliseconds length);

}  // namespace lyrebrook
