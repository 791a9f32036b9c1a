#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include "lyrics/FrmLyrics.h"
#include "steps.h"

namespace lyrebrook {
namespace {

QByteArray firstPage(const QString& pdf) {
    QProcess painter;
    painter.start(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("75"),
                                               QStringLiteral("-l"), QStringLiteral("1"), pdf});
    return painter.waitForFinished() ? painter.readAllStandardOutput() : QByteArray();
}

}  // namespace

void printLyrics(Tour& tour) {
    const QString pdf = QDir::cleanPath(tour.studio().path(QStringLiteral("../lyrics.pdf")));
    tour.desk().willPrintTo(pdf);
    frmLyrics->cmdPrint.setValue(true);
    tour.require(QFile::exists(pdf), QStringLiteral("the lyrics are printed"));
    tour.say(QStringLiteral("step 4: printed the lyrics to ") + tour.relative(pdf));
    if (QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty())
        return tour.say(QStringLiteral("step 4: no pdftoppm here, so no picture of the page"));
    tour.picture(firstPage(pdf), QStringLiteral("printed-lyrics"));
}

}  // namespace lyrebrook
