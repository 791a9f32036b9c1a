#include <QDirIterator>
#include <QFileInfo>

#include "democd/FrmDemoCD.h"
#include "platform/files/App.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {
namespace {

constexpr int finalMix = 4;

/// A picture that ships with the program, as a stand-in for a photograph.
QString photograph(const char* name) {
    return App::Path() + QStringLiteral("/DemoCD_Example/Demo1/") + QString::fromLatin1(name);
}

void fillProject(Tour& tour) {
    frmDemoCD->comTitles.setText(QStringLiteral("First Demo"));
    frmDemoCD->txtName.setText(QStringLiteral("Ada Brook"));
    frmDemoCD->txtAge.setText(QStringLiteral("29"));
    frmDemoCD->txtCountry.setText(QStringLiteral("Ireland"));
    frmDemoCD->txtOwner.setText(QStringLiteral("Ada Brook"));
    frmDemoCD->txtCV.setText(
        QStringLiteral("Grew up between two rivers and a piano.\r\nFour years of open stages in Galway and Dublin.\r\n"
                       "Looking for a small label with patience."));
    frmDemoCD->txtEmail.setText(QStringLiteral("ada@example.org"));
    frmDemoCD->txtPhone.setText(QStringLiteral("+353 1 555 0142"));
    frmDemoCD->txtPostal.setText(QStringLiteral("3 Mill Lane\r\nGalway"));
    tour.picture(*frmDemoCD, QStringLiteral("demo-project"));
}

void chooseSong(Tour& tour) {
    frmDemoCD->TabStrip1.setSelectedItem(2);
    frmDemoCD->txtSongTitle[1].setText(gSongName);
    tour.desk().willChoose(trackFilePath(finalMix));
    frmDemoCD->cmdOpenSong[1].setValue(true);
    tour.picture(*frmDemoCD, QStringLiteral("demo-songs"));
}

void choosePhotos(Tour& tour) {
    frmDemoCD->TabStrip1.setSelectedItem(3);
    tour.desk().willChoose(photograph("harbour.jpg"));
    frmDemoCD->cmdOpenPhoto[1].setValue(true);
    frmDemoCD->txtPhotoDesc[1].setText(QStringLiteral("The evening before the first take."));
    tour.desk().willChoose(photograph("stage.jpg"));
    frmDemoCD->cmdOpenPhoto[2].setValue(true);
    frmDemoCD->txtPhotoDesc[2].setText(QStringLiteral("Where it will be played first."));
    tour.picture(*frmDemoCD, QStringLiteral("demo-photos"));
}

void saySite(Tour& tour) {
    QStringList files;
    for (QDirIterator each(App::Path() + QStringLiteral("/DemoCD"), QDir::Files, QDirIterator::Subdirectories);
         each.hasNext();) {
        const QFileInfo file(each.next());
        files << QStringLiteral("  %1: %2 bytes").arg(tour.relative(file.filePath())).arg(file.size());
    }
    files.sort();
    for (const QString& line : files) tour.say(line);
}

}  // namespace

void makeDemo(Tour& tour) {
    frmIntro->mnuStep5.Click.fire();
    fillProject(tour);
    chooseSong(tour);
    choosePhotos(tour);
    frmDemoCD->TabStrip1.setSelectedItem(4);
    frmDemoCD->cmdCreate.setValue(true);
    frmDemoCD->Label10.Click.fire();
    tour.require(frmDemoCD->frmMessage.Visible(), QStringLiteral("the site is made"));
    tour.picture(*frmDemoCD, QStringLiteral("demo-finalized"));
    tour.say(QStringLiteral("step 5: made the site"));
    saySite(tour);
    const QString song = App::Path() + QStringLiteral("/DemoCD/demo1/") + frmDemoCD->lblPath[1].Caption();
    tour.require(framesOf(song) == framesOf(trackFilePath(finalMix)), QStringLiteral("the site plays the final mix"));
    frmDemoCD->cmdClose.setValue(true);
}

}  // namespace lyrebrook
