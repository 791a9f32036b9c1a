#include "support/benchScreen.h"

#include <QApplication>
#include <cstdio>

#include "platform/forms/Theme.h"

namespace lyrebrook {
namespace {

/// The offscreen platform remarks on much that is no fault of the program; the table is to stay readable.
void tellFaults(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

}  // namespace

int benchScreen(int argc, char* argv[], void (*measure)()) {
    qInstallMessageHandler(tellFaults);
    QApplication application(argc, argv);
    applyTheme(application);
    measure();
    return 0;
}

}  // namespace lyrebrook
