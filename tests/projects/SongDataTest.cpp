#include "projects/SongData.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/base/RuntimeError.h"
#include "shell/modConfig.h"
#include "shell/modINI.h"

namespace lyrebrook {
namespace {

TEST(FileSafeTitle, KeepsWhatAFileNameCanHold) {
    const std::pair<QStringView, QStringView> cases[] = {
        {u"My Song", u"My Song"},
        {u"Rock'n'Roll!", u"RocknRoll"},
        {u"A", u""},
        {u"+1", u"+1"},
        {u"1+1", u"11"},
        {u"..", u""},
        {u"--", u""},
        {u" ( blanks ) ", u"blanks"},
        {u"\"quoted\" under_score", u"\"quoted\" under_score"},
        {u"../../etc/passwd", u"etcpasswd"},
        {u"我的歌", u"我的歌"},
    };
    for (const auto& [title, safe] : cases) {
        EXPECT_EQ(fileSafeTitle(title.toString()), safe.toString()) << title.toString().toStdString();
    }
    EXPECT_EQ(StrToDbStr(QStringLiteral(" ab ")), QStringLiteral(" ab ")) << "trimming is the caller's";
}

TEST(FileSafeTitle, CountsItsCharactersInSixteenBits) {
    EXPECT_EQ(StrToDbStr(QString(5000, u'x')).size(), 5000);
    EXPECT_THROW(StrToDbStr(QString(32768, u'x')), RuntimeError);
}

class SongDataFile : public testing::Test {
  protected:
    SongDataFile() { gProjectsFolder = folder_.path() + u'/'; }

    QTemporaryDir folder_;
};

TEST_F(SongDataFile, KeepsTheTitleAsTypedUnderItsSafeName) {
    const QString path = songDataPath(QStringLiteral("Rock'n'Roll!"));
    writeSongData(path, {.projectName = QStringLiteral("Rock'n'Roll!"),
                         .projectCategory = QStringLiteral("Größe; café"),
                         .voiceTrackOffset = 70});

    EXPECT_TRUE(QFile::exists(folder_.filePath(QStringLiteral("RocknRoll_songData.xon"))));
    EXPECT_EQ(readSongTexts(path).projectName, QStringLiteral("Rock'n'Roll!"));
    EXPECT_EQ(readSongTexts(path).projectCategory, QStringLiteral("Größe; café"));
    EXPECT_EQ(readVoiceTrackOffset(path), 70);
}

TEST_F(SongDataFile, MissingGivesEmptyValuesAndIsNotCreated) {
    const QString path = gProjectsFolder + QStringLiteral("nothing");
    EXPECT_EQ(readSongTexts(path).projectName, QString());
    EXPECT_EQ(readVoiceTrackOffset(path), 0);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(SongDataFile, AnOffsetBeyondSixteenBitsIsWrittenButNotRead) {
    const QString path = songDataPath(QStringLiteral("Late Song"));
    writeSongData(path, {.projectName = QStringLiteral("Late Song"), .projectCategory = {}, .voiceTrackOffset = 40000});
    EXPECT_EQ(readProfileValue(QStringLiteral("ProjectData"), QStringLiteral("VoiceTrackOffset"), {}, path),
              QStringLiteral("40000"));
    EXPECT_THROW(readVoiceTrackOffset(path), RuntimeError);
}

TEST_F(SongDataFile, IsToldByItsNameAnywhere) {
    EXPECT_TRUE(isSongDataFile(QStringLiteral("x_songData_old.xon")));
    EXPECT_FALSE(isSongDataFile(QStringLiteral("My Song.xon")));
}

}  // namespace
}  // namespace lyrebrook
