#include <QFileInfo>

#include "backtrack/FrmSelect.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {

using namespace std::chrono_literals;

void chooseBacktrack(Tour& tour) {
    frmIntro->mnuStep2.Click.fire();
    tour.require(frmSelect->File1.ListCount() > 0, QStringLiteral("the shipped backtracks are offered"));
    frmSelect->CmdAdd.setValue(true);
    frmSelect->List1.setListIndex(0);
    frmSelect->cmdListen.setValue(true);
    tour.studio().crank(2s);
    tour.require(frmSelect->cmdStop.Enabled(), QStringLiteral("the backtrack is heard"));
    tour.picture(*frmSelect, QStringLiteral("select-song"));
    frmSelect->cmdStop.setValue(true);
    frmSelect->btnEnd.setValue(true);
    tour.require(QFileInfo::exists(gBacktrackFile), QStringLiteral("a backtrack is chosen"));
    tour.say(QStringLiteral("step 2: chose %1 (%2 bytes)")
                 .arg(tour.relative(gBacktrackFile))
                 .arg(QFileInfo(gBacktrackFile).size()));
}

}  // namespace lyrebrook
