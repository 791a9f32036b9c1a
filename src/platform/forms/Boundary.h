#pragma once

#include <functional>

namespace lyrebrook {

/// Runs a handler. An error that leaves it goes to the general error dialog and ends the program. The outermost handler
/// on the stack also swallows the end of a program that can't really end; inner ones pass it on, so that nothing of the
/// handlers around them runs any more.
void runHandler(const std::function<void()>& handler);

/// Runs what a signal or an event of Qt's causes: nothing may unwind through Qt, not even the end of the program.
void fromQt(const std::function<void()>& action);

}  // namespace lyrebrook
