#include "backtrack/FrmSelect.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include "platform/sound/SoundSystem.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class SelectSong : public Studio {
  protected:
    SelectSong() {
        card().listen([this](Frames, std::span<const StereoFrame> frames) {
            for (const StereoFrame& frame : frames)
                if (frame != StereoFrame{}) ++framesHeard_;
        });
    }

    QString write(const QString& relative, const QByteArray& content = {}) {
        QFile file(path(relative));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static QByteArray read(const QString& fullPath) {
        QFile file(fullPath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// Half a second of sound for every name, then the screen with all of them in its playlist.
    void openWithTracks(std::initializer_list<QString> names) {
        for (const QString& name : names) writeWaveFile(path("tracks/Version1/" + name).toStdString(), ramp(22050));
        frmSelect.Show();
        frmSelect->CmdAdd.setValue(true);
    }

    void openPlaylist(const QByteArray& content) {
        desk().willChoose(write("playlists/Evening.MPL", content));
        frmSelect->CmdOpen.setValue(true);
    }

    static void goTo(const QString& folder) {
        frmSelect->TxtPath.setText(folder);
        frmSelect->TxtPath.KeyPress.fire(13);
    }

    std::size_t framesHeardIn(std::chrono::milliseconds time) {
        framesHeard_ = 0;
        crank(time);
        return framesHeard_;
    }

    static QStringList playlist() {
        QStringList entries;
        for (int i = 0; i < frmSelect->List1.ListCount(); ++i) entries << frmSelect->List1.List(i);
        return entries;
    }

    static bool isIdle() { return frmSelect->cmdListen.Enabled() && !frmSelect->cmdStop.Enabled(); }
    static bool isSounding() { return !frmSelect->cmdListen.Enabled() && frmSelect->cmdStop.Enabled(); }

  private:
    std::size_t framesHeard_ = 0;
};

TEST_F(SelectSong, AddsAllBacktracksOfAFolderOrOneByDoubleClick) {
    for (const char* name : {"b.MID", "A.wav", "c.Mid", "notes.txt", "d.midi", "e.rmi"})
        write(QString("tracks/Version1/") + name);
    frmSelect.Show();
    ASSERT_TRUE(frmSelect->CmdAdd.Enabled());
    frmSelect->CmdAdd.setValue(true);
    EXPECT_FALSE(frmSelect->CmdClear.Enabled() || frmSelect->CmdSave.Enabled()) << "only the double click enables them";
    frmSelect->File1.setListIndex(1);
    frmSelect->File1.DblClick.fire();
    const QString folder = path("tracks/Version1");
    EXPECT_THAT(playlist(), ElementsAre(folder + "/A.wav", folder + "/b.MID", folder + "/c.Mid", folder + "/b.MID"));
    EXPECT_TRUE(frmSelect->CmdClear.Enabled() && frmSelect->CmdSave.Enabled() && !frmSelect->mnuSave.Enabled());
    EXPECT_EQ(gBacktrackFile, "") << "adding chooses nothing";
    frmIntro->picStatusY[1].ZOrder();
    frmSelect.Unload();
    EXPECT_TRUE(frmIntro->picStatusN[1].standsAbove(frmIntro->picStatusY[1]));
}

TEST_F(SelectSong, OpensInTheTracksFolderAndGoesToATypedOne) {
    gTracksFolder.clear();
    frmSelect.Show();
    EXPECT_EQ(frmSelect->TxtPath.Text(), path("tracks/Version1"));
    EXPECT_EQ(gSongName + frmSelect->Label4.Caption(), "tempTesttempTest");
    EXPECT_FALSE(frmSelect->CmdAdd.Enabled());
    giveWave("Take_1.wav", ramp(10));
    goTo(path("songs"));
    EXPECT_EQ(frmSelect->File1.List(0), "Take_1.wav");
    goTo(path("nowhere"));
    EXPECT_EQ(frmSelect->TxtPath.Text(), "");
    EXPECT_EQ(frmSelect->Dir1.Path(), path("songs"));
    goTo("/");
    EXPECT_TRUE(frmSelect->CmdAdd.Enabled()) << "nothing disables it again";
    frmSelect->File1.DblClick.fire();
    EXPECT_TRUE(playlist().back().startsWith("//")) << "the root brings a separator of its own";
}

TEST_F(SelectSong, ShowsTheErrorOfAPlaceThatIsNotReady) {
    const QByteArray home = qgetenv("HOME");
    const QString stick = path("stick");
    QDir().mkdir(stick);
    qputenv("HOME", stick.toUtf8());
    frmSelect.Show();
    qputenv("HOME", home);
    QDir().rmdir(stick);
    desk().willAnswer(vbOK);
    frmSelect->Drive1.setDrive(stick);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{"Path not found"}));
    EXPECT_EQ(frmSelect->Dir1.Path(), path("tracks/Version1"));
}

