#include "democd/WizardDesk.h"
#include "shell/modINI.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

using WizardScreen = WizardDesk;

QStringList titles() {
    QStringList titles;
    for (int i = 0; i < frmDemoCD->comTitles.ListCount(); ++i) titles << frmDemoCD->comTitles.List(i);
    return titles;
}

TEST_F(WizardScreen, ShowsOneFreePageATab) {
    for (const int tab : {4, 2, 3, 1}) {
        frmDemoCD->TabStrip1.setSelectedItem(tab);
        for (int page = 1; page <= 4; ++page) EXPECT_EQ(frmDemoCD->Frame1[page].Visible(), page == tab);
        EXPECT_EQ(frmDemoCD->Frame1[tab].Left(), 240);
        EXPECT_EQ(frmDemoCD->Frame1[tab].Top(), 2160);
    }
}

TEST_F(WizardScreen, ListsWorksetsAndNoSongs) {
    for (const char* name :
         {"One.xon", "two.XON", "A_songData.xon", "b_SONGDATA.xOn", "x_songData_old.xon", "notes.txt"}) {
        holding((QByteArray("projects/") + name).constData(), "");
    }
    startProgram();
    EXPECT_EQ(titles(), (QStringList{"One", "two", "x_songData_old"}));
    EXPECT_EQ(frmDemoCD->comTitles.Text(), QStringLiteral("Enter new or select existing title..."));

    QDir(path("projects")).removeRecursively();
    frmDemoCD.Unload();
    EXPECT_EQ(saidDuring(1, [] { frmDemoCD.Show(); }),
              QStringList{"Invalid directory for workset files - " + path("projects/")});
    EXPECT_TRUE(titles().isEmpty());
}

TEST_F(WizardScreen, PicksFilesWithAKnownEndingAnywhereInTheirNames) {
    const QString wrongSong =
        QStringLiteral("You can only select audio files with the following extensions; *.Mid, *.Midi, *.Wav, *.Mp3");
    const QString wrongPhoto = QStringLiteral("You can only images with the following extensions: *.Jpeg, *.Gif");
    for (const char* name : {"/a/Song.MID", "/a/song.mid.txt", "/a/b.mp3"}) {
        chooseSong(2, QString::fromLatin1(name));
        EXPECT_EQ(frmDemoCD->txtPathLong[2].Text(), QString::fromLatin1(name));
        EXPECT_EQ(frmDemoCD->lblPath[2].Caption(), QFileInfo(QString::fromLatin1(name)).fileName());
    }
    EXPECT_EQ(saidDuring(1, [&] { chooseSong(2, QStringLiteral("/a.mp3/song.ogg")); }), QStringList{wrongSong});
    chooseSong(2, {});
    EXPECT_EQ(frmDemoCD->txtPathLong[2].Text(), QStringLiteral("/a/b.mp3"));
    EXPECT_EQ(saidDuring(1, [&] { choosePhoto(2, QStringLiteral("/a/me.jpeg")); }), QStringList{wrongPhoto});
    EXPECT_EQ(frmDemoCD->txtPhotoPath[2].Caption(), QStringLiteral("Not selected"));
    choosePhoto(2, QStringLiteral("/a/Me.Jpg"));
    frmDemoCD->txtPhotoDesc[2].setText(QStringLiteral("me"));
    frmDemoCD->cmdDeletePhoto[2].setValue(true);
    EXPECT_EQ(frmDemoCD->txtPhotoPathLong[2].Text() + frmDemoCD->txtPhotoDesc[2].Text(),
              QStringLiteral("Not selected"));
    const auto questions = desk().takeFileQuestions();
    EXPECT_EQ(questions.front().filter, QStringLiteral("All Files (*.*)|*.*"));
    EXPECT_EQ(questions.back().filter, QStringLiteral("Jpeg images (*.Jpg)|*.jpg|Gif Images (*.Gif)|*.Gif"));
}

TEST_F(WizardScreen, ATitleLosesItsPunctuationWhenItIsLeft) {
    frmDemoCD->comTitles.LostFocus.fire();
    EXPECT_EQ(frmDemoCD->comTitles.Text(), QStringLiteral("Enter new or select existing title"));
    frmDemoCD->comTitles.setText(QStringLiteral("My ../Demo!"));
    frmDemoCD->comTitles.LostFocus.fire();
    EXPECT_EQ(frmDemoCD->comTitles.Text(), QStringLiteral("My Demo"));
}

TEST_F(WizardScreen, LoadsWhatTheFileHoldsAndEmptiesTheRest) {
    const QString file = path("projects/Old.xon");
    const QString cv = QString(2043, u'x') + QStringLiteral("<br>cut off");
    for (const auto& [key, value] :
         {std::pair("artistName", "Bo"), {"photopath3", "b.gif"}, {"PhotoDesc3", "a<br>b"}}) {
        writeProfileValue(QStringLiteral("Project Info"), QString::fromLatin1(key), QString::fromLatin1(value), file);
    }
    writeProfileValue(QStringLiteral("Project Info"), QStringLiteral("CV"), cv, file);
    startProgram();
    frmDemoCD->txtEmail.setText(QStringLiteral("left over"));
    frmDemoCD->frmMessage.setVisible(true);
    frmDemoCD->comTitles.setListIndex(0);
    EXPECT_EQ(frmDemoCD->txtName.Text(), QStringLiteral("Bo"));
    EXPECT_EQ(frmDemoCD->txtPhotoPath[3].Caption() + frmDemoCD->txtPhotoDesc[3].Text(), QStringLiteral("b.gifa\r\nb"));
    EXPECT_EQ(frmDemoCD->txtCV.Text(), QString(2043, u'x') + QStringLiteral("\r\n"));
    EXPECT_EQ(frmDemoCD->txtEmail.Text() + frmDemoCD->lblPath[1].Caption() + frmDemoCD->txtPathLong[1].Text(),
              QString());
    EXPECT_FALSE(frmDemoCD->frmMessage.Visible());
}

TEST_F(WizardScreen, DeletesOneWorksetAndLeavesTheTexts) {
    const auto remove = [] { frmDemoCD->cmdDelete.setValue(true); };
    fillRequired();
    finalize();
    frmDemoCD->comTitles.setText(QStringLiteral(" "));
    EXPECT_EQ(saidDuring(1, remove), QStringList{"Please select a 'Workset' before you click delete"});
    frmDemoCD->comTitles.setText(QStringLiteral("Demo Workset "));
    EXPECT_EQ(saidDuring(1, remove),
              QStringList{"The 'Demo Workset' can not be deleted. You can use it as an example for other worksets."});

    const Box question{QStringLiteral("Are you sure you want to delete this workset: \"MY DEMO\" and all saved data?"),
                       vbYesNo, QStringLiteral("Delete")};
    frmDemoCD->comTitles.setText(QStringLiteral("My Demo"));
    desk().willAnswer(vbNo);
    remove();
    EXPECT_EQ(titles(), QStringList{"My Demo"});
    desk().willAnswer(vbYes);
    desk().willAnswer(vbOK);
    remove();
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(question, question, Box{QStringLiteral("Workset Deleted!")}));
    EXPECT_TRUE(titles().isEmpty() && namesIn("projects").isEmpty());
    EXPECT_EQ(frmDemoCD->txtName.Text(), QStringLiteral("x"));
    EXPECT_TRUE(QFile::exists(path("DemoCD/index.htm")));
}

}  // namespace
}  // namespace lyrebrook
