#include "platform/forms/Form.h"

#include <QTest>
#include <stdexcept>

#include "Diary.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/MenuEntry.h"
#include "platform/forms/TextBox.h"

namespace lyrebrook {
namespace {

class FrmDesk final : public Form {
  public:
    FrmDesk() : Form(QStringLiteral("Desk")) {
        on(cmdGo.Click, [this] {
            if (const auto act = go) act(*this);
        });
        on(cmdOther.Click, [] { diary << QStringLiteral("other"); });
        on(mnuPlay.Click, [] { diary << QStringLiteral("play"); });
        mnuPlay.setShortcut(Qt::Key_Space);
        cmdOther.Move(0, 600);
        txtWord.Move(0, 1200);
        diary << QStringLiteral("made");
    }
    ~FrmDesk() override { diary << QStringLiteral("destroyed"); }

    void Form_Load() override {
        diary << QStringLiteral("load");
        if (load) load(*this);
    }
    void Form_Unload() override {
        diary << QStringLiteral("unload");
        Unload();  // while it is being unloaded, that is nothing
    }
    void touch() { diary << QStringLiteral("touch"); }
    void unloadAndGoOn() {
        Unload();
        word = QStringLiteral("alive");
        diary << word;
    }

    CommandButton cmdGo{content(), QStringLiteral("Go")};
    CommandButton cmdOther{content(), QStringLiteral("Other")};
    TextBox txtWord{content()};
    MenuEntry mnuTransport{*this, QStringLiteral("Transport")};
    MenuEntry mnuPlay{mnuTransport, QStringLiteral("Play")};
    QString word;

    static inline std::function<void(FrmDesk&)> go, load;
};

FormInstance<FrmDesk> frmDesk;

class FormLife : public AtDesk {
  protected:
    FormLife() { FrmDesk::go = FrmDesk::load = {}; }

