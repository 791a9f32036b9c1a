#include "platform/forms/Desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QSpinBox>
#include <QTemporaryDir>
#include <iostream>

#include "Diary.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/CommonDialog.h"
#include "platform/forms/QtDesktop.h"
#include "platform/forms/Timer.h"

namespace lyrebrook {
namespace {

class FrmClock final : public Form {
  public:
    FrmClock() : Form(QStringLiteral("Clock")) {
        on(Timer1.Tick, [this] { note("1"); });
        on(Timer2.Tick, [this] { note("2"); });
    }
    void note(const char* timer) {
        diary << QStringLiteral("%1 at %2").arg(QString::fromLatin1(timer)).arg(desktop().monotonicMilliseconds());
        if (ticked) ticked(*this);
    }
    static inline std::function<void(FrmClock&)> ticked;

    Timer Timer1{50};
    Timer Timer2{20};
};
FormInstance<FrmClock> frmClock;

class VirtualTime : public AtDesk {
  protected:
    VirtualTime() { FrmClock::ticked = {}; }
};

TEST_F(VirtualTime, TimersTickInOrderEachAtItsOwnMoment) {
    frmClock->Timer1.setEnabled(true);
    frmClock->Timer2.setEnabled(true);
    desk.advanceTime(60);
    EXPECT_EQ(takeDiary(), QStringList({"2 at 20", "2 at 40", "1 at 50", "2 at 60"}));
    frmClock->Timer2.setInterval(0);
    frmClock->Timer1.setInterval(500);
    desk.advanceTime(500);
    EXPECT_EQ(takeDiary(), QStringList({"1 at 560"}));
    frmClock->Timer1.setEnabled(false);
    desk.advanceTime(5000);
    EXPECT_EQ(takeDiary(), QStringList());
}

TEST_F(VirtualTime, ATickMayUnloadItsForm) {
    frmClock->Timer1.setEnabled(true);
    FrmClock::ticked = [](FrmClock& form) { form.Unload(); };
    desk.advanceTime(200);
    EXPECT_EQ(takeDiary(), QStringList({"1 at 50"}));
}

TEST_F(VirtualTime, SleepHoldsTimersUntilEventsRun) {
    frmClock->Timer1.setEnabled(true);
    Sleep(120);
    EXPECT_EQ(takeDiary(), QStringList());
    DoEvents();
    EXPECT_EQ(takeDiary(), QStringList({"1 at 120"}));
}

TEST_F(VirtualTime, AWaitLetsTimePassUntilItsConditionTurns) {
    desk.setNow(QDateTime(QDate(2024, 1, 1), QTime(0, 0, 10, 500)));
    EXPECT_EQ(desktop().secondsSinceMidnight(), 10.5);
    desktop().waitWhile([] { return desktop().secondsSinceMidnight() < 12; });
    EXPECT_EQ(desktop().secondsSinceMidnight(), 12.0);
}

TEST_F(VirtualTime, CancelledFileDialogsLeaveNothingOrRaiseAnError) {
    CommonDialog dialog;
    dialog.setFilter(QStringLiteral("Text (*.txt)|*.txt"));
    desk.willChoose(QStringLiteral("/songs/a.txt"));
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileTitle(), "a.txt");
    desk.willChoose({});
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName(), "");
    dialog.setCancelError(true);
    desk.willChoose({});
    EXPECT_THROW(dialog.ShowOpen(), RuntimeError);
    EXPECT_EQ(desk.takeFileQuestions().at(0).purpose, FileQuestion::Purpose::save);
}

class RealDesktop : public testing::Test {
  protected:
    RealDesktop() { setDesktop(&desk); }
    ~RealDesktop() override { setDesktop(nullptr); }

    QtDesktop desk;
};

/// Presses a button of the box that is about to open.
void willPress(QMessageBox::StandardButton button) {
    QMetaObject::invokeMethod(
        qApp,
        [button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            diary << box->windowTitle() << box->text();
            ASSERT_TRUE(box->button(button));
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            box->button(button)->click();
        },
        Qt::QueuedConnection);
}

TEST_F(RealDesktop, BoxesOfferTheButtonsOfTheirStyle) {
    struct Row {
        std::int32_t style;
        QMessageBox::StandardButton button;
        MsgBoxResult result;
    };
    for (const Row& row :
         {Row{vbOKOnly | vbCritical, QMessageBox::Ok, vbOK}, Row{vbOKCancel, QMessageBox::Cancel, vbCancel},
          Row{vbYesNoCancel | vbQuestion, QMessageBox::Cancel, vbCancel},
          Row{vbYesNoCancel | vbQuestion, QMessageBox::No, vbNo}, Row{vbYesNo | vbQuestion, QMessageBox::Yes, vbYes}}) {
        willPress(row.button);
        EXPECT_EQ(MsgBox(QStringLiteral("<b>Save & go?"), row.style), row.result) << row.style;
        EXPECT_EQ(takeDiary(), QStringList({"Lyrebrook", "<b>Save & go?"}));
    }
}

TEST_F(RealDesktop, FileDialogKnowsTheFilters) {
    QMetaObject::invokeMethod(
        qApp,
        [] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            diary << dialog->nameFilters() << dialog->defaultSuffix() << dialog->directory().path();
            dialog->reject();
        },
        Qt::QueuedConnection);
    const auto purpose = FileQuestion::Purpose::save;
    const QString filter = QStringLiteral("Pages (*.Htm)|*.htm;*.html|All Files (*.*)|*.*");
    EXPECT_EQ(desk.chooseFile({purpose, filter, QStringLiteral("c:\\")}), "");
    EXPECT_EQ(takeDiary(), QStringList({"Pages (*.htm *.html)", "All Files (*)", "htm", QDir::homePath()}));
}

TEST_F(RealDesktop, PrintDialogOffersWhatIsKept) {
    const QTemporaryDir folder;
    const QString pdf = folder.filePath(QStringLiteral("lyrics.pdf"));
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_FALSE(dialog->findChild<QWidget*>("printRange")->isEnabled());
            auto* printers = dialog->findChild<QComboBox*>("printers");
            printers->setCurrentText(QStringLiteral("Print to File (PDF)"));
            dialog->findChild<QLineEdit*>("filename")->setText(pdf);
            dialog->findChild<QSpinBox*>("copies")->setValue(2);
            dialog->accept();
        },
        Qt::QueuedConnection);
    QPrinter printer;
    EXPECT_TRUE(desk.choosePrinter(printer));
    EXPECT_EQ(printer.outputFileName(), pdf);
    EXPECT_EQ(printer.copyCount(), 2);
}

TEST_F(RealDesktop, EndsTheProcessAtOnceAfterSilence) {
    desk.setBeforeEnd([] { std::cerr << "silent"; });
    EXPECT_EXIT(desk.endProgram(), testing::ExitedWithCode(0), "^silent$");
}

TEST_F(RealDesktop, AWaitEndsWithTheEventThatTurnsItsCondition) {
    bool open = true;
    QMetaObject::invokeMethod(
        qApp, [&] { open = false; }, Qt::QueuedConnection);
    desk.waitWhile([&] { return open; });
    EXPECT_FALSE(open);
}

TEST_F(RealDesktop, DoEventsSkippedInATightLoopCatchesUp) {
    int events = 0;
    const auto post = [&] {
        QMetaObject::invokeMethod(
            qApp, [&] { ++events; }, Qt::QueuedConnection);
    };
    post();
    desk.DoEvents();
    EXPECT_EQ(events, 1);
    post();
    while (events < 2) desk.DoEvents();
}

}  // namespace
}  // namespace lyrebrook
