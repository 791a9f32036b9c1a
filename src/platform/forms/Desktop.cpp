#include "platform/forms/Desktop.h"

#include <cstdlib>

#include "platform/base/Check.h"

namespace lyrebrook {
namespace {

Desktop* desktopInUse = nullptr;

}  // namespace

void Desktop::generalError(std::int32_t number, const QString& description) {
    showGeneralError(number, description);
    lyrebrook::endProgram();
}

double Desktop::secondsSinceMidnight() const {
    return now().time().msecsSinceStartOfDay() / 1000.0;
}

Desktop& desktop() {
    CHECK(desktopInUse);
    return *desktopInUse;
}

void setDesktop(Desktop* desktop) {
    desktopInUse = desktop;
}

MsgBoxResult MsgBox(const QString& text, std::int32_t style, const QString& title) {
    return desktop().MsgBox(text, style, title);
}

void endProgram() {
    desktop().endProgram();
    std::abort();  // never reached; compilers forget that under a sanitizer a virtual call doesn't return
}

}  // namespace lyrebrook
