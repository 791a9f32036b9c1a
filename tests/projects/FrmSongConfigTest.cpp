#include "projects/FrmSongConfig.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include "projects/SongData.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

class CreateProject : public Studio {
  protected:
    void addSong(const QString& title, const QString& category) {
        frmSongConfig->txtSongName.setText(title);
        frmSongConfig->txtCategory.setText(category);
        desk().willAnswer(vbOK);
        frmSongConfig->CmdAdd.setValue(true);
        EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{QStringLiteral("Song added successfully!")}));
    }

    void touch(const QString& relative) {
        QFile file(path(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    bool exists(const QString& relative) const { return QFile::exists(path(relative)); }

    static QStringList songs() {
        QStringList titles;
        for (int i = 0; i < frmSongConfig->lstSongs.ListCount(); ++i) titles << frmSongConfig->lstSongs.List(i);
        return titles;
    }
};

TEST_F(CreateProject, AddsASongListsItByItsTitleAndMakesItCurrent) {
    frmSongConfig.Show();
    addSong(QStringLiteral("Rock'n'Roll!"), QStringLiteral("Rock"));
    addSong(QStringLiteral("ballad"), QStringLiteral("Slow"));
    addSong(QStringLiteral("Rock'n'Roll!"), QStringLiteral("Rock"));

    EXPECT_THAT(songs(), ElementsAre(QStringLiteral("ballad"), QStringLiteral("Rock'n'Roll!")));
    EXPECT_EQ(gSongName, QStringLiteral("RocknRoll"));
    EXPECT_EQ(frmSongConfig->txtCategory.Text(), QStringLiteral("Rock"));
    EXPECT_TRUE(exists(QStringLiteral("projects/RocknRoll_songData.xon")));
}

TEST_F(CreateProject, ANewSongInheritsTheVoiceOffsetOfTheSelectedOne) {
    frmSongConfig.Show();
    gVoiceTrackOffset = 70;
    addSong(QStringLiteral("First"), QStringLiteral("x"));
    addSong(QStringLiteral("Second"), QStringLiteral("x"));
    EXPECT_EQ(readVoiceTrackOffset(songDataPath(QStringLiteral("Second"))), 70);
}

TEST_F(CreateProject, AsksForTitleAndCategoryInTheirOwnWords) {
    frmSongConfig.Show();
    const auto askedBy = [this](CommandButton& button) {
        desk().willAnswer(vbOK);
        button.setValue(true);
        return desk().takeBoxes().front();
    };
    const auto required = [](const char* text) {
        return Box{QString::fromUtf8(text), vbExclamation, QStringLiteral("Required")};
    };
    EXPECT_EQ(askedBy(frmSongConfig->CmdAdd), required("Please enter the new song's name."));
    EXPECT_EQ(askedBy(frmSongConfig->cmdSave), required("Please enter the new song name."));
    frmSongConfig->txtSongName.setText(QStringLiteral("Song"));
    EXPECT_EQ(askedBy(frmSongConfig->CmdAdd), required("Please enter the song category."));
    EXPECT_EQ(askedBy(frmSongConfig->cmdSave), required("Please enter the song category."));
    EXPECT_TRUE(QDir(path(QStringLiteral("projects"))).isEmpty());
}

TEST_F(CreateProject, UpdateThrowsEditsAwayAndWritesNoFile) {
    frmSongConfig.Show();
    addSong(QStringLiteral("Song"), QStringLiteral("Folk"));
    frmSongConfig->txtCategory.setText(QStringLiteral("Rock 'n' Roll"));
    desk().willAnswer(vbOK, [] { EXPECT_EQ(frmSongConfig->txtCategory.Text(), QStringLiteral("Rock ''n'' Roll")); });
    frmSongConfig->cmdSave.setValue(true);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{QStringLiteral("Song updated!")}));
    EXPECT_EQ(frmSongConfig->txtCategory.Text(), QStringLiteral("Folk"));
}

TEST_F(CreateProject, SelectingLoadsTheSongIntoTheBoxes) {
    frmSongConfig.Show();
    addSong(QStringLiteral("Alpha!"), QStringLiteral("one"));
    gVoiceTrackOffset = 30;
    addSong(QStringLiteral("Beta"), QStringLiteral("two"));
    frmSongConfig->lstSongs.setListIndex(0);
    EXPECT_EQ(gSongName, QStringLiteral("Alpha"));
    EXPECT_EQ(frmSongConfig->txtSongName.Text(), QStringLiteral("Alpha!"));
    EXPECT_EQ(frmSongConfig->txtCategory.Text(), QStringLiteral("one"));
    EXPECT_EQ(gVoiceTrackOffset, 0);
}

