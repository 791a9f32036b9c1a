#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include "democd/FrmDemoCD.h"
#include "platform/files/App.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {
namespace {

constexpr int finalMix = 4;

/// A sun of that colour over the evening sky, as a stand-in for a photograph.
QString photograph(const QString& name, const QColor& sun) {
    QImage image(640, 420, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, QColor(24, 30, 66));
    sky.setColorAt(1, QColor(196, 106, 62));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sun);
    painter.drawEllipse(QPointF(430, 250), 70, 70);
    painter.fillRect(0, 330, image.width(), 90, QColor(16, 18, 28));
    const QString file = App::Path() + u'/' + name;
    image.save(file);
    return file;
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
    tour.desk().willChoose(photograph(QStringLiteral("evening.jpg"), QColor(250, 200, 110)));
    frmDemoCD->cmdOpenPhoto[1].setValue(true);
    frmDemoCD->txtPhotoDesc[1].setText(QStringLiteral("The evening before the first take"));
    tour.desk().willChoose(photograph(QStringLiteral("morning.jpg"), QColor(255, 240, 210)));
    frmDemoCD->cmdOpenPhoto[2].setValue(true);
    frmDemoCD->txtPhotoDesc[2].setText(QStringLiteral("The morning after the last one"));
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
