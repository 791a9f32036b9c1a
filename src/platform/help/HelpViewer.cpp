#include "platform/help/HelpViewer.h"

#include <QPointer>

#include "platform/help/HelpFile.h"
#include "platform/help/HelpWindow.h"

namespace lyrebrook {
namespace {

/// The one window, nothing after the person closed it.
QPointer<HelpWindow>& currentWindow() {
    static QPointer<HelpWindow> window;
    return window;
}

}  // namespace

void HelpViewer::show(const QString& file, HelpCommand command, std::int32_t context) {
    const HelpFile help(file);
    QPointer<HelpWindow>& window = currentWindow();
    if (window) {
        window->open(help);
    } else {
        window = new HelpWindow(help);
    }
    if (command == HelpCommand::topic) {
        window->showTopic(context);
    } else {
        window->showContents();
    }
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace lyrebrook
