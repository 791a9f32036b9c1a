#pragma once

#include <QPageSize>
#include <QStringList>
#include <cstdint>
#include <deque>
#include <functional>
#include <ostream>
#include <vector>

#include "platform/forms/Desktop.h"

namespace lyrebrook {

/// A message box as it was asked for, word for word.
struct Box {
    QString text;
    std::int32_t style = vbOKOnly;
    QString title = QStringLiteral("Lyrebrook");

    bool operator==(const Box&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Box& box);

/// The tests' desktop. It is in place from its making to its end, and then takes all forms away, so that every test
/// starts with none. Boxes and file dialogs are answered in the order of the script; one without an answer fails the
/// test, and so do an answer that nobody asked for and a general error that nobody took. Time stands still but for
/// `advanceTime`, `Sleep` and `waitWhile`.
class ScriptedDesktop final : public Desktop {
  public:
    ScriptedDesktop();
    ~ScriptedDesktop() override;

    /// The next box gets this answer; `meanwhile` happens while it is open.
    void willAnswer(MsgBoxResult answer, std::function<void()> meanwhile = {});
    /// The next file dialog gives this path; empty cancels it.
    void willChoose(const QString& path);
    /// The next printer dialog gives this PDF file, on paper of that size; empty cancels it.
    void willPrintTo(const QString& pdf, int copies = 1, const QPageSize& paper = QPageSize(QPageSize::A4));
    /// The next wait that has nothing pending finds this happening.
    void whileWaiting(std::function<void()> action);

    /// What was asked since the last call.
    std::vector<Box> takeBoxes();
    std::vector<FileQuestion> takeFileQuestions();
    /// Paths and addresses that were opened externally since the last call.
    QStringList takeOpened();
    /// The general error that ended the program, as "number: description"; empty when there was none.
    QString takeGeneralError();

    /// Lets time pass and fires the timers that fall due, in order, each at its own moment; then runs all pending
    /// events.
    void advanceTime(std::int32_t milliseconds);
    void setNow(const QDateTime& now);

    MsgBoxResult MsgBox(const QString& text, std::int32_t style, const QString& title) override;
    QString chooseFile(const FileQuestion& question) override;
    bool choosePrinter(QPrinter& printer) override;
    [[noreturn]] void endProgram() override;
    void DoEvents() override;
    void waitWhile(const std::function<bool()>& condition) override;
    void Sleep(std::int32_t milliseconds) override { elapsed_ += milliseconds; }
    QDateTime now() const override { return start_.addMSecs(elapsed_); }
    std::int64_t monotonicMilliseconds() const override { return elapsed_; }
    std::unique_ptr<DesktopTimer> makeTimer(std::function<void()> tick) override;
    void openExternally(const QString& pathOrAddress) override { opened_ << pathOrAddress; }

  protected:
    void showGeneralError(std::int32_t number, const QString& description) override;

  private:
    class VirtualTimer;

    struct Answer {
        MsgBoxResult result;
        std::function<void()> meanwhile;
    };

    /// Fires what is due up to `until`, and stands there.
    void fireTimers(std::int64_t until);
    void stopIfEnded() const;

    std::deque<Answer> answers_;
    std::deque<QString> choices_;
    std::deque<std::function<void(QPrinter&)>> printers_;
    std::deque<std::function<void()>> waitActions_;
    std::vector<Box> boxes_;
    std::vector<FileQuestion> fileQuestions_;
    QStringList opened_;
    QString generalError_;
    QDateTime start_;
    std::int64_t elapsed_ = 0;
    std::vector<VirtualTimer*> timers_;
};

}  // namespace lyrebrook
