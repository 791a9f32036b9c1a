#include "democd/FrmDemoCD.h"

#include <QTimer>

#include "democd/WizardDesk.h"
#include "platform/files/FailingDisk.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

class Finalizing : public WizardDesk {
  protected:
    void fillAll() {
        frmDemoCD->comTitles.setText(QStringLiteral("My Demo"));
        frmDemoCD->txtName.setText(QStringLiteral("Zoë & the <b>Band</b> (c) |*CopyrightOwner*|"));
        frmDemoCD->txtAge.setText(QStringLiteral("27"));
        frmDemoCD->txtCountry.setText(QStringLiteral("Norway"));
        frmDemoCD->txtOwner.setText(QStringLiteral("Zoë Müller"));
        frmDemoCD->txtCV.setText(QStringLiteral("Born in Oslo\r\nSings &\r\n\r\nwrites"));
        frmDemoCD->txtEmail.setText(QStringLiteral("zoe@example.org"));
        frmDemoCD->txtPostal.setText(QStringLiteral("Street 1\r\n0150 Oslo"));
        frmDemoCD->txtPhone.setText(QStringLiteral("+47 1"));
        frmDemoCD->txtSongTitle[1].setText(QStringLiteral("First \"one\""));
        chooseSong(1, holding("songs/First Song.WAV", "first"));
        chooseSong(3, holding("songs/third.mid.txt", "third"));
        frmDemoCD->txtPhotoDesc[1].setText(QStringLiteral("On stage,\r\n2024"));
        choosePhoto(1, holding("songs/Stage.jpg", "stage"));
        choosePhoto(2, holding("songs/me.gif", "me"));
    }

    void expectPage(const char* page, const char* expected) const {
        EXPECT_EQ(bytesOf(path("DemoCD/") + QString::fromLatin1(page)),
                  bytesOf(testData("expected/") + QString::fromLatin1(expected)));
    }

    /// What the media folder's failure says, up to the cause.
    QString deniedFor(const char* cause) const {
        return QStringLiteral(
                   "Access to CD directory denied!\r\n\r\nCause: %1 | Directory causing error: %2\r\n\r\n"
                   "Solution: It is possible that the files are currently open in your browser. Close the "
                   "browser window and try again!")
            .arg(QString::fromLatin1(cause), path("DemoCD/Demo1"));
    }
};

TEST_F(Finalizing, MakesASiteThatAnotherRunLoadsAndMakesAnewWithoutASong) {
    holding("DemoCD/style.css", "mine");
    fillAll();
    finalize();
    expectPage("index.htm", "index.htm");
    expectPage("music.htm", "music.htm");
    expectPage("photos.htm", "photos.htm");
    expectPage("contact.htm", "contact.htm");
    EXPECT_EQ(bytesOf(path("DemoCD/demo1/First Song.WAV")), "first") << "under the name that the pages spell";
    EXPECT_THAT(namesIn("DemoCD/Demo1"),
                testing::UnorderedElementsAre("First Song.WAV", "third.mid.txt", "Stage.jpg", "me.gif"));
    EXPECT_TRUE(frmDemoCD->frmMessage.Visible() && stepIsDone());
    EXPECT_FALSE(frmDemoCD->lblFeedback.Visible());
    EXPECT_EQ(frmDemoCD->comTitles.Text(), QStringLiteral("My Demo"));

    startProgram();
    frmDemoCD->comTitles.setListIndex(0);
    EXPECT_EQ(frmDemoCD->txtCV.Text(), QStringLiteral("Born in Oslo\r\nSings &\r\n\r\nwrites"));
    frmDemoCD->cmdDeleteFile[1].setValue(true);
    QFile::remove(path("songs/me.gif"));
    finalize();
    expectPage("index.htm", "index.htm");
    expectPage("music.htm", "musicWithoutFirst.htm");
    expectPage("photos.htm", "photos.htm");
    expectPage("contact.htm", "contact.htm");
    EXPECT_THAT(namesIn("DemoCD/Demo1"), testing::UnorderedElementsAre("third.mid.txt", "Stage.jpg"));
    EXPECT_EQ(bytesOf(path("DemoCD/style.css")), "mine");
    EXPECT_THAT(namesIn("projects"), ElementsAre("My Demo.xon"));
}

