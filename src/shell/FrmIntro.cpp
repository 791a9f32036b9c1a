#include "shell/FrmIntro.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "backtrack/FrmMixer.h"
#include "backtrack/FrmSelect.h"
#include "democd/FrmDemoCD.h"
#include "mixer/FrmVolumeMixer.h"
#include "platform/files/App.h"
#include "platform/files/FileSystemObject.h"
#include "platform/forms/Desktop.h"
#include "platform/forms/Theme.h"
#include "platform/help/HelpViewer.h"
#include "platform/winmm/waveOut.h"
#include "projects/FrmSongConfig.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmAbout.h"
#include "shell/banner.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmIntro> frmIntro;

namespace {

enum class Light { open, done };

void paintLight(QPainter& painter, const QRectF& area, Light light) {
    painter.fillRect(area, theme::window);
    const double side = std::min(area.width(), area.height()) - 6;
    QRectF disc(0, 0, side, side);
    disc.moveCenter(area.center());
    const QColor colour = light == Light::done ? theme::lightDone : theme::lightOpen;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour.darker(150), 1.5));
    QRadialGradient glow(disc.center() - QPointF(side / 6, side / 6), side * 0.7);
    glow.setColorAt(0, colour.lighter(light == Light::done ? 150 : 120));
    glow.setColorAt(1, colour);
    painter.setBrush(glow);
    painter.drawEllipse(disc);
}

ControlArray<PictureBox>::Maker lights(QWidget* container, Light light) {
    return [container, light](int index) {
        auto box = std::make_unique<PictureBox>(container);
        box->setPainting([light](QPainter& painter, const QRectF& area) { paintLight(painter, area, light); });
        box->setAccessibleName(QStringLiteral("Step %1 is %2")
                                   .arg(index + 1)
                                   .arg(light == Light::done ? QStringLiteral("done") : QStringLiteral("not done")));
        box->widget()->setFixedSize(34, 34);
        return box;
    };
}

QString needSong(int step) {
    return QStringLiteral("Please select an existing song or create a new song before you click to Step %1!").arg(step);
}

/// The user lands on what is missing.
void turnBack(const QString& message, FormSlot& missingStep) {
    MsgBox(message);
    missingStep.Show();
}

}  // namespace

FrmIntro::FrmIntro()
    : Form(QStringLiteral("Lyrebrook")),
      picStatusN(0, 4, lights(content(), Light::open)),
      picStatusY(0, 4, lights(content(), Light::done)),
      picBanner(content()),
      lblStep1(content(), QStringLiteral("Step 1")),
      lblStep2(content(), QStringLiteral("Step 2")),
      lblStep3(content(), QStringLiteral("Step 3")),
      lblStep4(content(), QStringLiteral("Step 4")),
      lblStep5(content(), QStringLiteral("Step 5")),
      Label3(content(), QStringLiteral("Create new project")),
      Label5(content(), QStringLiteral("Select music backtrack")),
      Label9(content(), QStringLiteral("Record background music")),
      Label7(content(), QStringLiteral("Compose melody and write lyrics")),
      Label1(content(), QStringLiteral("Create DEMO website and CD")),
      mnuSteps(*this, QStringLiteral("Step-by-step")),
      mnuStep1(mnuSteps, QStringLiteral("Step 1: Create new song")),
      mnuStep2(mnuSteps, QStringLiteral("Step 2: Select backtrack")),
      mnuStep3(mnuSteps, QStringLiteral("Step 3: Record the backtrack")),
      mnuStep4(mnuSteps, QStringLiteral("Step 4: Write the song")),
      mnuStep5(mnuSteps, QStringLiteral("Step 5: Create Demo website and CD")),
      mnuHelp(*this, QStringLiteral("Help")),
      mnuHelp2(mnuHelp, QStringLiteral("Help")),
      mnuAbout(*this, QStringLiteral("About")),
      mnuAbout2(mnuAbout, QStringLiteral("About us")),
      mnuExit(*this, QStringLiteral("Exit")) {
    layOut();
    connectHandlers();
}

void FrmIntro::layOut() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(14);
    grid->setColumnStretch(2, 1);
    addStep(*grid, 0, lblStep1, Label3);
    addStep(*grid, 1, lblStep2, Label5);
    addStep(*grid, 2, lblStep3, Label9);
    addStep(*grid, 3, lblStep4, Label7);
    addStep(*grid, 4, lblStep5, Label1);

    picBanner.setPainting(paintBanner);
    picBanner.setAccessibleName(QStringLiteral("Lyrebrook"));
    picBanner.widget()->setMinimumSize(480, 150);

    grid->setContentsMargins(44, 24, 44, 32);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(picBanner, 1);
    column->addLayout(grid);
}

