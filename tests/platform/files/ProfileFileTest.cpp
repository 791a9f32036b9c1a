#include "platform/files/ProfileFile.h"

#include <array>

#include "platform/files/FailingDisk.h"
#include "platform/files/FilesFixture.h"
#include "platform/files/Settings.h"

namespace lyrebrook {
namespace {

class ProfileFileTest : public FilesTest {
  protected:
    QString read(const QString& section, const QString& key) const {
        return GetPrivateProfileString(section, key, "default", 2048, path("song.xon"));
    }
    bool write(const QString& section, const QString& key, const QString& value) const {
        return WritePrivateProfileString(section, key, value, path("song.xon"));
    }
    QByteArray afterWriting(const QByteArray& before, const QString& value) const {
        holding("song.xon", before);
        EXPECT_TRUE(write("Data", "key", value));
        return bytesOf("song.xon");
    }
};

TEST_F(ProfileFileTest, ReadsAKeyAsItStands) {
    holding("song.xon",
            "\xEF\xBB\xBF[Data]\r\n"
            ";title=comment\r\n"
            "title=A = B; [c]\r\n"
            "TITLE=second\r\n"
            "\t empty =\n"
            "blanks =  \t two words  \r"
            "quoted=\" a \"\"\r\n"
            "single='s'\r\n"
            "lone=\"\r\n"
            "mixed='m\"\r\n"
            "bare\r\n"
            "old=caf\xE9\r\n"
            "new=caf\xC3\xA9\r\n"
            "[ Other ]trailing\r\n"
            "title=other\r\n"
            "[Data]\r\n"
            "late=1");
    const std::array<QString, 3> cases[] = {
        {"data", "Title", "A = B; [c]"}, {"Data", "empty", ""},        {"Data", "blanks", "two words"},
        {"Data", "quoted", " a \""},     {"Data", "single", "s"},      {"Data", "lone", "\""},
        {"Data", "mixed", "'m\""},       {"Data", "bare", "default"},  {"Data", "old", u"café"_qs},
        {"Data", "new", u"café"_qs},     {"OTHER", "title", "other"},  {"Data", "late", "default"},
        {"Data", ";title", "default"},   {"None", "title", "default"}, {"Other", "empty", "default"}};
    for (const auto& [section, key, value] : cases) EXPECT_EQ(read(section, key), value) << key.toStdString();
}

TEST_F(ProfileFileTest, WritesOneLineAndKeepsAllOthersByteForByte) {
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"", "[Data]\r\nkey=v\r\n"},
        {"[data]\nKEY = old \nx\xE9=1", "[data]\nKEY =v\r\nx\xE9=1"},
        {"[Data]\r\nkey=\"old\"", "[Data]\r\nkey=v\r\n"},
        {"[A]\nkey=a\n", "[A]\nkey=a\n[Data]\r\nkey=v\r\n"},
        {"[Data]\n;x\n\n\n[B]\nkey=b", "[Data]\n;x\nkey=v\r\n\n\n[B]\nkey=b"},
        {"junk\r[Data]", "junk\r[Data]\r\nkey=v\r\n"},
        {"[Data]\nkey=1\nkey=2\n[Data]\nkey=3\n", "[Data]\nkey=v\r\nkey=2\n[Data]\nkey=3\n"},
    };
    for (const auto& [before, after] : cases) EXPECT_EQ(afterWriting(before, "v"), after) << before.data();
    EXPECT_EQ(afterWriting("[Data]\r\nkey=old\r\n", ""), "[Data]\r\nkey=\r\n");
}

TEST_F(ProfileFileTest, AValueNeverBecomesALineOfTheFile) {
    ASSERT_TRUE(write("Data", "title", "one\r\n[Evil]\nkey=1\rend" + QString(QChar(0)) + "hidden"));
    EXPECT_EQ(bytesOf("song.xon"), "[Data]\r\ntitle=one [Evil] key=1 end\r\n");
}

TEST_F(ProfileFileTest, AValueIsCutToTheBuffer) {
    ASSERT_TRUE(write("Data", "title", QString(2046, u'é') + "xyz"));
    EXPECT_EQ(read("Data", "title"), QString(2046, u'é') + "x");
}

TEST_F(ProfileFileTest, WritesHeldTogetherReachTheDiskAllOrNone) {
    holding("song.xon", "[Data]\r\na=old\r\n");
    for (const std::size_t room : {10U, 100U}) {
        FailingDisk disk;
        disk.room = room;
        {
            const ProfileTransaction transaction(path("song.xon"));
            EXPECT_TRUE(write("Data", "a", "1") && write("Data", "b", "2"));
            EXPECT_EQ(read("Data", "a") + read("Data", "b"), "12");
            EXPECT_EQ(bytesOf("song.xon"), "[Data]\r\na=old\r\n");
        }
        EXPECT_EQ(bytesOf("song.xon"), room < 100 ? "[Data]\r\na=old\r\n" : "[Data]\r\na=1\r\nb=2\r\n");
    }
}

TEST_F(ProfileFileTest, AMissingFileReadsAsTheDefaultAndIsNotMade) {
    EXPECT_EQ(read("Data", "title"), "default");
    EXPECT_FALSE(WritePrivateProfileString("Data", "title", "x", path("none/song.xon")));
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(ProfileFileTest, SettingsComeBackAsTheyWereSaved) {
    setSettingsFolder(path("made/on/first/use"));
    const QString application = "Orvantis Lyrebrook";
    EXPECT_EQ(GetSetting(application, "Settings", "globalVolume", "0"), "0");
    for (const QString& value :
         {QString("-1200"), QString(" blanks "), QString("\"quoted\""), QString(""), QString(3000, 'x')}) {
        SaveSetting(application, "Settings", "globalVolume", value);
        EXPECT_EQ(GetSetting(application, "settings", "GLOBALVOLUME", "0"), value);
    }
    EXPECT_EQ(GetSetting("Another", "Settings", "globalVolume", "none"), "none");
    setSettingsFolder({});
}

}  // namespace
}  // namespace lyrebrook