TEST_F(SelectSong, DeletingChoosesTheNeighbour) {
    frmSelect.Show();
    openPlaylist("a\r\nb\r\nc\r\n\r\n");
    EXPECT_FALSE(frmSelect->CmdDelete.Enabled() || frmSelect->cmdListen.Enabled());
    frmSelect->List1.setListIndex(1);
    for (const char* neighbour : {"c", "a"}) {
        frmSelect->CmdDelete.setValue(true);
        EXPECT_EQ(gBacktrackFile, neighbour);
        EXPECT_EQ(frmSelect->List1.Text(), neighbour);
    }
    frmSelect->CmdDelete.setValue(true);
    EXPECT_TRUE(playlist().isEmpty() && !frmSelect->CmdDelete.Enabled());
    EXPECT_EQ(gBacktrackFile, "a") << "the last choice stands though it is no longer seen";
}

TEST_F(SelectSong, SavesOneLineMoreThanEntriesAndReadsItBackBehindWhatIsThere) {
    gSongName = "My Song";
    openWithTracks({"Größe.wav"});
    const QString entry = frmSelect->List1.List(0);
    const QString saved = path("playlists/Evening.MPL");
    for (const QString& chosen : {QString(), saved}) {
        desk().willChoose(chosen);
        frmSelect->mnuSave.Click.fire();
    }
    EXPECT_EQ(read(saved), entry.toUtf8() + "\r\n\r\n");
    EXPECT_EQ(gSongName, "My Song");

    desk().willChoose(saved);
    frmSelect->mnuOpen.Click.fire();
    EXPECT_THAT(playlist(), ElementsAre(entry, entry));
    EXPECT_EQ(gSongName, "") << "reading a playlist deselects the song";
    EXPECT_EQ(frmSelect->Label4.Caption(), "My Song");
    EXPECT_TRUE(frmSelect->CmdClear.Enabled() && frmSelect->CmdSave.Enabled() && frmSelect->mnuSave.Enabled());
    const FileQuestion asked = desk().takeFileQuestions().back();
    EXPECT_EQ(asked.filter, "MIDI Player List (*.MPL)|*.MPL");
    EXPECT_EQ(asked.folder, path("playlists/"));
}

TEST_F(SelectSong, TheLastLineOfAPlaylistIsDroppedWhateverItHolds) {
    struct Case {
        QByteArray content;
        QStringList entries;
        const char* lastLine;
    };
    const QByteArray huge(10'000'000, 'x');
    const Case cases[] = {
        {"kept\r\nlost", {"kept"}, "lost"},
        {"one\rtwo\r\r", {"one", "two"}, ""},
        {QByteArray::fromRawData("a\0.mid\r\n\r\n", 10), {QString::fromLatin1("a\0.mid", 6)}, ""},
        {"na\xEFve\r\n\r\n", {"naïve"}, ""},
        {huge + "\r\n\r\n", {huge}, ""},
    };
    frmSelect.Show();
    for (const Case& each : cases) {
        frmSelect->CmdClear.setValue(true);
        openPlaylist(each.content);
        EXPECT_TRUE(playlist() == each.entries) << each.content.left(9).toStdString();
        EXPECT_EQ(gSongName, each.lastLine);
    }
    openPlaylist("");
    EXPECT_TRUE(playlist().isEmpty()) << "no line, yet the last entry goes";
    openPlaylist("");
    EXPECT_EQ(desk().takeGeneralError(), "5: Invalid procedure call or argument");
}

