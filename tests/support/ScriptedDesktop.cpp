#include "support/ScriptedDesktop.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPrinter>
#include <algorithm>

#include "platform/forms/Boundary.h"
#include "platform/forms/FormInstance.h"

namespace lyrebrook {

std::ostream& operator<<(std::ostream& out, const Box& box) {
    return out << '"' << box.text.toStdString() << "\", style " << box.style << ", title \"" << box.title.toStdString()
               << '"';
}

class ScriptedDesktop::VirtualTimer final : public DesktopTimer {
  public:
    VirtualTimer(ScriptedDesktop& desktop, std::function<void()> tick) : desktop_(desktop), tick_(std::move(tick)) {
        desktop_.timers_.push_back(this);
    }
    ~VirtualTimer() override { std::erase(desktop_.timers_, this); }

    void start(std::int32_t milliseconds) override {
        interval_ = milliseconds;
        due_ = desktop_.elapsed_ + interval_;
    }
    void stop() override { due_ = never; }

    std::int64_t due() const { return due_; }
    void fire() {
        due_ = std::max(due_, desktop_.elapsed_) + interval_;
        const auto tick = tick_;  // the tick may take the timer away
        tick();
    }

    static constexpr std::int64_t never = INT64_MAX;

  private:
    ScriptedDesktop& desktop_;
    std::function<void()> tick_;
    std::int64_t interval_ = 0;
    std::int64_t due_ = never;
};

ScriptedDesktop::ScriptedDesktop() : start_(QDate(2024, 5, 17), QTime(12, 0)) {
    setDesktop(this);
}

ScriptedDesktop::~ScriptedDesktop() {
    FormSlot::discardAll();
    setDesktop(nullptr);
    if (!answers_.empty()) qCritical() << answers_.size() << "expected message boxes were never shown";
    if (!choices_.empty()) qCritical() << choices_.size() << "expected file dialogs were never shown";
    if (!printers_.empty()) qCritical() << printers_.size() << "expected printer dialogs were never shown";
    if (!waitActions_.empty()) qCritical() << waitActions_.size() << "expected waits never came";
    if (!generalError_.isEmpty()) qCritical() << "the program ended by the error" << generalError_;
}

void ScriptedDesktop::willAnswer(MsgBoxResult answer, std::function<void()> meanwhile) {
    answers_.push_back({answer, std::move(meanwhile)});
}

void ScriptedDesktop::willChoose(const QString& path) {
    choices_.push_back(path);
}

void ScriptedDesktop::willPrintTo(const QString& pdf, int copies, const QPageSize& paper) {
    printers_.push_back([=](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        printer.setCopyCount(copies);
        printer.setPageSize(paper);
    });
}

void ScriptedDesktop::whileWaiting(std::function<void()> action) {
    waitActions_.push_back(std::move(action));
}

std::vector<Box> ScriptedDesktop::takeBoxes() {
    return std::exchange(boxes_, {});
}

std::vector<FileQuestion> ScriptedDesktop::takeFileQuestions() {
    return std::exchange(fileQuestions_, {});
}

QStringList ScriptedDesktop::takeOpened() {
    return std::exchange(opened_, {});
}

QString ScriptedDesktop::takeGeneralError() {
    return std::exchange(generalError_, {});
}

void ScriptedDesktop::advanceTime(std::int32_t milliseconds) {
    fireTimers(elapsed_ + milliseconds);
    DoEvents();
}

void ScriptedDesktop::setNow(const QDateTime& now) {
    start_ = now.addMSecs(-elapsed_);
}

void ScriptedDesktop::fireTimers(std::int64_t until) {
    while (!ended()) {
        const auto next = std::min_element(timers_.begin(), timers_.end(),
                                           [](const auto* a, const auto* b) { return a->due() < b->due(); });
        if (next == timers_.end() || (*next)->due() > until) break;
        elapsed_ = std::max(elapsed_, (*next)->due());
        (*next)->fire();
    }
    elapsed_ = std::max(elapsed_, until);
}

void ScriptedDesktop::stopIfEnded() const {
    if (ended()) throw ProgramEnded();
}

MsgBoxResult ScriptedDesktop::MsgBox(const QString& text, std::int32_t style, const QString& title) {
    boxes_.push_back({text, style, title});
    if (answers_.empty()) {
        qCritical() << "unexpected message box:" << text << "style" << style << "title" << title;
        endProgram();
    }
    const Answer answer = std::move(answers_.front());
    answers_.pop_front();
    if (answer.meanwhile) fromQt(answer.meanwhile);
    stopIfEnded();
    return answer.result;
}

QString ScriptedDesktop::chooseFile(const FileQuestion& question) {
    fileQuestions_.push_back(question);
    if (choices_.empty()) {
        qCritical() << "unexpected file dialog for" << question.filter;
        endProgram();
    }
    const QString choice = choices_.front();
    choices_.pop_front();
    return choice;
}

bool ScriptedDesktop::choosePrinter(QPrinter& printer) {
    if (printers_.empty()) {
        qCritical() << "unexpected printer dialog";
        endProgram();
    }
    const auto setUp = std::exchange(printers_.front(), {});
    printers_.pop_front();
    setUp(printer);
    return !printer.outputFileName().isEmpty();
}

void ScriptedDesktop::endProgram() {
    setEnded();
    throw ProgramEnded();
}

void ScriptedDesktop::DoEvents() {
    fireTimers(elapsed_);
    QCoreApplication::processEvents();
    stopIfEnded();
}

void ScriptedDesktop::waitWhile(const std::function<bool()>& condition) {
    constexpr std::int64_t step = 10;
    constexpr std::int64_t patience = 60'000;
    std::int64_t waited = 0;
    DoEvents();
    while (condition()) {
        if (!waitActions_.empty()) {
            const auto action = std::move(waitActions_.front());
            waitActions_.pop_front();
            fromQt(action);
        } else if (waited < patience) {
            waited += step;
            fireTimers(elapsed_ + step);
        } else {
            qCritical() << "a wait that nothing ends";
            endProgram();
        }
        DoEvents();
    }
}

std::unique_ptr<DesktopTimer> ScriptedDesktop::makeTimer(std::function<void()> tick) {
    return std::make_unique<VirtualTimer>(*this, std::move(tick));
}

void ScriptedDesktop::showGeneralError(std::int32_t number, const QString& description) {
    generalError_ = QStringLiteral("%1: %2").arg(number).arg(description);
}

}  // namespace lyrebrook
