// The main function of test programs that show screens: one application for all tests, off the screen, in the
// program's own dress. A warning of Qt's fails the test that caused it.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/forms/Theme.h"
#include "support/complaints.h"

namespace {

void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (lyrebrook::isComplaint(type, message)) ADD_FAILURE() << "Qt says: " << message.toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    lyrebrook::applyTheme(application);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
