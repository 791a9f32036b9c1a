#include <QApplication>

#include "platform/forms/FormInstance.h"
#include "platform/forms/QtDesktop.h"
#include "platform/forms/Theme.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/cards/chooseCard.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace {

void subMain() {
    lyrebrook::setUpGlobals();
    lyrebrook::frmIntro.Show();
}

}  // namespace

int main(int argc, char* argv[]) {
    using namespace lyrebrook;
    QApplication application(argc, argv);
    applyTheme(application);
    QtDesktop realDesktop;
    realDesktop.setBeforeEnd([] { SoundSystem::remove(); });
    setDesktop(&realDesktop);
    SoundSystem::install(chooseCard());
    subMain();
    return QApplication::exec();
}
