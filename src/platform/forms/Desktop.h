#pragma once

#include <QDateTime>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/printing/Printer.h"

class QPrinter;

namespace lyrebrook {

/// Sums of a button set and an icon say how a message box looks.
enum MsgBoxStyle : std::int32_t {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
};

enum MsgBoxResult : std::int32_t { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

/// What a file dialog is asked for. `filter` is pairs of description and patterns, all joined by "|".
struct FileQuestion {
    enum class Purpose { open, save };

    Purpose purpose = Purpose::open;
    QString filter;
    QString folder;
};

/// Thrown by a desktop whose program can't really end, so that nothing of the program runs after its end. Caught at the
/// outermost handler; no product code catches it.
struct ProgramEnded {};

/// One ticking clock. It calls its tick on the program's thread until it is stopped or destroyed.
class DesktopTimer {
  public:
    virtual ~DesktopTimer() = default;

    /// Ticks every `milliseconds` from now on; a running timer starts over.
    virtual void start(std::int32_t milliseconds) = 0;
    virtual void stop() = 0;
};

/// What the screens ask of the desktop around them: dialogs, time, the event loop, the end of the program. One object
/// at a time, reached through `desktop()`; the program's shows real dialogs, the tests' answers from a script. All
/// calls belong to the program's thread.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// `style` is a sum of `MsgBoxStyle`. Returns when the box is closed.
    virtual MsgBoxResult MsgBox(const QString& text, std::int32_t style, const QString& title) = 0;

    /// Full path of the file that was chosen, empty when the dialog was cancelled.
    virtual QString chooseFile(const FileQuestion& question) = 0;

    /// Lets the person choose a printer and set it up; false when the dialog was cancelled.
    virtual bool choosePrinter(QPrinter& printer) = 0;

    /// The printer in use: what `setPrinter` put in place last, at first the desktop's own as it stands.
    Printer& printer();
    void setPrinter(std::unique_ptr<Printer> printer) { printer_ = std::move(printer); }

    /// The last word on an error that nobody trapped; ends the program.
    [[noreturn]] void generalError(std::int32_t number, const QString& description);

    /// Ends the program at once: no form hears of it.
    [[noreturn]] virtual void endProgram() = 0;
    bool ended() const { return ended_; }

    /// Runs all pending events. May return at once when it ran within the last millisecond.
    virtual void DoEvents() = 0;

    /// Runs events until `condition` turns false; sleeps in between.
    virtual void waitWhile(const std::function<bool()>& condition) = 0;

    /// Blocks the thread: no event runs.
    virtual void Sleep(std::int32_t milliseconds) = 0;

    virtual QDateTime now() const = 0;
    virtual std::int64_t monotonicMilliseconds() const = 0;
    double secondsSinceMidnight() const;

    virtual std::unique_ptr<DesktopTimer> makeTimer(std::function<void()> tick) = 0;

    /// Opens a file, a folder or an address with the desktop's default handler.
    virtual void openExternally(const QString& pathOrAddress) = 0;

  protected:
    virtual void showGeneralError(std::int32_t number, const QString& description) = 0;
    void setEnded() { ended_ = true; }

  private:
    std::unique_ptr<Printer> printer_;
    bool ended_ = false;
};

/// The desktop in use. One must have been set.
Desktop& desktop();

/// Puts a desktop in place, or takes it away with null. It stays its maker's.
void setDesktop(Desktop* desktop);

/// Shorthands for handlers.
MsgBoxResult MsgBox(const QString& text, std::int32_t style = vbOKOnly,
                    const QString& title = QStringLiteral("Lyrebrook"));
[[noreturn]] void endProgram();
inline void DoEvents() {
    desktop().DoEvents();
}
inline void Sleep(std::int32_t milliseconds) {
    desktop().Sleep(milliseconds);
}

}  // namespace lyrebrook
