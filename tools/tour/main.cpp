#include <QApplication>
#include <cstdio>
#include <exception>

#include "platform/forms/Theme.h"
#include "steps.h"
#include "support/complaints.h"

namespace {

bool complained = false;

/// A warning of Qt's or of the desk's script is a step that didn't go as it should.
void noteComplaint(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (!lyrebrook::isComplaint(type, message)) return;
    std::fprintf(stderr, "tour: %s\n", qPrintable(message));
    complained = true;
}

void walk(const QString& folder) {
    using namespace lyrebrook;
    Tour tour(folder);
    openProgram(tour);
    createSong(tour);
    chooseBacktrack(tour);
    recordBacktrack(tour);
    singVoices(tour);
    writeLyrics(tour);
    adjustLevels(tour);
    makeDemo(tour);
    showSite(tour);
    tour.require(!complained, QStringLiteral("no complaint on the way"));
    tour.say(QStringLiteral("tour: ok"));
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    lyrebrook::applyTheme(application);
    qInstallMessageHandler(noteComplaint);
    if (argc != 2) {
        std::fputs("usage: tour FOLDER\n", stderr);
        return 2;
    }
    try {
        walk(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
    return complained ? 1 : 0;
}
