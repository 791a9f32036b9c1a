#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "backtrack/FrmMixer.h"
#include "recorder/levelBarPictures.h"
#include "recorder/noticeLine.h"
#include "recorder/recordingPlate.h"

namespace lyrebrook {
namespace {

std::unique_ptr<Label> tempoLabel(QWidget* frame, int index) {
    switch (index) {
        case 10:
            return std::make_unique<Label>(frame, QStringLiteral("Fast"));
        case 11:
            return std::make_unique<Label>(frame, QStringLiteral("Normal"));
        default:
            return std::make_unique<Label>(frame, QStringLiteral("Slow"));
    }
}

}  // namespace

FrmMixer::FrmMixer()
    : Form(QStringLiteral("Backtrack Recorder")),
      lblRecording(content(), QStringLiteral("S T O P P E D")),
      lblHMS(content(), QStringLiteral("00:00.00")),
      lblNotice(content()),
      cmdPlay(content(), QStringLiteral("Record")),
      cmdStop(content(), QStringLiteral("Stop")),
      cmdListen(content(), QStringLiteral("Listen")),
      chkLoop(content(), QStringLiteral("Check to loop audio")),
      checkSource(content()),
      Label4(content(),
             QStringLiteral("Check to disable selected backtrack and record from external device or program.")),
      chkSynth(content(), QStringLiteral("Use DLS sampled sounds"), 1),
      fraTempo(content(), QStringLiteral("Tempo")),
      sldTempo(fraTempo, Orientation::horizontal,
               {.Min = 0, .Max = 30, .SmallChange = 1, .LargeChange = 5, .TickFrequency = 5, .Value = 10}),
      lblTempo(10, 12, [this](int index) { return tempoLabel(fraTempo, index); }),
      Frame5(content(), QStringLiteral("Recording VU Meter")),
      leftVU(Frame5),
      rightVU(Frame5),
      cbEnableVU(Frame5, {}, 1),
      cmdMixer(content(), QStringLiteral("Adjust Recording Levels")),
      cmdHelp(content(), QStringLiteral("Help")),
      btnEnd(content(), QStringLiteral("Close")) {
    cmdPlay.setToolTipText(QStringLiteral("Click to record the background music for your song."));
    cmdListen.setToolTipText(QStringLiteral("Click to play/listen to the background music AFTER you've recorded."));
    checkSource.setToolTipText(
        QStringLiteral("Select this box to disable the selected sound file and record from an external source."));
    fraTempo.setToolTipText(QStringLiteral("Tempo can only be changed for midi files"));
    for (Control* hidden : std::initializer_list<Control*>{&cmdListen, &chkLoop, &lblHMS}) hidden->setVisible(false);
    fraTempo.setEnabled(false);
    cmdStop.setEnabled(false);
    layOut();
    connectHandlers();
}

void FrmMixer::layOut() {
    fraTempo.widget()->setLayout(layOutTempo());
    layOutLevels();

    Label4.names(checkSource);
    auto* source = new QHBoxLayout;
    source->setSpacing(8);
    source->addWidget(checkSource);
    source->addWidget(Label4, 1);

    auto* middle = new QHBoxLayout;
    middle->setSpacing(16);
    middle->addWidget(fraTempo, 1);
    middle->addWidget(Frame5);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(chkSynth);
    bottom->addWidget(chkLoop);
    bottom->addStretch(1);
    bottom->addWidget(cmdMixer);
    bottom->addWidget(cmdHelp);
    bottom->addWidget(btnEnd);

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(24, 20, 24, 18);
    column->setSpacing(16);
    column->addLayout(layOutTransport());
    column->addLayout(source);
    column->addLayout(middle);
    makeNoticeLine(lblNotice);
    column->addWidget(lblNotice);
    column->addLayout(bottom);
    window().layout()->setSizeConstraint(QLayout::SetFixedSize);  // nothing here gains by more room
    QWidget::setTabOrder(cbEnableVU, chkSynth);
    QWidget::setTabOrder(chkSynth, cmdMixer);
    QWidget::setTabOrder(cmdMixer, cmdHelp);
}

QBoxLayout* FrmMixer::layOutTransport() {
    cmdPlay.setLook(Look::primary);
    makeRecordingPlate(lblRecording);
    lblRecording.widget()->setMinimumWidth(190);

    auto* row = new QHBoxLayout;
    for (CommandButton* button : {&cmdPlay, &cmdStop, &cmdListen}) {
        button->widget()->setMinimumSize(110, 38);
        row->addWidget(*button);
    }
    row->addStretch(1);
    row->addWidget(lblHMS);
    row->addWidget(lblRecording);
    return row;
}

QBoxLayout* FrmMixer::layOutTempo() {
    sldTempo.setAccessibleName(QStringLiteral("Tempo"));
    sldTempo.setValueText([](std::int32_t value) { return QStringLiteral("%1 x").arg(value / 10.0, 0, 'f', 1); });
    constexpr int halfThumb = 7;
    auto* words = new QGridLayout;  // six equal columns: the normal tempo stands a third of the way along
    words->setContentsMargins(halfThumb, 0, halfThumb, 0);
    words->setHorizontalSpacing(0);
    for (int sixth = 0; sixth < 6; ++sixth) words->setColumnStretch(sixth, 1);
    words->addWidget(lblTempo[12], 0, 0, Qt::AlignLeft);
    words->addWidget(lblTempo[11], 0, 1, 1, 2, Qt::AlignHCenter);
    words->addWidget(lblTempo[10], 0, 5, Qt::AlignRight);
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(sldTempo);
    column->addLayout(words);
    return column;
}

void FrmMixer::layOutLevels() {
    layOutLevelBars(Frame5, leftVU, rightVU);
    cbEnableVU.setAccessibleName(QStringLiteral("Recording VU Meter"));
    Frame5.widget()->layout()->addWidget(cbEnableVU);
}

}  // namespace lyrebrook
