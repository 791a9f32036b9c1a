#pragma once

#include <QElapsedTimer>

#include "platform/forms/Desktop.h"

namespace lyrebrook {

/// The program's desktop: real dialogs, the real clock, Qt's event loop. Needs the `QApplication` to exist.
class QtDesktop final : public Desktop {
  public:
    QtDesktop();

    /// What must be silenced before the process goes away; called once, by `endProgram`.
    void setBeforeEnd(std::function<void()> beforeEnd) { beforeEnd_ = std::move(beforeEnd); }

    MsgBoxResult MsgBox(const QString& text, std::int32_t style, const QString& title) override;
    QString chooseFile(const FileQuestion& question) override;
    bool choosePrinter(QPrinter& printer) override;
    [[noreturn]] void endProgram() override;
    void DoEvents() override;
    void waitWhile(const std::function<bool()>& condition) override;
    void Sleep(std::int32_t milliseconds) override;
    QDateTime now() const override;
    std::int64_t monotonicMilliseconds() const override;
    std::unique_ptr<DesktopTimer> makeTimer(std::function<void()> tick) override;
    void openExternally(const QString& pathOrAddress) override;

  protected:
    void showGeneralError(std::int32_t number, const QString& description) override;

  private:
    std::function<void()> beforeEnd_;
    QElapsedTimer clock_;
    QElapsedTimer sinceEvents_;
};

}  // namespace lyrebrook
