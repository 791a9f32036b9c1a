#include "platform/forms/Boundary.h"

#include <exception>

#include "platform/base/RuntimeError.h"
#include "platform/forms/Desktop.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t internalError = 51;

int handlersOnStack = 0;

class HandlerScope {
  public:
    HandlerScope() { ++handlersOnStack; }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
    ~HandlerScope() { --handlersOnStack; }

    static bool outermost() { return handlersOnStack == 0; }
};

void runTrapped(const std::function<void()>& handler) {
    const HandlerScope scope;
    try {
        handler();
    } catch (const RuntimeError& error) {
        desktop().generalError(error.number(), QString::fromStdString(error.description()));
    } catch (const std::exception& error) {
        desktop().generalError(internalError, QString::fromUtf8(error.what()));
    }
}

}  // namespace

void runHandler(const std::function<void()>& handler) {
    if (desktop().ended()) return;
    try {
        runTrapped(handler);
    } catch (const ProgramEnded&) {
        if (!HandlerScope::outermost()) throw;
    }
}

void fromQt(const std::function<void()>& action) {
    try {
        action();
    } catch (const ProgramEnded&) {  // NOLINT(bugprone-empty-catch)
        // Whoever runs the event loop around this finds the program ended.
    }
}

}  // namespace lyrebrook
