#include "platform/files/App.h"

#include "platform/files/FilesFixture.h"

namespace lyrebrook {
namespace {

class AppTest : public FilesTest {
  protected:
    const DataPlaces places{path("program"), path("installed"), path("user")};
};

TEST_F(AppTest, ThePersonsFolderIsFilledOnceFromTheInstalledData) {
    QDir().mkpath(path("installed/database"));
    QDir().mkpath(path("installed/templates/cdRedPlayer/images"));
    QFile::setPermissions(holding("installed/database/eng.xon", "song"), QFile::ReadOwner);
    holding("installed/templates/cdRedPlayer/images/a.gif", "GIF");
    QFile::link("images", path("installed/templates/cdRedPlayer/pictures"));
    EXPECT_EQ(dataFolder(places), path("user"));
    EXPECT_EQ(QFileInfo(path("user/templates/cdRedPlayer/pictures")).symLinkTarget(),
              path("user/templates/cdRedPlayer/images"));
    EXPECT_EQ(bytesOf("user/templates/cdRedPlayer/images/a.gif"), "GIF");
    EXPECT_TRUE(QFileInfo(path("user/playlists")).isDir());
    EXPECT_TRUE(QFile::permissions(path("user/database/eng.xon")) & QFile::WriteOwner);

    QFile::remove(path("user/database/eng.xon"));
    EXPECT_EQ(dataFolder(places), path("user"));
    EXPECT_FALSE(QFileInfo::exists(path("user/database/eng.xon")));
}

TEST_F(AppTest, TheProgramsOwnFolderIsUsedWhileItHoldsSongs) {
    QDir().mkpath(path("program/songs"));
    EXPECT_EQ(dataFolder(places), path("user"));
    QDir().mkpath(path("program/projects"));
    EXPECT_EQ(dataFolder(places), path("program"));
}

TEST_F(AppTest, AFolderThatCouldNotBeFilledIsNotLeftHalfFilled) {
    QDir().mkpath(path("installed/support"));
    QFile::link("loop", path("installed/support/loop"));
    dataFolder(places);
    EXPECT_EQ(names(), QStringList{"installed"});
}

TEST_F(AppTest, ItsPathEndsWithoutASeparator) {
    App::setPath("/studio/");
    EXPECT_EQ(App::Path(), "/studio");
}

}  // namespace
}  // namespace lyrebrook
