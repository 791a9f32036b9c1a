#include "platform/files/FileSystemObject.h"

#include "platform/files/FailingDisk.h"
#include "platform/files/FilesFixture.h"

namespace lyrebrook {
namespace {

class FileSystemObjectTest : public FilesTest {
  protected:
    FileSystemObject fso;
};

TEST_F(FileSystemObjectTest, AFoldersFilesComeInTheOrderOfTheirNamesWithoutCase) {
    for (const QString& name : {u"b"_qs, u"é"_qs, u"a10"_qs, u"B"_qs, u"a2"_qs, u".hidden"_qs, u"Aa"_qs}) {
        holding(name, "12345");
    }
    QDir().mkdir(path("a folder"));
    QStringList found;
    const Folder folder = fso.GetFolder(path(""));
    for (const File& file : folder.Files()) {
        found << file.Name;
        EXPECT_EQ(file.Size, 5);
        EXPECT_EQ(QFileInfo(file.Path), QFileInfo(path(file.Name)));
    }
    EXPECT_EQ(found, (QStringList{".hidden", "a10", "a2", "Aa", "B", "b", u"é"_qs}));
    EXPECT_EQ(errorOf([&] { fso.GetFolder(path("none")); }), 76);
}

TEST_F(FileSystemObjectTest, DeletingSparesWhatIsProtectedUnlessForced) {
    const QString locked = holding("locked", "");
    QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteGroup);
    QDir().mkdir(path("folder"));
    const std::pair<QString, std::int32_t> cases[] = {
        {holding("file", ""), 0}, {path("none"), 53}, {path("folder"), 53}, {path("none/file"), 76}, {locked, 70}};
    for (const auto& [file, number] : cases) {
        EXPECT_EQ(errorOf([&] { fso.DeleteFile(file); }), number) << file.toStdString();
    }
    EXPECT_EQ(names(), (QStringList{"folder", "locked"}));
    fso.DeleteFile(locked, true);
    EXPECT_EQ(names(), QStringList{"folder"});
}

TEST_F(FileSystemObjectTest, ACopyIsWholeOrNotThereHoweverTheDiskCopies) {
    QByteArray song(9'000'000, 'x');
    for (qsizetype i = 0; i < song.size(); i += 1000) song[i] = static_cast<char>(i / 1000);
    const QString from = holding("song.wav", song);
    QDir().mkdir(path("disc"));
    for (const bool copies : {true, false}) {
        FailingDisk disk;
        disk.copies = copies;
        disk.bytesAtOnce = 1'000'000;
        int pauses = 0;
        fso.CopyFile(from, path("disc/"), [&] { ++pauses; });
        EXPECT_TRUE(bytesOf("disc/song.wav") == song) << copies;
        EXPECT_GE(pauses, 9);

        disk.room = 5'000'000;
        EXPECT_EQ(errorOf([&] { fso.CopyFile(from, path("disc/new.wav")); }), 61);
        disk.room = 5'000'000;
        EXPECT_EQ(errorOf([&] { fso.CopyFile(from, path("disc/song.wav")); }), 61);
        EXPECT_TRUE(bytesOf("disc/song.wav") == song) << "a failed copy leaves the file that it was to replace";
    }
    EXPECT_EQ(QDir(path("disc")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"song.wav"});
    EXPECT_EQ(errorOf([&] { fso.CopyFile(path("none"), path("copy")); }), 53);
    EXPECT_EQ(errorOf([&] { fso.CopyFile(from, path("none/copy")); }), 76);
}

TEST_F(FileSystemObjectTest, AFolderGoesWithAllThatItHoldsButNeverBehindALink) {
    QDir().mkpath(path("disc/deep"));
    QDir().mkdir(path("mine"));
    holding("mine/song", "");
    const QString locked = holding("disc/deep/locked", "");
    QFile::setPermissions(locked, QFile::ReadOwner);
    QFile::link(path("mine"), path("disc/link"));
    QFile::link(path("mine"), path("link"));
    EXPECT_EQ(errorOf([&] { fso.DeleteFolder(path("disc")); }), 70);
    EXPECT_TRUE(QFileInfo(path("disc/link")).isSymLink()) << "nothing goes when something must stay";
    fso.DeleteFolder(path("disc"), true);
    fso.DeleteFolder(path("link"));
    EXPECT_EQ(names(), QStringList{"mine"});
    EXPECT_TRUE(QFile::exists(path("mine/song")));
    EXPECT_EQ(errorOf([&] { fso.DeleteFolder(path("mine/song")); }), 76);

    fso.CreateFolder(path("new"));
    EXPECT_EQ(errorOf([&] { fso.CreateFolder(path("new")); }), 58);
    EXPECT_EQ(errorOf([&] { fso.CreateFolder(path("none/new")); }), 76);
}

TEST_F(FileSystemObjectTest, AFileIsMadeOnlyOnRequest) {
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("text"), IOMode::forReading); }), 53);
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("text"), IOMode::forWriting); }), 53);
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("none/text"), IOMode::forReading, true); }), 76);
    EXPECT_TRUE(fso.OpenTextFile(path("text"), IOMode::forReading, true).AtEndOfStream());
    EXPECT_EQ(bytesOf("text"), "");
    fso.OpenTextFile(path("page"), IOMode::forWriting, true);
    EXPECT_FALSE(QFile::exists(path("page"))) << "a text that was never closed leaves no empty file";
}

}  // namespace
}  // namespace lyrebrook
