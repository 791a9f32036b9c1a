#include "platform/files/FileSystemObject.h"

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

TEST_F(FileSystemObjectTest, AFileIsMadeOnlyOnRequest) {
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("text"), IOMode::forReading); }), 53);
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("text"), IOMode::forWriting); }), 53);
    EXPECT_EQ(errorOf([&] { fso.OpenTextFile(path("none/text"), IOMode::forReading, true); }), 76);
    EXPECT_TRUE(fso.OpenTextFile(path("text"), IOMode::forReading, true).AtEndOfStream());
    EXPECT_EQ(bytesOf("text"), "");
}

}  // namespace
}  // namespace lyrebrook
