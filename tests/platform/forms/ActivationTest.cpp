#include <QApplication>
#include <QDialog>

#include "Diary.h"
#include "platform/forms/ActiveForm.h"

namespace lyrebrook {
namespace {

class Screen : public Form {
  public:
    using Form::Form;
    void Form_Activate() override {
        diary << Caption();
        if (activated) activated(*this);
    }
    static inline std::function<void(Screen&)> activated;
};
class FrmA final : public Screen {
  public:
    FrmA() : Screen(QStringLiteral("A")) {}
};
class FrmB final : public Screen {
  public:
    FrmB() : Screen(QStringLiteral("B")) {}
};
class FrmC final : public Screen {
  public:
    FrmC() : Screen(QStringLiteral("C")) {}
};
FormInstance<FrmA> frmA;
FormInstance<FrmB> frmB;
FormInstance<FrmC> frmC;

class Activation : public AtDesk {
  protected:
    Activation() { Screen::activated = {}; }

    /// What the window system does when the user turns to a window.
    static void turnTo(QWidget& window) { QApplication::setActiveWindow(&window); }
    QStringList activated() {
        desk.DoEvents();
        return takeDiary();
    }
};

TEST_F(Activation, ShowActivatesAtOnceAndOnlyWhatIsNotActiveAlready) {
    frmA.Show();
    EXPECT_EQ(takeDiary(), QStringList({"A"}));
    frmA.Show();
    frmB.Show();
    frmA.Show();
    EXPECT_EQ(activated(), QStringList({"B", "A"}));
}

TEST_F(Activation, LastVisibleOneBeforeFollowsAFormThatCloses) {
    frmA.Show();
    frmB.Show();
    frmC.Show();
    frmB.Hide();
    takeDiary();
    frmC.Unload();
    EXPECT_EQ(activated(), QStringList({"A"}));
    frmB.Show();
    frmA.Unload();
    EXPECT_EQ(activated(), QStringList({"B"})) << "an inactive form goes without a change";
    frmB.Hide();
    EXPECT_EQ(activated(), QStringList());
}

TEST_F(Activation, UserTurnsToAnotherForm) {
    frmA.Show();
    frmB.Show();
    activated();
    turnTo(frmA->window());
    EXPECT_EQ(activated(), QStringList({"A"}));
    turnTo(frmB->window());
    EXPECT_EQ(activated(), QStringList({"B"}));
}

TEST_F(Activation, DialogsAndOtherProgramsGiveTheFocusBackUnnoticed) {
    frmA.Show();
    frmB.Show();
    activated();
    QDialog dialog(&frmB->window());
    dialog.show();
    turnTo(dialog);
    dialog.hide();
    turnTo(frmB->window());
    QApplication::setActiveWindow(nullptr);
    turnTo(frmB->window());
    EXPECT_EQ(activated(), QStringList());
}

TEST_F(Activation, LateNewsOfTheWindowSystemIsNotTheUsers) {
    frmA.Show();
    desk.DoEvents();
    frmB.Show();
    QEvent late(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&frmA->window(), &late);
    QCoreApplication::sendPostedEvents();  // what the window system has to say of B is still on its way
    EXPECT_EQ(activated(), QStringList({"A", "B"}));
}

TEST_F(Activation, AFormMayUnloadOthersAndItselfWhenActivated) {
    frmA.Show();
    frmB.Show();
    takeDiary();
    Screen::activated = [](Screen& form) {
        if (form.Caption() != u"C") return;
        frmB.Unload();
        form.Unload();
    };
    frmC.Show();
    EXPECT_EQ(activated(), QStringList({"C", "A"}));
    EXPECT_FALSE(frmB.isLoaded() || frmC.isLoaded());
    EXPECT_EQ(ActiveForm::window(), &frmA->window());
}

}  // namespace
}  // namespace lyrebrook
