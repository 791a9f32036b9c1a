#include "shell/modConfig.h"

#include <gtest/gtest.h>

#include "platform/files/App.h"
#include "platform/system/WindowsVersion.h"

namespace lyrebrook {
namespace {

QString toolOf(const SystemIdentity& system) {
    setSystemIdentity(system);
    setUpGlobals();
    return gOSName + u'|' + gSoundVolumeTool;
}

TEST(GlobalState, NamesTheSystemAndItsVolumeToolWithTheirAsymmetries) {
    const std::pair<SystemIdentity, const char*> cases[] = {
        {{0, 0, 0, {}}, "Windows 32|na"},
        {{1, 4, 0, {}}, "Windows 95|na"},
        {{1, 4, 10, {}}, "Windows 98|C:\\WINDOWS\\SNDVOL32.EXE"},
        {{1, 4, 90, {}}, "Windows ME|C:\\WINDOWS\\SNDVOL32.EXE"},
        {{1, 4, 3, {}}, "Windows 32|na"},
        {{2, 4, 0, {}}, "Windows NT|C:\\WINNT\\System32\\sndrec32.exe"},
        {{2, 5, 0, {}}, "Windows 2K|C:\\WINNT\\System32\\sndvol32.exe"},
        {{2, 5, 1, {}}, "Windows XP|C:\\WINDOWS\\System32\\sndvol32.exe"},
        {{2, 5, 2, {}}, "Windows 32|na"},
        {{2, 10, 0, {}}, "Windows 32|na"},
    };
    for (const auto& [system, expected] : cases) EXPECT_EQ(toolOf(system).toStdString(), expected);
}

TEST(GlobalState, DerivesTheSystemFolderWithOneSeparatorAndAPlainFallback) {
    setSystemIdentity({2, 5, 1, QStringLiteral("D:\\WINDOWS")});
    setUpGlobals();
    EXPECT_EQ(gWindowsFolder, QStringLiteral("D:\\WINDOWS"));
    EXPECT_EQ(gSystemFolder, QStringLiteral("D:\\WINDOWS\\SYSTEM32\\"));

    setSystemIdentity({2, 5, 1, QStringLiteral("D:\\")});
    setUpGlobals();
    EXPECT_EQ(gSystemFolder, QStringLiteral("D:\\SYSTEM32\\"));

    setSystemIdentity({});
    setUpGlobals();
    EXPECT_EQ(gWindowsFolder, QString(255, u' '));
    EXPECT_EQ(gSystemFolder, QStringLiteral("C:\\WINDOWS\\SYSTEM32"));
}

TEST(GlobalState, StartsWithNoSongAndOneEmptyLyricRow) {
    App::setPath(QStringLiteral("/home/singer/Lyrebrook"));
    gLyrics.resize(5);
    setUpGlobals();
    EXPECT_EQ(gSongsFolder, QStringLiteral("/home/singer/Lyrebrook/songs/"));
    EXPECT_EQ(gLyricFile, QStringLiteral("/home/singer/Lyrebrook/songs/.txt"));
    EXPECT_TRUE(gSongName.isEmpty());
    ASSERT_EQ(gLyrics.size(), 1U);
    EXPECT_FALSE(gLyrics[0][0].isValid());
}

}  // namespace
}  // namespace lyrebrook