void FrmIntro::addStep(QGridLayout& grid, int index, Label& number, Label& purpose) {
    grid.addWidget(picStatusY[index], index, 0, Qt::AlignCenter);
    grid.addWidget(picStatusN[index], index, 0, Qt::AlignCenter);
    picStatusN[index].ZOrder();

    number.setLook(Look::heading);
    number.makeLink();
    purpose.setLook(Look::heading);
    grid.addWidget(number, index, 1);
    grid.addWidget(purpose, index, 2);
}

void FrmIntro::connectHandlers() {
    for (auto* entry : {&lblStep1.Click, &mnuStep1.Click}) on(*entry, &FrmIntro::mnuStep1_Click);
    for (auto* entry : {&lblStep2.Click, &mnuStep2.Click}) on(*entry, &FrmIntro::mnuStep2_Click);
    for (auto* entry : {&lblStep3.Click, &mnuStep3.Click}) on(*entry, &FrmIntro::mnuStep3_Click);
    for (auto* entry : {&lblStep4.Click, &mnuStep4.Click}) on(*entry, &FrmIntro::mnuStep4_Click);
    for (auto* entry : {&lblStep5.Click, &mnuStep5.Click}) on(*entry, &FrmIntro::mnuStep5_Click);
    on(picStatusN, &PictureBox::Click, &FrmIntro::picStatusN_Click);
    on(mnuHelp2.Click, [this] { openHelp(0); });
    on(mnuAbout2.Click, &FrmIntro::mnuAbout2_Click);
    on(mnuExit.Click, &FrmIntro::mnuExit_Click);
}

void FrmIntro::Form_Load() {
    gSongTemplate = App::Path() + QStringLiteral("/songTemplate/songTemplate.wav");
    gSongsFolder = App::Path() + QStringLiteral("/songs/");
    gTracksFolder = App::Path() + QStringLiteral("/tracks/Version1/");
    gLyricsSaved = true;
    testSoundCard();
}

void FrmIntro::testSoundCard() {
    if (waveOutGetNumDevs() >= 1) return;
    MsgBox(QStringLiteral("No sound card was detected on your computer. Without a sound card you will not hear any "
                          "sound. Please install before you proceed to avoid further error messages!"),
           vbInformation, QStringLiteral("Sound Card Test"));
}

void FrmIntro::Form_Unload() {
    frmVolumeMixer.Unload();
    endProgram();
}

bool FrmIntro::checkFileExists() const {
    return !gSongName.isEmpty() && FileSystemObject().FileExists(trackFilePath(1));
}

void FrmIntro::openHelp(std::int32_t helpId) {
    const QString file = App::Path() + QStringLiteral("/support/lyrebrookHelp.hlp");
    HelpViewer::show(file, helpId == 0 ? HelpCommand::contentsFinder : HelpCommand::topic, helpId);
}

void FrmIntro::exitProgram(FormSlot& form) {
    form.Unload();
    endProgram();
}

void FrmIntro::mnuStep1_Click() {
    frmSongConfig.Show();
}

void FrmIntro::mnuStep2_Click() {
    if (gSongName.isEmpty()) return turnBack(needSong(2), frmSongConfig);
    frmSelect.Show();
}

void FrmIntro::mnuStep3_Click() {
    if (gSongName.isEmpty()) return turnBack(needSong(3), frmSongConfig);
    if (gBacktrackFile.isEmpty()) {
        return turnBack(QStringLiteral("Please select a backtrack for your song before you go to step 3!"), frmSelect);
    }
    frmMixer.Show();
}

void FrmIntro::mnuStep4_Click() {
    if (gSongName.isEmpty()) return turnBack(needSong(4), frmSongConfig);
    if (!checkFileExists()) {
        return turnBack(QStringLiteral("Please record the backtrack for your song before you go to step 4!"), frmMixer);
    }
    frmComposer.Show();
}

void FrmIntro::mnuStep5_Click() {
    frmDemoCD.Show();
}

void FrmIntro::picStatusN_Click(int index) {
    switch (index) {
        case 0:
            return mnuStep1_Click();
        case 1:
            return mnuStep2_Click();
        case 2:
            return mnuStep3_Click();
        case 3:
            return mnuStep4_Click();
        default:
            return mnuStep5_Click();
    }
}

void FrmIntro::mnuAbout2_Click() {
    frmAbout.Show();
}

void FrmIntro::mnuExit_Click() {
    frmIntro.Unload();
}

}  // namespace lyrebrook