TEST_F(SelectSong, AListBeyondTheCounterIsNotSavedAndLeavesTheOldFile) {
    frmSelect.Show();
    openPlaylist(QByteArray("x\r\n").repeated(32768) + "\r\n");
    const QString old = write("playlists/Old.MPL", "old");
    desk().willChoose(old);
    frmSelect->CmdSave.setValue(true);
    EXPECT_EQ(desk().takeGeneralError(), "6: Overflow");
    EXPECT_EQ(read(old), "old");
}

TEST_F(SelectSong, AnEntryIsHeardToItsEndAndThenAgain) {
    openWithTracks({"One.wav"});
    frmSelect->List1.setListIndex(0);
    EXPECT_TRUE(isIdle());
    for (const char* time : {"first", "second"}) {
        frmSelect->cmdListen.setValue(true);
        EXPECT_EQ(framesHeardIn(490ms), 21609U) << time;
        EXPECT_TRUE(isSounding()) << time;
        EXPECT_EQ(framesHeardIn(200ms), 22050U - 21609U) << time;
        EXPECT_TRUE(isIdle()) << time;
    }
}

TEST_F(SelectSong, WhateverTakesTheEntryAwayStopsItsSoundButClearingTheList) {
    openWithTracks({"One.wav", "Two.wav"});
    frmSelect->List1.setListIndex(0);
    const auto isSilencedBy = [this](const std::function<void()>& way) {
        EXPECT_GT(framesHeardIn(100ms), 0U);
        way();
        crank(20ms);  // a stop fades out
        return framesHeardIn(100ms) == 0;
    };
    const std::function<void()> ways[] = {
        [] { frmSelect->cmdStop.setValue(true); }, [] { frmSelect->List1.setListIndex(0); },
        [] { frmSelect->List1.setListIndex(1); }, [] { frmSelect->CmdDelete.setValue(true); }};
    for (const auto& way : ways) {
        frmSelect->cmdListen.setValue(true);
        EXPECT_TRUE(isSilencedBy(way) && isIdle()) << &way - ways;
    }
    frmSelect->CmdClear.setValue(true);
    EXPECT_FALSE(frmSelect->CmdDelete.Enabled());
    frmSelect->cmdListen.setValue(true);
    EXPECT_TRUE(isSilencedBy([] { frmSelect->btnEnd.setValue(true); }));
    EXPECT_TRUE(frmIntro->picStatusY[1].standsAbove(frmIntro->picStatusN[1])) << "the choice outlives the list";
}

TEST_F(SelectSong, AnEntryThatDoesNotLoadIsChosenButSilent) {
    frmSelect.Show();
    openPlaylist("none.mid\r\n\r\n");
    frmSelect->List1.setListIndex(0);
    EXPECT_EQ(gBacktrackFile, "none.mid");
    frmSelect->cmdListen.setValue(true);
    EXPECT_EQ(framesHeardIn(1s), 0U);
    EXPECT_TRUE(isSounding()) << "no end comes, only Stop brings the screen back";
    frmSelect->cmdStop.setValue(true);
    EXPECT_TRUE(isIdle());
}

TEST_F(SelectSong, EndsTheProgramWhenThereIsNoMusic) {
    frmIntro.Show();
    SoundSystem::remove();
    desk().willAnswer(vbOK);
    EXPECT_THROW(frmSelect.Show(), ProgramEnded);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{"Could not initialize DirectMusic.\r\nThis program will end.",
                                                    vbInformation, "Exiting..."}));
    EXPECT_FALSE(frmSelect.isLoaded());
}

}  // namespace
}  // namespace lyrebrook
