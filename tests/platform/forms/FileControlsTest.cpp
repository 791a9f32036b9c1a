#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "Diary.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/DirListBox.h"
#include "platform/forms/DriveListBox.h"
#include "platform/forms/FileListBox.h"

namespace lyrebrook {
namespace {

class FrmBrowse final : public Form {
  public:
    FrmBrowse() : Form(QStringLiteral("Browse")) {
        on(Dir1.Change, [this] {
            File1.setPath(Dir1.Path());
            diary << QDir(Dir1.Path()).dirName();
        });
        on(File1.Click, [this] { diary << File1.FileName(); });
    }
    DriveListBox Drive1{content()};
    DirListBox Dir1{content()};
    FileListBox File1{content()};
};
FormInstance<FrmBrowse> frmBrowse;

class Browser : public AtDesk {
  protected:
    Browser() {
        QDir(folder.path()).mkpath(QStringLiteral("tracks/inner"));
        for (const char* name : {"b.MID", "A.wav", "c.mp3", "d.mid.txt", "wav"}) {
            QFile file(folder.filePath(QStringLiteral("tracks/") + QString::fromLatin1(name)));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
        form.File1.setPattern(QStringLiteral("*.Wav;*.mid"));
    }
    QTemporaryDir folder;
    FrmBrowse& form = *frmBrowse;
};

TEST_F(Browser, TheSameFolderIsNoChangeAndABadOneAnError) {
    const QString tracks = folder.filePath(QStringLiteral("tracks"));
    form.Dir1.setPath(tracks + u'/');
    form.File1.setListIndex(1);
    form.Dir1.setPath(tracks);
    EXPECT_EQ(takeDiary(), QStringList({"tracks", "b.MID"}));
    for (const QString& bad : {QString(), folder.filePath(QStringLiteral("gone")), tracks + "/A.wav"}) {
        EXPECT_THROW(form.Dir1.setPath(bad), RuntimeError);
        EXPECT_THROW(form.File1.setPath(bad), RuntimeError);
    }
    EXPECT_EQ(form.Dir1.Path(), tracks);
    EXPECT_THROW(form.Drive1.setDrive(QStringLiteral("/no such drive")), RuntimeError);
}

TEST_F(Browser, EnterGoesDownAndUpTheTree) {
    form.Dir1.setPath(folder.path());
    takeDiary();
    QTest::keyClick(form.Dir1, Qt::Key_Down);
    QTest::keyClick(form.Dir1, Qt::Key_Return);
    EXPECT_EQ(takeDiary(), QStringList({"tracks"}));
    QTest::keyClick(form.Dir1, Qt::Key_Up);
    QTest::keyClick(form.Dir1, Qt::Key_Return);
    EXPECT_EQ(takeDiary(), QStringList({QDir(folder.path()).dirName()}));
}

}  // namespace
}  // namespace lyrebrook
