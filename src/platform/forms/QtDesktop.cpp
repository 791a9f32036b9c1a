#include "platform/forms/QtDesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QRegularExpression>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <cstdlib>

#include "platform/forms/ActiveForm.h"

namespace lyrebrook {
namespace {

constexpr std::int32_t buttonSetMask = 0x0F;
constexpr std::int32_t iconMask = 0x70;

class QtTimer final : public DesktopTimer {
  public:
    explicit QtTimer(const std::function<void()>& tick) {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, tick);
    }

    void start(std::int32_t milliseconds) override { timer_.start(milliseconds); }
    void stop() override { timer_.stop(); }

  private:
    QTimer timer_;
};

QMessageBox::StandardButtons buttons(std::int32_t style) {
    switch (style & buttonSetMask) {
        case vbOKCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case vbYesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case vbYesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon icon(std::int32_t style) {
    switch (style & iconMask) {
        case vbCritical:
            return QMessageBox::Critical;
        case vbQuestion:
            return QMessageBox::Question;
        case vbExclamation:
            return QMessageBox::Warning;
        case vbInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

MsgBoxResult result(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return vbYes;
        case QMessageBox::No:
            return vbNo;
        case QMessageBox::Cancel:
            return vbCancel;
        default:
            return vbOK;
    }
}

/// "Text (*.txt)|*.txt" becomes "Text (*.txt)"; "*.*" means every file, with a dot or without.
QStringList nameFilters(const QString& filter) {
    static const QRegularExpression shownPatterns(QStringLiteral("\\s*\\([^)]*\\)\\s*$"));
    const QStringList fields = filter.split(u'|');
    QStringList result;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        QString patterns = fields[i + 1];
        patterns.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
        result << QString(fields[i]).remove(shownPatterns) + QStringLiteral(" (") + patterns + u')';
    }
    return result;
}

/// Ending that a file gets when it is saved under a name without one.
QString defaultSuffix(const QString& filter) {
    static const QRegularExpression onePattern(QStringLiteral("^[^|]*\\|\\*\\.(\\w+)(?:[;|]|$)"));
    return onePattern.match(filter).captured(1);
}

QString existingFolder(const QString& folder) {
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

}  // namespace

QtDesktop::QtDesktop() {
    clock_.start();
    // The program ends when it says so, not when a message box was the only window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

MsgBoxResult QtDesktop::MsgBox(const QString& text, std::int32_t style, const QString& title) {
    QMessageBox box(icon(style), title, text, buttons(style), ActiveForm::window());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return result(box.exec());
}

QString QtDesktop::chooseFile(const FileQuestion& question) {
    const bool saving = question.purpose == FileQuestion::Purpose::save;
    QFileDialog dialog(ActiveForm::window(), saving ? QStringLiteral("Save As") : QStringLiteral("Open"));
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(question.filter));
    dialog.setDefaultSuffix(defaultSuffix(question.filter));
    dialog.setDirectory(existingFolder(question.folder));
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
}

bool QtDesktop::choosePrinter(QPrinter& printer) {
    QPrintDialog dialog(&printer, ActiveForm::window());
    // Whoever prints makes all pages, and all copies. Qt offers others all the same.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    for (const char* choice : {"gbPrintRange", "reverse"}) {
        if (auto* widget = dialog.findChild<QWidget*>(QLatin1String(choice))) widget->setEnabled(false);
    }
    return dialog.exec() == QDialog::Accepted;
}

void QtDesktop::endProgram() {
    if (const auto beforeEnd = std::exchange(beforeEnd_, {})) beforeEnd();
    std::_Exit(EXIT_SUCCESS);
}

void QtDesktop::DoEvents() {
    // Loops call this once a line; a look at the event queue costs more than the line.
    if (sinceEvents_.isValid() && sinceEvents_.nsecsElapsed() < 1'000'000) return;
    constexpr int atMost = 50;  // milliseconds; a timer that is always due must not hold the caller
    QCoreApplication::processEvents(QEventLoop::AllEvents, atMost);
    sinceEvents_.start();
}

void QtDesktop::waitWhile(const std::function<bool()>& condition) {
    QTimer clock;  // wakes the loop for conditions that only time changes
    clock.start(100);
    while (condition()) QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void QtDesktop::Sleep(std::int32_t milliseconds) {
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

QDateTime QtDesktop::now() const {
    return QDateTime::currentDateTime();
}

std::int64_t QtDesktop::monotonicMilliseconds() const {
    return clock_.elapsed();
}

std::unique_ptr<DesktopTimer> QtDesktop::makeTimer(std::function<void()> tick) {
    return std::make_unique<QtTimer>(tick);
}

void QtDesktop::openExternally(const QString& pathOrAddress) {
    const bool path = QFileInfo::exists(pathOrAddress);
    QDesktopServices::openUrl(path ? QUrl::fromLocalFile(pathOrAddress) : QUrl::fromUserInput(pathOrAddress));
}

void QtDesktop::showGeneralError(std::int32_t number, const QString& description) {
    MsgBox(QStringLiteral("Run-time error '%1':\n\n%2").arg(number).arg(description), vbCritical,
           QStringLiteral("Lyrebrook"));
}

}  // namespace lyrebrook
