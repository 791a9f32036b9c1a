#include "platform/forms/Desktop.h"

#include <QPrinter>
#include <cstdlib>

#include "platform/base/Check.h"
#include "platform/printing/PaperPrinter.h"

namespace lyrebrook {
namespace {

Desktop* desktopInUse = nullptr;

}  // namespace

Printer& Desktop::printer() {
    if (!printer_) printer_ = std::make_unique<PaperPrinter>(std::make_unique<QPrinter>(QPrinter::HighResolution));
    return *printer_;
}

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
