#include "democd/FrmDemoCD.h"

#include <QTimer>
#include <filesystem>

#include "democd/WizardDesk.h"
#include "platform/files/FailingDisk.h"

namespace lyrebrook {
namespace {

class Finalizing : public WizardDesk {
  protected:
    void fillAll() {
        frmDemoCD->comTitles.setText("My Demo");
        frmDemoCD->txtName.setText("Zoë & the <b>Band</b> (c) |*CopyrightOwner*|");
        frmDemoCD->txtAge.setText("27");
        frmDemoCD->txtCountry.setText("Norway");
        frmDemoCD->txtOwner.setText("Zoë Müller");
        frmDemoCD->txtCV.setText("Born in Oslo\r\nSings &\r\n\r\nwrites");
        frmDemoCD->txtEmail.setText("zoe@example.org");
        frmDemoCD->txtPostal.setText("Street 1\r\n0150 Oslo");
        frmDemoCD->txtPhone.setText("+47 1");
        frmDemoCD->txtSongTitle[1].setText("First \"one\"");
        choose(frmDemoCD->cmdOpenSong, 1, holding("songs/First Song.WAV", "first"));
        choose(frmDemoCD->cmdOpenSong, 3, holding("songs/third.mid.txt", "third"));
        frmDemoCD->txtPhotoDesc[1].setText("On stage,\r\n2024");
        choose(frmDemoCD->cmdOpenPhoto, 1, holding("songs/Stage.jpg", "stage"));
        choose(frmDemoCD->cmdOpenPhoto, 2, holding("songs/me.gif", "me"));
    }

    void expectPages(const QString& music) const {
        const auto expectPage = [this](const QString& page, const QString& expected) {
            EXPECT_EQ(bytesOf(path("DemoCD/" + page)), bytesOf(testData("expected/" + expected)));
        };
        expectPage("music.htm", music);
        for (const char* page : {"index.htm", "photos.htm", "contact.htm"}) expectPage(page, page);
    }