TEST_F(Finalizing, WritesTheWorksetKeyByKey) {
    fillAll();
    finalize();
    const QByteArray folder = path("songs/").toUtf8();
    EXPECT_EQ(bytesOf(path("projects/My Demo.xon")),
              "[Project Info]\r\nprojectName=My Demo\r\n"
              "artistName=Zoë & the <b>Band</b> (c) |*CopyrightOwner*|\r\nAge=27\r\nPostal=Street 1<br>0150 Oslo\r\n"
              "Email=zoe@example.org\r\nPhone=+47 1\r\nCountry=Norway\r\nOwner=Zoë Müller\r\n"
              "CV=Born in Oslo<br>Sings &<br><br>writes\r\n"
              "Song1Title=First \"one\"\r\nSong1Path=First Song.WAV\r\nSong1PathLong=" +
                  folder +
                  "First Song.WAV\r\n"
                  "Song2Title=\r\nSong2Path=Not selected\r\nSong2PathLong=Not selected\r\n"
                  "Song3Title=\r\nSong3Path=third.mid.txt\r\nSong3PathLong=" +
                  folder +
                  "third.mid.txt\r\n"
                  "PhotoDesc1=On stage,<br>2024\r\nphotoPath1=Stage.jpg\r\nphotoPathLong1=" +
                  folder +
                  "Stage.jpg\r\n"
                  "PhotoDesc2=\r\nphotoPath2=me.gif\r\nphotoPathLong2=" +
                  folder +
                  "me.gif\r\n"
                  "PhotoDesc3=\r\nphotoPath3=Not selected\r\nphotoPathLong3=Not selected\r\n");
}

TEST_F(Finalizing, RefusesWhatLacksATitleOrAnArtistAndLightsTheStepAllTheSame) {
    const QString needTitle =
        QStringLiteral("Please enter or select a TITLE for your CD in STEP 1 of this wizard before you finalize!");
    const QString needFields =
        QStringLiteral("Please fill out ALL the fields in STEP 1 of this wizard before you finalize!");
    EXPECT_EQ(saidDuring(1, finalize), QStringList{needTitle});
    EXPECT_TRUE(stepIsDone());
    fillRequired();
    frmDemoCD->comTitles.setText(QStringLiteral("  "));
    EXPECT_EQ(saidDuring(1, finalize), QStringList{needTitle});
    frmDemoCD->comTitles.setText(QStringLiteral("Enter new or select existing title"));
    for (TextBox* box :
         {&frmDemoCD->txtName, &frmDemoCD->txtAge, &frmDemoCD->txtCountry, &frmDemoCD->txtOwner, &frmDemoCD->txtCV}) {
        box->setText(QStringLiteral(" "));
        EXPECT_EQ(saidDuring(1, finalize), QStringList{needFields});
        box->setText(QStringLiteral("x"));
    }
    EXPECT_TRUE(namesIn("DemoCD").isEmpty() && namesIn("projects").isEmpty());
    finalize();
    EXPECT_THAT(namesIn("projects"), ElementsAre("Enter new or select existing title.xon"));
}

TEST_F(Finalizing, TheDemoWorksetIsShownAndNeverWritten) {
    fillRequired();
    frmDemoCD->comTitles.setText(QStringLiteral("Demo Workset"));
    EXPECT_EQ(saidDuring(1, finalize),
              QStringList{"The 'Demo Workset' that you've chosen can not be updated or changed. It must be used as an "
                          "example when creating other worksets."});
    EXPECT_TRUE(namesIn("DemoCD").isEmpty() && namesIn("projects").isEmpty());
    EXPECT_TRUE(frmDemoCD->frmMessage.Visible() && stepIsDone());
    frmDemoCD->comTitles.setText(QStringLiteral(" Demo Workset"));
    frmDemoCD->Label10.Click.fire();
    frmDemoCD->lblwebURL.Click.fire();
    frmDemoCD->comTitles.setText(QStringLiteral("demo workset"));
    frmDemoCD->lblwebURL.Click.fire();
    frmDemoCD->Label10.Click.fire();
    EXPECT_EQ(desk().takeOpened(), (QStringList{path("DemoCD_Example/"), path("DemoCD_Example/index.htm"),
                                                path("DemoCD/index.htm"), path("DemoCD/")}));
    EXPECT_EQ(frmDemoCD->lblCDPath.Caption(), path("DemoCD/"));
}

TEST_F(Finalizing, AMissingTemplateOrALockedPageDoesNotKeepTheOthersFromComingOut) {
    fillRequired();
    QFile::remove(path("templates/cdRedPlayer/music.htm"));
    QFile::setPermissions(holding("DemoCD/photos.htm", "old"), QFile::ReadOwner);
    EXPECT_EQ(
        saidDuring(2, finalize),
        (QStringList{
            "Template file not found. Error: File not found\r\nFilepath: " + path("templates/cdRedPlayer/music.htm"),
            "File can not be saved!\r\n\r\nCause: Permission denied | File giving error: " + path("DemoCD/photos.htm") +
                "\r\n\r\nSolution: It is possible that the files open in your browser. Close the browser window and "
                "try again!"}));
    EXPECT_EQ(bytesOf(path("DemoCD/music.htm")), "");
    EXPECT_EQ(bytesOf(path("DemoCD/photos.htm")), "old");
    EXPECT_TRUE(QFile::exists(path("DemoCD/contact.htm")));
    EXPECT_TRUE(frmDemoCD->frmMessage.Visible());
}

