#include "democd/WizardDesk.h"
#include "shell/modINI.h"

namespace lyrebrook {
namespace {

using WizardScreen = WizardDesk;

QStringList titles() {
    QStringList titles;
    for (int i = 0; i < frmDemoCD->comTitles.ListCount(); ++i) titles << frmDemoCD->comTitles.List(i);
    return titles;
}

TEST_F(WizardScreen, ListsWorksetsAndNoSongs) {
    for (const char* name : {"One.xon", "two.XON", "A_songData.xon", "b_SONGDATA.xOn", "x_songData_old.xon", "n.txt"}) {
        holding(QString("projects/") + name, "");
    }
    startProgram();
    EXPECT_EQ(titles(), (QStringList{"One", "two", "x_songData_old"}));
    EXPECT_EQ(frmDemoCD->comTitles.Text(), "Enter new or select existing title...");

    QDir(path("projects")).removeRecursively();
    frmDemoCD.Unload();
    EXPECT_EQ(saidDuring(1, [] { frmDemoCD.Show(); }),
              QStringList{"Invalid directory for workset files - " + path("projects/")});
}

TEST_F(WizardScreen, PicksFilesWithAKnownEndingAnywhereInTheirNames) {
    const auto song = [this](const QString& file) { choose(frmDemoCD->cmdOpenSong, 2, file); };
    const auto photo = [this](const QString& file) { choose(frmDemoCD->cmdOpenPhoto, 2, file); };
    for (const QString& name : {QString("Song.MID"), QString(200, u'b') + ".mp3", QString("song.mid.txt")}) {
        song("/a/" + name);
        EXPECT_EQ(frmDemoCD->txtPathLong[2].Text() + frmDemoCD->lblPath[2].Caption(), "/a/" + name + name);
    }
    EXPECT_EQ(saidDuring(1, [&] { song("/a.mp3/song.ogg"); }),
              QStringList{"You can only select audio files with the following extensions; *.Mid, *.Midi, *.Wav, "
                          "*.Mp3"});
    song({});
    EXPECT_EQ(frmDemoCD->txtPathLong[2].Text(), "/a/song.mid.txt");

    photo("/a/Me.Jpg");
    EXPECT_EQ(saidDuring(1, [&] { photo("/a/me.jpeg"); }),
              QStringList{"You can only images with the following extensions: *.Jpeg, *.Gif"});
    EXPECT_EQ(frmDemoCD->txtPhotoPathLong[2].Text() + frmDemoCD->txtPhotoPath[2].Caption(), "/a/Me.JpgMe.Jpg");
    frmDemoCD->txtPhotoDesc[2].setText("me");
    frmDemoCD->cmdDeletePhoto[2].setValue(true);
    EXPECT_EQ(frmDemoCD->txtPhotoPath[2].Caption() + frmDemoCD->txtPhotoDesc[2].Text(), "Not selected");
    EXPECT_EQ(frmDemoCD->txtPhotoPathLong[2].Text(), "Not selected");
}

TEST_F(WizardScreen, ShowsOneFreePageATabAndATitleWithoutPunctuationOnceItIsLeft) {
    for (const int tab : {4, 2, 3, 1}) {
        frmDemoCD->TabStrip1.setSelectedItem(tab);
        for (int page = 1; page <= 4; ++page) EXPECT_EQ(frmDemoCD->Frame1[page].Visible(), page == tab);
        EXPECT_EQ(frmDemoCD->Frame1[tab].Left() + frmDemoCD->Frame1[tab].Top(), 240 + 2160);
    }
    desk().DoEvents();  // until then no window has the focus
    for (const QString& safe : {QString("Enter new or select existing title"), QString("My Demo")}) {
        frmDemoCD->comTitles.SetFocus();
        frmDemoCD->txtName.SetFocus();
        EXPECT_EQ(frmDemoCD->comTitles.Text(), safe);
        frmDemoCD->comTitles.setText("My ../Demo!");
    }
}

TEST_F(WizardScreen, LoadsWhatTheFileHoldsAndEmptiesTheRest) {
    const QString longest(2043, u'x');
    for (const auto& [key, value] : {std::pair<QString, QString>("artistName", "Bo"),
                                     {"photopath3", "b.gif"},
                                     {"PhotoDesc3", "a<br>b"},
                                     {"Song3PathLong", "@PROGRAM_FOLDER@/DemoCD_Example/Demo1/a.wav"},
                                     {"CV", longest + "<br>cut off"}}) {
        writeProfileValue("Project Info", key, value, path("projects/Old.xon"));
    }
    startProgram();
    frmDemoCD->txtEmail.setText("left over");
    frmDemoCD->frmMessage.setVisible(true);
    frmDemoCD->comTitles.setListIndex(0);
    EXPECT_EQ(frmDemoCD->txtName.Text(), "Bo");
    EXPECT_EQ(frmDemoCD->txtPhotoPath[3].Caption() + frmDemoCD->txtPhotoDesc[3].Text(), "b.gifa\r\nb");
    EXPECT_EQ(frmDemoCD->txtPathLong[3].Text(), path("DemoCD_Example/Demo1/a.wav"));
    EXPECT_EQ(frmDemoCD->txtCV.Text(), longest + "\r\n");
    EXPECT_EQ(frmDemoCD->txtEmail.Text() + frmDemoCD->lblPath[1].Caption() + frmDemoCD->txtPathLong[1].Text(), "");
    EXPECT_FALSE(frmDemoCD->frmMessage.Visible());
}

TEST(WorksetHtml, HoldsOneTagForALineBreakOfAnyKind) {
    Workset workset;
    workset.postal = "a\r\nb\rc\n\nd";
    EXPECT_EQ(htmlOf(workset).postalHtml, "a<br>b<br>c<br><br>d");
}

TEST_F(WizardScreen, DeletesOneWorksetAndLeavesTheTexts) {
    const auto remove = [] { frmDemoCD->cmdDelete.setValue(true); };
    fillRequired();
    finalize();
    frmDemoCD->comTitles.setText(" ");
    EXPECT_EQ(saidDuring(1, remove), QStringList{"Please select a 'Workset' before you click delete"});
    frmDemoCD->comTitles.setText("Demo Workset ");
    EXPECT_EQ(saidDuring(1, remove),
              QStringList{"The 'Demo Workset' can not be deleted. You can use it as an example for other worksets."});

    const Box question{"Are you sure you want to delete this workset: \"MY DEMO\" and all saved data?", vbYesNo,
                       "Delete"};
    frmDemoCD->comTitles.setText("My Demo");
    desk().willAnswer(vbNo);
    remove();
    EXPECT_EQ(titles(), QStringList{"My Demo"});
    desk().willAnswer(vbYes);
    desk().willAnswer(vbOK);
    remove();
    EXPECT_THAT(desk().takeBoxes(), testing::ElementsAre(question, question, Box{"Workset Deleted!"}));
    EXPECT_TRUE(titles().isEmpty() && namesIn("projects").isEmpty());
    EXPECT_EQ(frmDemoCD->txtName.Text(), "x");
    EXPECT_TRUE(QFile::exists(path("DemoCD/index.htm")));
}

}  // namespace
}  // namespace lyrebrook