    /// What the media folder's failure says.
    QStringList deniedFor(const QString& cause) const {
        const QString text =
            "Access to CD directory denied!\r\n\r\nCause: %1 | Directory causing error: %2\r\n\r\nSolution: It is "
            "possible that the files are currently open in your browser. Close the browser window and try again!";
        return {text.arg(cause, path("DemoCD/Demo1"))};
    }
};

TEST_F(Finalizing, MakesASiteThatAnotherRunLoadsAndMakesAnewWithoutASong) {
    holding("DemoCD/style.css", "mine");
    fillAll();
    finalize();
    expectPages("music.htm");
    EXPECT_EQ(namesIn("DemoCD/Demo1"), (QStringList{"First Song.WAV", "me.gif", "Stage.jpg", "third.mid.txt"}));
    EXPECT_EQ(bytesOf(path("DemoCD/demo1/First Song.WAV")), "first") << "under the name that the pages spell";
    EXPECT_TRUE(frmDemoCD->frmMessage.Visible() && !frmDemoCD->lblFeedback.Visible() && stepIsDone());
    EXPECT_EQ(frmDemoCD->comTitles.Text(), "My Demo");
    const QByteArray workset = bytesOf(testData("expected/workset.xon")).replace("FOLDER", path("songs").toUtf8());
    EXPECT_EQ(bytesOf(path("projects/My Demo.xon")), workset);

    startProgram();
    frmDemoCD->comTitles.setListIndex(0);
    EXPECT_EQ(frmDemoCD->txtCV.Text(), "Born in Oslo\r\nSings &\r\n\r\nwrites");
    frmDemoCD->cmdDeleteFile[1].setValue(true);
    QFile::remove(path("songs/me.gif"));
    finalize();
    expectPages("musicWithoutFirst.htm");
    EXPECT_EQ(namesIn("DemoCD/Demo1"), (QStringList{"Stage.jpg", "third.mid.txt"}));
    EXPECT_EQ(bytesOf(path("DemoCD/style.css")), "mine");
}

TEST_F(Finalizing, RefusesWhatLacksATitleOrAnArtistAndLightsTheStepAllTheSame) {
    const QStringList needTitle{
        "Please enter or select a TITLE for your CD in STEP 1 of this wizard before you finalize!"};
    const QStringList needFields{"Please fill out ALL the fields in STEP 1 of this wizard before you finalize!"};
    EXPECT_EQ(saidDuring(1, finalize), needTitle);
    EXPECT_TRUE(stepIsDone());
    fillRequired();
    frmDemoCD->comTitles.setText("  ");
    EXPECT_EQ(saidDuring(1, finalize), needTitle);
    frmDemoCD->comTitles.setText("Enter new or select existing title");
    for (TextBox* box : required()) {
        box->setText(" ");
        EXPECT_EQ(saidDuring(1, finalize), needFields);
        box->setText("x");
    }
    EXPECT_TRUE(namesIn("DemoCD").isEmpty());
    finalize();
    EXPECT_EQ(namesIn("projects"), QStringList{"Enter new or select existing title.xon"});
}

TEST_F(Finalizing, TheDemoWorksetIsShownAndNeverWritten) {
    fillRequired();
    frmDemoCD->comTitles.setText("Demo Workset");
    EXPECT_EQ(saidDuring(1, finalize),
              QStringList{"The 'Demo Workset' that you've chosen can not be updated or changed. It must be used as an "
                          "example when creating other worksets."});
    EXPECT_TRUE(namesIn("DemoCD").isEmpty() && namesIn("projects").isEmpty());
    EXPECT_TRUE(frmDemoCD->frmMessage.Visible() && stepIsDone());
    for (const char* title : {" Demo Workset", "demo workset"}) {
        frmDemoCD->comTitles.setText(title);
        frmDemoCD->lblwebURL.Click.fire();
        frmDemoCD->Label10.Click.fire();
    }
    EXPECT_EQ(desk().takeOpened(), (QStringList{path("DemoCD_Example/index.htm"), path("DemoCD_Example/"),
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
                "\r\n\r\nSolution: It is possible that the files open in your browser. Close the "
                "browser window and try again!"}));
    EXPECT_EQ(bytesOf(path("DemoCD/music.htm")) + bytesOf(path("DemoCD/photos.htm")), "old");
    EXPECT_TRUE(QFile::exists(path("DemoCD/contact.htm")) && frmDemoCD->frmMessage.Visible());
}

TEST_F(Finalizing, AWorksetFromElsewhereWritesNothingOutsideItsFolder) {
    fillRequired();
    frmDemoCD->txtPathLong[1].setText(holding("songs/evil", "evil"));
    for (const char* name : {"../evil.wav", "..", "sub/evil.wav", "..\\evil.wav", "/tmp/evil.wav"}) {
        frmDemoCD->lblPath[1].setCaption(name);
        EXPECT_EQ(saidDuring(1, finalize), deniedFor(QString("Bad file name: ") + name));
        EXPECT_TRUE(namesIn("DemoCD/Demo1").isEmpty());
        EXPECT_FALSE(frmDemoCD->frmMessage.Visible() || frmDemoCD->lblFeedback.Visible() || stepIsDone());
    }
    frmDemoCD->lblPath[1].setCaption("wait...wav");
    finalize();
    EXPECT_EQ(namesIn("DemoCD/Demo1"), QStringList{"wait...wav"});
}

TEST_F(Finalizing, LinksAreReplacedAndNotFollowedAndAPersonsOwnNamesStay) {
    fillRequired();
    choose(frmDemoCD->cmdOpenSong, 1, holding("songs/song.wav", "song"));
    QDir().mkdir(path("mine"));
    holding("mine/song.wav", "mine");
    for (const char* target : {"mine", "nowhere", "mine/song.wav"}) {
        for (const char* name : {"DemoCD/Demo1", "DemoCD/demo1"}) {
            std::filesystem::remove_all(path(name).toStdString());
            EXPECT_TRUE(QFile::link(path(target), path(name)));
        }
        finalize();
        EXPECT_EQ(bytesOf(path("mine/song.wav")), "mine");
        EXPECT_FALSE(QFileInfo(path("DemoCD/Demo1")).isSymLink());
        EXPECT_EQ(bytesOf(path("DemoCD/demo1/song.wav")), "song");
    }
    QFile::remove(path("DemoCD/demo1"));
    holding("DemoCD/demo1", "a file of that name");
    finalize();
    EXPECT_EQ(bytesOf(path("DemoCD/demo1")), "a file of that name");
}

TEST_F(Finalizing, AFolderThatFailsIsToldAndLeavesNoHalfOfAFile) {
    fillRequired();
    choose(frmDemoCD->cmdOpenSong, 1, holding("songs/small.wav", "small"));
    choose(frmDemoCD->cmdOpenSong, 2, holding("songs/big.wav", QByteArray(600'000, 'x')));
    {
        FailingDisk disk;
        disk.room = 500'000;
        EXPECT_EQ(saidDuring(1, finalize), deniedFor("Disk full"));
    }
    EXPECT_EQ(namesIn("DemoCD/Demo1"), QStringList{"small.wav"});
    EXPECT_FALSE(stepIsDone());
    QFile::setPermissions(path("DemoCD/Demo1/small.wav"), QFile::ReadOwner);
    EXPECT_EQ(saidDuring(1, finalize), deniedFor("Permission denied"));
    QDir(path("DemoCD")).removeRecursively();
    EXPECT_EQ(saidDuring(5, finalize).mid(4), deniedFor("Path not found")) << "after the four pages";
    QDir().mkdir(path("DemoCD"));
    holding("DemoCD/Demo1", "a file of that name");
    EXPECT_EQ(saidDuring(1, finalize), deniedFor("File already exists"));
}

TEST_F(Finalizing, AWorksetIsWrittenAtOnceOrNotAtAll) {
    const auto write = [&](const QString& artist, qsizetype room) {
        FailingDisk disk;
        disk.room = static_cast<std::size_t>(room);
        Workset workset;
        workset.artistName = workset.phone = artist;
        writeWorkset(path("projects/One.xon"), "One", workset, {});
        return bytesOf(path("projects/One.xon"));
    };
    const QByteArray old = write("Ada", 10'000);
    EXPECT_EQ(write("Eve", old.size() - 1), old);
    EXPECT_EQ(write("Eve", old.size()), QByteArray(old).replace("Ada", "Eve"));
}

TEST_F(Finalizing, ServesEventsWhileItCopiesAndOutlivesItsScreen) {
    fillRequired();
    choose(frmDemoCD->cmdOpenSong, 1, holding("songs/long.wav", QByteArray(30'000'000, 'x')));
    int looks = 0;
    QTimer eachRound;
    QObject::connect(&eachRound, &QTimer::timeout, [&] {
        if (namesIn("DemoCD/Demo1").isEmpty() || QFile::exists(path("DemoCD/Demo1/long.wav"))) return;
        if (++looks > 1) return;
        EXPECT_TRUE(frmDemoCD->lblFeedback.Visible());
        EXPECT_FALSE(frmDemoCD->cmdCreate.Enabled() || frmDemoCD->Frame1[1].Enabled());
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
