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
        {u"--", u""},
        {u" ( blanks ) ", u"blanks"},
        {u"\"quoted\" under_score", u"\"quoted\" under_score"},
        {u"../../etc\\passwd", u"etcpasswd"},
        {u"我的歌", u"我的歌"},
    };
    for (const auto& [title, safe] : cases) {
        EXPECT_EQ(fileSafeTitle(title.toString()), safe.toString()) << title.toString().toStdString();
    }
    EXPECT_EQ(StrToDbStr(" ab "), " ab ") << "trimming is the caller's";
    EXPECT_EQ(StrToDbStr(QString(32767, u'x')).size(), 32767);
    EXPECT_THROW(StrToDbStr(QString(32768, u'x')), RuntimeError) << "characters are counted in sixteen bits";
}

TEST(SongData, KeepsTheTitleAsTypedAndAnOffsetThatReadingMayRefuse) {
    const QTemporaryDir folder;
    gProjectsFolder = folder.path() + u'/';
    const QString path = songDataPath("Rock'n'Roll!");
    EXPECT_EQ(path, folder.filePath("RocknRoll_songData.xon"));
    EXPECT_EQ(readSongTexts(path).projectName, "");
    EXPECT_EQ(readVoiceTrackOffset(path), 0);
    EXPECT_FALSE(QFile::exists(path)) << "reading makes no file";

    writeSongData(path, {.projectName = "Rock'n'Roll!", .projectCategory = "Größe; café", .voiceTrackOffset = 70});
    EXPECT_EQ(readSongTexts(path).projectName, "Rock'n'Roll!");
    EXPECT_EQ(readSongTexts(path).projectCategory, "Größe; café");
    EXPECT_EQ(readVoiceTrackOffset(path), 70);
    writeSongData(path, {.projectName = {}, .projectCategory = {}, .voiceTrackOffset = 40000});
    EXPECT_EQ(readProfileValue("ProjectData", "VoiceTrackOffset", {}, path), "40000");
    EXPECT_THROW(readVoiceTrackOffset(path), RuntimeError);
}

}  // namespace
}  // namespace lyrebrook