    static void whenClicked(std::function<void(FrmDesk&)> go) { FrmDesk::go = std::move(go); }
    static void clickGo() { QTest::mouseClick(frmDesk->cmdGo, Qt::LeftButton); }
};

TEST_F(FormLife, FirstCallLoadsOnceAndUnloadMakesRoomForAFreshForm) {
    EXPECT_FALSE(frmDesk.isLoaded());
    frmDesk.Unload();
    frmDesk->touch();
    frmDesk->touch();
    EXPECT_EQ(takeDiary(), QStringList({"made", "load", "touch", "touch"}));
    EXPECT_FALSE(frmDesk->Visible());
    frmDesk.Unload();
    EXPECT_FALSE(frmDesk.isLoaded());
    desk.DoEvents();
    frmDesk->touch();
    EXPECT_EQ(takeDiary(), QStringList({"unload", "destroyed", "made", "load", "touch"}));
}

TEST_F(FormLife, AFormThatUnloadsItselfLivesUntilItsHandlersAreDone) {
    frmDesk.Show();
    frmDesk.Unload();  // an earlier form waits to be destroyed
    frmDesk.Show();
    whenClicked([this](FrmDesk& form) {
        form.Unload();
        EXPECT_FALSE(frmDesk.isLoaded());
        desk.DoEvents();
        form.cmdOther.setValue(true);
        form.touch();
    });
    takeDiary();
    clickGo();
    EXPECT_EQ(takeDiary(), QStringList({"unload", "touch"})) << "an unloaded form hears no event, and isn't destroyed";
    desk.DoEvents();
    EXPECT_EQ(takeDiary(), QStringList({"destroyed", "destroyed"}));
}

TEST_F(FormLife, AProcedureMayUnloadItsFormAndGoOn) {
    frmDesk->unloadAndGoOn();
    desk.DoEvents();
    EXPECT_EQ(takeDiary(), QStringList({"made", "load", "unload", "alive", "destroyed"}));
}

TEST_F(FormLife, ReloadInAHandlerShowsAFreshFormWhileTheOldOneFinishes) {
    frmDesk.Show();
    whenClicked([](FrmDesk& form) {
        form.Unload();
        frmDesk.Show();
        EXPECT_NE(&*frmDesk, &form);
    });
    clickGo();
    desk.DoEvents();
    EXPECT_EQ(takeDiary(), QStringList({"made", "load", "unload", "made", "load", "destroyed"}));
    EXPECT_TRUE(frmDesk->Visible());
}

TEST_F(FormLife, CloseButtonUnloadsAlsoWhileAHandlerWaitsBelow) {
    frmDesk.Show();
    whenClicked([this](FrmDesk& form) {
        desk.whileWaiting([&] { form.window().close(); });
        desk.waitWhile([] { return frmDesk.isLoaded(); });
        form.touch();
    });
    clickGo();
    desk.DoEvents();
    EXPECT_EQ(takeDiary(), QStringList({"made", "load", "unload", "touch", "destroyed"}));
}

TEST_F(FormLife, LoadMayAskAQuestionAndUnloadTheForm) {
    FrmDesk::load = [](FrmDesk& form) {
        MsgBox(QStringLiteral("No sound."), vbInformation, QStringLiteral("Exiting..."));
        form.Unload();
    };
    desk.willAnswer(vbOK);
    frmDesk.Show();
    EXPECT_FALSE(frmDesk.isLoaded());
    EXPECT_EQ(desk.takeBoxes(), std::vector<Box>({{"No sound.", vbInformation, "Exiting..."}}));
}

TEST_F(FormLife, AnErrorOfLoadReachesTheCallersTrap) {
    FrmDesk::load = [](FrmDesk&) { throw RuntimeError(RuntimeErrorNumber::pathNotFound, "Path not found"); };
    EXPECT_THROW(frmDesk.Show(), RuntimeError);
    EXPECT_FALSE(frmDesk.isLoaded());
}

TEST_F(FormLife, AnErrorThatLeavesAHandlerEndsTheProgram) {
    frmDesk.Show();
    whenClicked([](FrmDesk&) { throw RuntimeError(RuntimeErrorNumber::typeMismatch, "Type mismatch"); });
    clickGo();
    EXPECT_EQ(desk.takeGeneralError(), "13: Type mismatch");
    EXPECT_TRUE(desk.ended());
    takeDiary();
    frmDesk->cmdOther.setValue(true);
    EXPECT_EQ(takeDiary(), QStringList()) << "nothing runs after the end";
}

TEST_F(FormLife, ForeignErrorsEndTheProgramToo) {
    frmDesk.Show();
    whenClicked([](FrmDesk&) { throw std::out_of_range("vector"); });
    clickGo();
    EXPECT_EQ(desk.takeGeneralError(), "51: vector");
}

TEST_F(FormLife, TheEndInAnInnerHandlerAlsoStopsTheHandlersAroundIt) {
    frmDesk.Show();
    whenClicked([this](FrmDesk& form) {
        FrmDesk::go = [](FrmDesk&) { desktop().endProgram(); };
        desk.willAnswer(vbOK, [&] { QTest::mouseClick(form.cmdGo, Qt::LeftButton); });
        MsgBox(QStringLiteral("Wait"));
        diary << QStringLiteral("went on");
    });
    takeDiary();
    clickGo();
    EXPECT_TRUE(desk.ended());
    EXPECT_EQ(takeDiary(), QStringList());
}

TEST_F(FormLife, TheEndInAHandlerThatCodeSetOffStopsThatCode) {
    frmDesk.Show();
    whenClicked([](FrmDesk& form) {
        FrmDesk::go = [](FrmDesk&) { desktop().endProgram(); };
        form.cmdGo.setValue(true);
        diary << QStringLiteral("went on");
    });
    takeDiary();
    clickGo();
    EXPECT_EQ(takeDiary(), QStringList());
}

TEST_F(FormLife, FixedClientAreaIsAsLargeAsAskedForUnderItsMenuBar) {
    FrmDesk::load = [](FrmDesk& form) { form.setFixedClientSize(9150, 7200); };
    frmDesk.Show();
    desk.DoEvents();
    frmDesk->window().resize(100, 100);
    desk.DoEvents();
    EXPECT_EQ(frmDesk->content()->size(), QSize(610, 480));
}

TEST_F(FormLife, TransportKeyBeatsAFocusedButtonButNotTyping) {
    frmDesk.Show();
    desk.DoEvents();
    takeDiary();
    frmDesk->cmdOther.SetFocus();
    QTest::keyClick(frmDesk->cmdOther, Qt::Key_Space);
    EXPECT_EQ(takeDiary(), QStringList({"play"}));
    frmDesk->txtWord.SetFocus();
    QTest::keyClick(frmDesk->txtWord, Qt::Key_Space);
    EXPECT_EQ(takeDiary(), QStringList());
    EXPECT_EQ(frmDesk->txtWord.Text(), " ");
    frmDesk->mnuPlay.setEnabled(false);
    QTest::keyClick(frmDesk->cmdOther, Qt::Key_Space);
    EXPECT_EQ(takeDiary(), QStringList({"other"}));
}

}  // namespace
}  // namespace lyrebrook
