#include <QFileInfo>

#include "platform/files/FileSystemObject.h"
#include "projects/FrmSongConfig.h"
#include "projects/SongData.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"
#include "steps.h"

namespace lyrebrook {

void openProgram(Tour& tour) {
    frmIntro.Show();
    tour.picture(*frmIntro, QStringLiteral("main-window"));
    tour.say(QStringLiteral("start: the main window is up"));
}

void createSong(Tour& tour) {
    frmIntro->mnuStep1.Click.fire();
    frmSongConfig->txtSongName.setText(QStringLiteral("My First Song"));
    frmSongConfig->txtCategory.setText(QStringLiteral("Folk"));
    tour.desk().willAnswer(vbOK);
    frmSongConfig->CmdAdd.setValue(true);
    tour.require(tour.desk().takeBoxes().back().text == QStringLiteral("Song added successfully!"),
                 QStringLiteral("the song is added"));
    tour.picture(*frmSongConfig, QStringLiteral("create-project"));
    const QString file = songDataPath(QStringLiteral("My First Song"));
    tour.require(FileSystemObject().FileExists(file), QStringLiteral("the song has its data file"));
    frmSongConfig->cmdClose.setValue(true);
    tour.say(QStringLiteral("step 1: created \"%1\"").arg(gSongName));
    tour.say(QStringLiteral("  %1: %2 bytes").arg(tour.relative(file)).arg(QFileInfo(file).size()));
}

}  // namespace lyrebrook
