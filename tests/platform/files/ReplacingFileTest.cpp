#include "platform/base/ReplacingFile.h"

#include <sys/stat.h>

#include "platform/files/FailingDisk.h"
#include "platform/files/FileContent.h"
#include "platform/files/FilesFixture.h"

namespace lyrebrook {
namespace {

using ReplacingFileTest = FilesTest;

TEST_F(ReplacingFileTest, WhereverTheDiskFailsTheOldFileIsWholeAndAloneInItsFolder) {
    const QString file = holding("take.wav", "the old take");
    const auto replaceOn = [&](auto breakDisk) {
        FailingDisk disk;
        breakDisk(disk);
        return errorOf([&] { replaceFile(file, "the new take"); });
    };
    for (const std::size_t room : {0U, 1U, 11U}) {
        EXPECT_EQ(replaceOn([=](FailingDisk& disk) { disk.room = room; }), 61) << room;
    }
    EXPECT_EQ(replaceOn([](FailingDisk& disk) { disk.flushError = EIO; }), 57);
    EXPECT_EQ(replaceOn([](FailingDisk& disk) { disk.renameError = EACCES; }), 70);
    EXPECT_EQ(bytesOf("take.wav"), "the old take");
    EXPECT_EQ(names(), QStringList{"take.wav"});
}

TEST_F(ReplacingFileTest, SmallBitesAndInterruptionsLoseNoByte) {
    FailingDisk disk;
    disk.bytesAtOnce = 3;
    disk.interrupts = true;
    replaceFile(path("take.wav"), "ten letters");
    EXPECT_EQ(bytesOf("take.wav"), "ten letters");
}

TEST_F(ReplacingFileTest, PermissionsAndLinksStay) {
    const QString file = holding("take.wav", "old");
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    QFile::link("take.wav", path("link.wav"));
    replaceFile(path("link.wav"), "new");
    EXPECT_EQ(bytesOf("take.wav"), "new");
    EXPECT_TRUE(QFileInfo(path("link.wav")).isSymLink());
    EXPECT_FALSE(QFile::permissions(file) & QFile::ReadOther);
}

TEST_F(ReplacingFileTest, ItRefusesWhatItMustNotReplace) {
    QFile::setPermissions(holding("locked", "old"), QFile::ReadOwner);
    QDir().mkdir(path("folder"));
    ASSERT_EQ(mkfifo(nativePath(path("pipe")).c_str(), 0600), 0);
    const std::pair<QString, std::int32_t> cases[] = {
        {path("locked"), 70},        {path("folder"), 75},          {path("pipe"), 75},
        {path("none/take.wav"), 76}, {path("locked/take.wav"), 76}, {path(QString(256, 'x')), 75}};
    for (const auto& [file, number] : cases) {
        EXPECT_EQ(errorOf([&] { replaceFile(file, "new"); }), number) << file.toStdString();
    }
    EXPECT_EQ(bytesOf("locked"), "old");
}

}  // namespace
}  // namespace lyrebrook