TEST_F(Finalizing, AWorksetFromElsewhereWritesNothingOutsideItsFolder) {
    fillRequired();
    frmDemoCD->txtPathLong[1].setText(holding("songs/evil", "evil"));
    for (const char* name : {"../evil.wav", "..", "sub/evil.wav", "..\\evil.wav", "/tmp/evil.wav"}) {
        frmDemoCD->lblPath[1].setCaption(QString::fromLatin1(name));
        EXPECT_EQ(saidDuring(1, finalize), QStringList{deniedFor((QByteArray("Bad file name: ") + name).constData())});
        EXPECT_TRUE(namesIn("DemoCD/Demo1").isEmpty());
        EXPECT_FALSE(frmDemoCD->frmMessage.Visible() || frmDemoCD->lblFeedback.Visible() || stepIsDone());
    }
    frmDemoCD->lblPath[1].setCaption(QStringLiteral("wait...wav"));
    finalize();
    EXPECT_THAT(namesIn("DemoCD/Demo1"), ElementsAre("wait...wav"));
    frmDemoCD->lblPath[1].setCaption({});
    finalize();
    EXPECT_THAT(namesIn("DemoCD/Demo1"), ElementsAre("evil")) << "no name of its own";
}

TEST_F(Finalizing, AMediaFolderThatIsALinkIsTakenAwayAndNotFollowed) {
    fillRequired();
    QDir().mkdir(path("mine"));
    holding("mine/song", "mine");
    QFile::link(path("mine"), path("DemoCD/Demo1"));
    QFile::link(path("mine"), path("DemoCD/demo1"));
    finalize();
    EXPECT_EQ(bytesOf(path("mine/song")), "mine");
    EXPECT_FALSE(QFileInfo(path("DemoCD/Demo1")).isSymLink());
    EXPECT_EQ(QFile::symLinkTarget(path("DemoCD/demo1")), path("DemoCD/Demo1"));
}

TEST_F(Finalizing, AFolderThatFailsIsToldAndLeavesNoHalfOfAFile) {
    fillRequired();
    chooseSong(1, holding("songs/small.wav", "small"));
    chooseSong(2, holding("songs/big.wav", QByteArray(600'000, 'x')));
    {
        FailingDisk disk;
        disk.room = 500'000;
        EXPECT_EQ(saidDuring(1, finalize), QStringList{deniedFor("Disk full")});
    }
    EXPECT_THAT(namesIn("DemoCD/Demo1"), ElementsAre("small.wav"));
    EXPECT_FALSE(stepIsDone());
    QFile::setPermissions(path("DemoCD/Demo1/small.wav"), QFile::ReadOwner);
    EXPECT_EQ(saidDuring(1, finalize), QStringList{deniedFor("Permission denied")});
    QDir(path("DemoCD")).removeRecursively();
    EXPECT_EQ(saidDuring(5, finalize).last(), deniedFor("Path not found"));
    QDir().mkdir(path("DemoCD"));
    holding("DemoCD/Demo1", "a file of that name");
    EXPECT_EQ(saidDuring(1, finalize), QStringList{deniedFor("File already exists")});
    EXPECT_TRUE(frmDemoCD->cmdCreate.Enabled());
}

TEST_F(Finalizing, ServesEventsWhileItCopiesAndOutlivesItsScreen) {
    fillRequired();
    chooseSong(1, holding("songs/long.wav", QByteArray(30'000'000, 'x')));
    int looks = 0;
    QTimer eachRound;
    QObject::connect(&eachRound, &QTimer::timeout, [&] {
        if (namesIn("DemoCD/Demo1").isEmpty() || QFile::exists(path("DemoCD/Demo1/long.wav"))) return;
        if (++looks > 1) return;
        EXPECT_TRUE(frmDemoCD->lblFeedback.Visible());
        EXPECT_FALSE(frmDemoCD->cmdCreate.Enabled() || frmDemoCD->comTitles.widget()->isEnabled() ||
                     frmDemoCD->cmdDelete.Enabled());
        frmDemoCD->cmdClose.setValue(true);
    });
    eachRound.start(0);
    finalize();
    EXPECT_GE(looks, 3);
    EXPECT_FALSE(frmDemoCD.isLoaded());
    EXPECT_EQ(QFileInfo(path("DemoCD/Demo1/long.wav")).size(), 30'000'000);
    EXPECT_TRUE(stepIsDone());
}

}  // namespace
}  // namespace lyrebrook