TEST_F(CreateProject, StaysEmptyWithNoSongAlthoughTheFolderHoldsSome) {
    writeSongData(
        songDataPath(QStringLiteral("Old")),
        {.projectName = QStringLiteral("Old"), .projectCategory = QStringLiteral("x"), .voiceTrackOffset = 9});
    frmSongConfig.Show();
    EXPECT_THAT(songs(), ElementsAre(QStringLiteral("Old")));
    EXPECT_EQ(frmSongConfig->txtSongName.Text() + frmSongConfig->txtCategory.Text(), QString());
    EXPECT_EQ(gVoiceTrackOffset, 0);
}

TEST_F(CreateProject, DeletesTheTypedSongsDataAndTheSelectedSongsSound) {
    frmSongConfig.Show();
    addSong(QStringLiteral("Typed"), QStringLiteral("x"));
    addSong(QStringLiteral("Selected"), QStringLiteral("x"));
    for (const char* name : {"Selected_1.wav", "Selected_4.wav", "Selected.txt", "Typed_1.wav", "Selected_5.wav"}) {
        touch(QStringLiteral("songs/") + QString::fromLatin1(name));
    }
    frmSongConfig->txtSongName.setText(QStringLiteral("Typed"));
    desk().willAnswer(vbNo);
    frmSongConfig->cmdDelete.setValue(true);
    EXPECT_TRUE(exists(QStringLiteral("projects/Typed_songData.xon")));
    EXPECT_EQ(desk().takeBoxes().front(), (Box{QStringLiteral("Are you sure you want to delete song: \"TYPED\" and "
                                                              "all related audio files from the list?"),
                                               vbYesNo, QStringLiteral("Delete")}));
    desk().willAnswer(vbYes);
    desk().willAnswer(vbOK);
    frmSongConfig->cmdDelete.setValue(true);

    EXPECT_EQ(desk().takeBoxes().back(), Box{QStringLiteral("Song Deleted!")});
    EXPECT_FALSE(exists(QStringLiteral("projects/Typed_songData.xon")));
    EXPECT_THAT(QDir(path(QStringLiteral("songs"))).entryList(QDir::Files),
                ElementsAre(QStringLiteral("Selected_5.wav"), QStringLiteral("Typed_1.wav")));
    EXPECT_THAT(songs(), ElementsAre(QStringLiteral("Selected")));
    EXPECT_EQ(gSongName, QString());
}

TEST_F(CreateProject, ClosesAfterItsWarningWhenNoSongIsSelected) {
    frmSongConfig.Show();
    desk().willAnswer(vbOK);
    frmSongConfig->cmdClose.setValue(true);
    EXPECT_THAT(desk().takeBoxes(),
                ElementsAre(Box{QStringLiteral("You must select a song before you can move to Step 2!")}));
    EXPECT_FALSE(frmSongConfig.isLoaded());
}

TEST_F(CreateProject, SaysWhichFolderIsMissing) {
    QDir(path(QStringLiteral("projects"))).removeRecursively();
    desk().willAnswer(vbOK);
    frmSongConfig.Show();
    EXPECT_THAT(desk().takeBoxes(),
                ElementsAre(Box{QStringLiteral("Invalid directory for PROJECT files - ") + gProjectsFolder}));
}

TEST_F(CreateProject, TakesTitlesOfEveryKind) {
    frmSongConfig.Show();
    const std::pair<QString, QString> cases[] = {
        {QStringLiteral("A"), QString()},
        {QStringLiteral("--"), QString()},
        {QStringLiteral("我的歌"), QStringLiteral("我的歌")},
        {QString(5000, u'x'), QString(5000, u'x')},
    };
    for (const auto& [title, safe] : cases) {
        addSong(title, QStringLiteral("x"));
        EXPECT_EQ(gSongName, safe);
    }
    EXPECT_TRUE(exists(QStringLiteral("projects/_songData.xon")));
    EXPECT_TRUE(exists(QStringLiteral("projects/我的歌_songData.xon")));
}

TEST_F(CreateProject, AnOffsetThatDoesNotFitEndsTheProgramWithItsError) {
    frmSongConfig.Show();
    gVoiceTrackOffset = 40000;
    frmSongConfig->txtSongName.setText(QStringLiteral("Late"));
    frmSongConfig->txtCategory.setText(QStringLiteral("x"));
    frmSongConfig->CmdAdd.setValue(true);
    EXPECT_EQ(desk().takeGeneralError(), QStringLiteral("6: Overflow"));
}

}  // namespace
}  // namespace lyrebrook
