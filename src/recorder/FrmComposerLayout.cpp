#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/Theme.h"
#include "recorder/FrmComposer.h"
#include "recorder/levelBarPictures.h"
#include "recorder/noticeLine.h"
#include "recorder/recordingPlate.h"
#include "recorder/transportIcons.h"

namespace lyrebrook {
namespace {

constexpr Slider::Range levelRange{
    .Min = 0, .Max = 3000, .SmallChange = 1, .LargeChange = 5, .TickFrequency = 200, .Value = 0};
constexpr Slider::Range panRange{
    .Min = 0, .Max = 20000, .SmallChange = 10, .LargeChange = 4000, .TickFrequency = 5000, .Value = 10000};
constexpr Slider::Range reverbRange{
    .Min = 0, .Max = 50, .SmallChange = 1, .LargeChange = 5, .TickFrequency = 5, .Value = 50};
constexpr Slider::Range masterRange{
    .Min = 0, .Max = 20, .SmallChange = 1, .LargeChange = 5, .TickFrequency = 3, .Value = 0};
constexpr Slider::Range offsetRange{
    .Min = 0, .Max = 150, .SmallChange = 10, .LargeChange = 30, .TickFrequency = 10, .Value = 0};
constexpr Slider::Range zoomRange{
    .Min = 0, .Max = 200, .SmallChange = 1, .LargeChange = 5, .TickFrequency = 40, .Value = 20};

// Of the track view, in twips; the rest of it is placed by these.
constexpr Twips viewLeft = 240;
constexpr Twips viewTop = 1440;
constexpr Twips viewWidth = 9975;
constexpr Twips viewHeight = 1335;
constexpr Twips scrollBarThickness = 210;
constexpr Twips zoomHeight = 450;
constexpr int margin = 16;  // pixels around everything

ControlArray<Slider>::Maker sliders(QWidget* frame, Orientation orientation, const Slider::Range& range,
                                    const char* toolTip) {
    return [=](int) {
        auto slider = std::make_unique<Slider>(frame, orientation, range);
        slider->setToolTipText(QString::fromLatin1(toolTip));
        return slider;
    };
}

ControlArray<Label>::Maker labels(QWidget* container, const char* caption) {
    return [=](int) { return std::make_unique<Label>(container, QString::fromLatin1(caption)); };
}

ControlArray<CommandButton>::Maker rowButtons(QWidget* rows, const char* caption, const char* toolTip) {
    return [=](int) {
        auto button = std::make_unique<CommandButton>(rows, QString::fromLatin1(caption));
        button->setLook(Look::compact);
        button->setToolTipText(QString::fromLatin1(toolTip));
        button->Move(0, 0, 290, TrackView::barHeight);
        return button;
    };
}

ControlArray<Shape>::Maker shapes(QWidget* picture, Colour fill) {
    return [=](int) { return std::make_unique<Shape>(picture, fill); };
}

/// A text box that stands for a label: it can't be typed in, and the keyboard passes it by.
void makeLabel(TextBox& box) {
    box.setLocked(true);
    box.setAlignment(Qt::AlignCenter);
    box.widget()->setFocusPolicy(Qt::NoFocus);
    box.widget()->setFixedWidth(78);
    box.widget()->setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; }"));
}

/// Makes room in strips whose pitch is settled; the theme's sliders are wider.
void makeSlim(Slider& slider) {
    slider.widget()->setStyleSheet(QStringLiteral("QSlider { min-height: 22px; min-width: 0; }"));
}

/// A row of controls in a frame, with no more air around it than the frame gives.
QHBoxLayout* rowIn(Frame& frame) {
    auto* row = new QHBoxLayout(frame.widget());
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(6);
    return row;
}

/// Room of its own for a label that changes with every tick: of a settled size, so that the screen isn't laid out anew
/// each time, and opaque, so that nothing under it is painted.
QWidget* plateUnder(Label& label) {
    auto* plate = new QWidget;
    plate->setAutoFillBackground(true);
    plate->setPalette(QPalette(theme::panel));
    label.setContainer(plate);
    label.widget()->setFixedSize(label.widget()->sizeHint());
    plate->setFixedSize(label.widget()->size());
    return plate;
}

QString decibels(double value) {
    return QString::number(value, 'f', 1) + QStringLiteral(" dB");
}

QString side(std::int32_t pan) {
    constexpr std::int32_t centre = 10000;
    if (pan == centre) return QStringLiteral("centre");
    const QString percent = QString::number(std::abs(pan - centre) / 100);
    return (pan < centre ? QStringLiteral("left ") : QStringLiteral("right ")) + percent + u'%';
}

}  // namespace

FrmComposer::FrmComposer()
    : Form(QStringLiteral("Melody / Lyric Recorder")),
      mnuVolume(*this, QStringLiteral("Volume_Settings")),
      mnuVolume2(mnuVolume, QStringLiteral("Recording / Playback Levels")),
      mnuEdit(*this, QStringLiteral("Edit")),
      mnuHome(mnuEdit, QStringLiteral("Cursor to Home")),
      mnuTransport(*this, QStringLiteral("Transport")),
      mnuPlay(mnuTransport, QStringLiteral("Play")),
      mnuStop(mnuTransport, QStringLiteral("Stop")),
      mnuView(*this, QStringLiteral("View")),
      mnuFitView(mnuView, QStringLiteral("Fit View")),
      Frame3(content(), QStringLiteral("Transport")),
      cmdRecord(Frame3),
      cmdHome(Frame3, QStringLiteral("| <")),
      cmdStop(Frame3),
      cmdPlay(Frame3),
      cbRecord(Frame3, QStringLiteral("R")),
      Frame7(content(), QStringLiteral("Punch In/Out")),
      btnIn(Frame7, QStringLiteral("IN")),
      btnOUT(Frame7, QStringLiteral("OUT")),
      btnRepeat(Frame7, QStringLiteral("Repeat")),
      Frame4(content(), QStringLiteral("Duration: (Min:Sec.ss)")),
      lblHMS(Frame4, QStringLiteral("00:00.00")),
      lblRecording(content(), QStringLiteral("R E C O R D I N G")),
      lblNotice(content()),
      imgContainerA(content()),
      imgSliderA(imgContainerA.widget()),
      imgContainerB(imgSliderA.widget()),
      imgSliderB(imgContainerB.widget()),
      shpWaveform(shapes(imgSliderB, cyan)),
      shpTake(shapes(imgSliderB, red)),
      lnCursor(imgSliderB, 0xFFFFFF, 2),
      VScrollA(content(), Orientation::vertical),
      HScrollB(content(), Orientation::horizontal),
      lblTrackNum(labels(imgSliderA, "")),
      cmdRecEnable(rowButtons(imgSliderA, "R", "Red button indicates track that will be recorded")),
      cmdDeleteTrack(rowButtons(imgSliderA, "X", "Delete voice track")),
      Label1(content(), QStringLiteral("Zoom")),
      sldHScale(content(), Orientation::horizontal, zoomRange),
      txtLoading(content(), QStringLiteral("L O A D I N G")),
      Frame5(content(), QStringLiteral("Recording VU Meter")),
      leftVU(Frame5),
      rightVU(Frame5),
      Frame6(content(), QStringLiteral("VU")),
      cbEnableVU(Frame6, {}, 1),
      Frame1(content(), QStringLiteral("Track Mixer Control")),
      sLevel(sliders(Frame1, Orientation::vertical, levelRange, "Playback volume")),
      sPan(sliders(Frame1, Orientation::horizontal, panRange, "")),
      sReverb(sliders(Frame1, Orientation::vertical, reverbRange, "Reverb effects")),
      lblChannel(labels(Frame1, "")),
      lblVol(labels(Frame1, "Vol")),
      lblRev(labels(Frame1, "Rev")),
      checkChannelMix(Frame1),
      Frame2(content(), QStringLiteral("Master Volume")),
      sMaster(Frame2, Orientation::vertical, masterRange),
      frameOffset(content(), QStringLiteral("|<< Move Voice >>")),
      Text1(frameOffset, QStringLiteral("music")),
      Text2(frameOffset, QStringLiteral("Voice 1")),
      Text3(frameOffset, QStringLiteral("Offset")),
      sldOffset(frameOffset, Orientation::horizontal, offsetRange),
      Frame9(content(), QStringLiteral("Lyrics")),
      chkLyrics(Frame9, QStringLiteral("Enabled"), 1),
      txtChord(content()),
      txtLyrics(content()),
      Frame8(content(), QStringLiteral("Lyrics")),
      cmdLyricAdd(Frame8, QStringLiteral("Insert")),
      cmdLyricUpdate(Frame8, QStringLiteral("Update")),
      cmdViewLyrics(Frame8, QStringLiteral("View")),
      cmdRhyme(Frame8, QStringLiteral("Rhyme")),
      cmdMixer(content(), QStringLiteral("Adjust Recording Levels")),
      cmdHelpVolume(content(), QStringLiteral("Help")),
      cmdHelp(content(), QStringLiteral("Help")),
      btnEnd(content(), QStringLiteral("Close")),
      Command1(content(), QStringLiteral("Show Lyrics array anytime to see if updated")) {
    layOut();
    layOutTrackView();
    nameControls();
    showValues();
    connectHandlers();
    connectMixer();
}

void FrmComposer::layOut() {
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, margin);
    column->setSpacing(0);
    column->addLayout(layOutTransport());
    column->addLayout(layOutMiddle());
    column->addLayout(layOutWords());
    column->addLayout(layOutMixer());
    column->addSpacing(margin);
    column->addLayout(layOutBottom());
    window().layout()->setSizeConstraint(QLayout::SetFixedSize);
}

/// As high as the room above the track view.
QBoxLayout* FrmComposer::layOutTransport() {
    cmdRecord.setPicture(recordIcon());
    cmdStop.setPicture(stopIcon());
    cmdPlay.setPicture(playIcon());
    cbRecord.widget()->setFocusPolicy(Qt::NoFocus);  // shows the state, and is not for the user to set
    cbRecord.widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* transport = rowIn(Frame3);
    for (CommandButton* button : {&cmdRecord, &cmdHome, &cmdStop, &cmdPlay}) {
        button->widget()->setFixedSize(50, 38);
        transport->addWidget(*button);
    }
    transport->addWidget(cbRecord);
    cmdPlay.SetFocus();

    btnRepeat.setFontBold(true);
    auto* punch = rowIn(Frame7);
    for (CommandButton* button : {&btnIn, &btnOUT, &btnRepeat}) punch->addWidget(*button);

    lblHMS.setLook(Look::readout);
    lblHMS.setAlignment(Qt::AlignCenter);
    rowIn(Frame4)->addWidget(plateUnder(lblHMS));
    Frame4.widget()->setMinimumWidth(178);

    makeRecordingPlate(lblRecording);
    lblRecording.widget()->setFixedSize(178, 38);

    auto* row = new QHBoxLayout;
    constexpr int air = 6;
    row->setContentsMargins(margin, air, margin, air);
    row->setSpacing(12);
    for (Frame* frame : {&Frame3, &Frame7, &Frame4}) row->addWidget(*frame);
    row->addStretch(1);
    row->addWidget(lblRecording);
    row->addStrut(toPixels(viewTop) - 2 * air);
    return row;
}

/// The room of the track view, with the meters at its right.
QBoxLayout* FrmComposer::layOutMiddle() {
    layOutLevelBars(Frame5, leftVU, rightVU);
    leftVU.setVisible(false);
    rightVU.setVisible(false);
    auto* enable = rowIn(Frame6);
    enable->addWidget(cbEnableVU, 0, Qt::AlignCenter);
    auto* meters = new QVBoxLayout;
    meters->setSpacing(6);
    meters->addWidget(Frame5);
    meters->addWidget(Frame6);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, margin, 6);
    row->addSpacing(toPixels(viewLeft + viewWidth + scrollBarThickness) + 12);
    Frame5.widget()->layout()->setContentsMargins(2, 0, 2, 0);
    row->addLayout(meters);
    row->addStrut(toPixels(viewHeight + zoomHeight));
    return row;
}

/// What is sung and played now, to be read from the microphone.
QBoxLayout* FrmComposer::layOutWords() {
    txtChord.setHint(QStringLiteral("Chord"));
    txtLyrics.setHint(QStringLiteral("Lyric"));
    for (TextBox* box : {&txtChord, &txtLyrics}) box->setLook(Look::words);
    txtChord.widget()->setFixedWidth(150);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, 0, margin, 12);
    row->setSpacing(8);
    row->addWidget(txtChord);
    row->addWidget(txtLyrics);
    return row;
}

QBoxLayout* FrmComposer::layOutMixer() {
    Frame1.setToolTipText(QStringLiteral("The channel sliders set the PLAYBACK volumes for each individual track"));
    Frame1.widget()->setFixedWidth(toPixels(5400));
    Frame1.widget()->setMinimumHeight(toPixels(2850));
    Frame2.widget()->setMinimumWidth(136);
    checkChannelMix.Move(3 * 1300 + 720, 1300, 360, 360);
    auto* master = rowIn(Frame2);
    master->addWidget(sMaster, 0, Qt::AlignHCenter);
    auto* lyrics = rowIn(Frame9);
    lyrics->addWidget(chkLyrics);

    auto* beside = new QHBoxLayout;
    beside->setSpacing(12);
    beside->addWidget(Frame9);
    beside->addStretch(1);
    beside->addWidget(cmdMixer, 0, Qt::AlignBottom);
    beside->addWidget(cmdHelpVolume, 0, Qt::AlignBottom);
    auto* right = new QVBoxLayout;
    right->setSpacing(10);
    right->addWidget(layOutOffset());
    right->addWidget(layOutLyricButtons());
    right->addLayout(beside);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, 0, margin, 0);
    row->setSpacing(12);
    row->addWidget(Frame1);
    row->addWidget(Frame2);
    row->addLayout(right, 1);
    return row;
}

QWidget* FrmComposer::layOutOffset() {
    frameOffset.setToolTipText(
        QStringLiteral("If your computer is not powerful enough the voice tracks might be delayed. Use this slider to "
                       "speed them up!"));
    for (TextBox* box : {&Text1, &Text2, &Text3}) makeLabel(*box);
    auto* grid = new QGridLayout(frameOffset.widget());
    grid->addWidget(Text1, 0, 0);
    grid->addWidget(Text3, 0, 1, Qt::AlignHCenter);
    grid->addWidget(Text2, 0, 2);
    grid->addWidget(sldOffset, 1, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    return frameOffset;
}

QWidget* FrmComposer::layOutLyricButtons() {
    auto* row = rowIn(Frame8);
    for (CommandButton* button : {&cmdLyricAdd, &cmdLyricUpdate, &cmdViewLyrics, &cmdRhyme}) row->addWidget(*button);
    return Frame8;
}

QBoxLayout* FrmComposer::layOutBottom() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, 0, margin, 0);
    row->addWidget(Command1);
    makeNoticeLine(lblNotice);
    row->addWidget(lblNotice, 1);
    row->setSpacing(8);
    row->addWidget(cmdHelp);
    row->addWidget(btnEnd);
    return row;
}

/// Stands where it is told to, beside the layouts: positions in it are the recorder's business.
void FrmComposer::layOutTrackView() {
    imgContainerA.Move(viewLeft, viewTop, viewWidth, viewHeight);
    imgContainerA.setBackColor(windowBackground);
    imgSliderB.setBackColor(0x2C2724);
    VScrollA.Move(viewLeft + viewWidth, viewTop, scrollBarThickness, viewHeight);
    HScrollB.setHeight(scrollBarThickness);
    sldHScale.setWidth(1440);
    sldHScale.setHeight(zoomHeight);
    Label1.Move(viewLeft + TrackView::headsWidth, viewTop + viewHeight + scrollBarThickness, 700, 270);
    lnCursor.setVisible(false);
    txtLoading.Move(viewLeft + 3600, viewTop + 420, 2700, 480);
    txtLoading.setLocked(true);
    txtLoading.setAlignment(Qt::AlignCenter);
    txtLoading.widget()->setFocusPolicy(Qt::NoFocus);
    txtLoading.setVisible(false);
    txtLoading.ZOrder();
    lblTrackNum.forEach([](int track, Label& name) {
        name.Move(0, 0, 690, TrackView::barHeight);
        if (track == musicTrack || track == mixTrack) name.setForeColor(lightRed);
        QFont small = name.widget()->font();
        small.setPointSizeF(8.5);
        name.widget()->setFont(small);
    });
    lblVol.forEach([](int, Label& label) { label.setWidth(450); });
    lblRev.forEach([](int, Label& label) {
        label.setWidth(450);
        label.setAlignment(Qt::AlignCenter);
    });
    lblChannel.forEach([](int, Label& head) { head.setWidth(900); });
    sLevel.forEach([](int, Slider& slider) { slider.Move(0, 0, 510, 1365); });
    sReverb.forEach([](int, Slider& slider) { slider.Move(0, 0, 510, 1035); });
    sPan.forEach([](int, Slider& slider) {
        makeSlim(slider);
        slider.Move(0, 0, 1080, 360);
    });
}

void FrmComposer::nameControls() {
    cmdRecord.setToolTipText(QStringLiteral("Record"));
    cmdRecord.setAccessibleName(QStringLiteral("Record"));
    cmdStop.setAccessibleName(QStringLiteral("Stop"));
    cmdPlay.setAccessibleName(QStringLiteral("Play"));
    cmdHome.setToolTipText(QStringLiteral("Move to beginning of song"));
    cmdHome.setAccessibleName(QStringLiteral("Cursor to Home"));
    cbEnableVU.setAccessibleName(QStringLiteral("Recording VU Meter"));
    chkLyrics.setToolTipText(QStringLiteral("Disable lyrics on slow computers when tracks are not synchronized"));
    txtLyrics.setToolTipText(QStringLiteral("Lyric window"));
    txtLyrics.setAccessibleName(QStringLiteral("Lyric"));
    txtChord.setToolTipText(QStringLiteral("Chord window"));
    txtChord.setAccessibleName(QStringLiteral("Chord"));
    sldHScale.setToolTipText(QStringLiteral("Zoom in / out with graphic display"));
    Label1.names(sldHScale);
    sMaster.setAccessibleName(Frame2.Caption());
    sldOffset.setAccessibleName(QStringLiteral("Move Voice"));
    cmdMixer.setToolTipText(QStringLiteral("Opens Windows mixer to adjust master playback and recording levels"));
    cmdHelpVolume.setToolTipText(QStringLiteral("Help on playback and recording volumes"));
    checkChannelMix.setAccessibleName(QStringLiteral("Listen to the final mix"));
    checkChannelMix.setToolTipText(QStringLiteral("Listen to the final mix"));
    HScrollB.setAccessibleName(QStringLiteral("Time line"));
    VScrollA.setAccessibleName(QStringLiteral("Track rows"));
    imgSliderB.setAccessibleName(QStringLiteral("Song position"));
    const auto name = [](const char* what) {
        return [what](int track, Control& control) {
            control.setAccessibleName(trackName(track) + u' ' + QString::fromLatin1(what));
        };
    };
    for (auto& [array, what] : {std::pair(&sLevel, "volume"), std::pair(&sPan, "pan"), std::pair(&sReverb, "reverb")})
        array->forEach(name(what));
    cmdRecEnable.forEach(name("armed for recording"));
    cmdDeleteTrack.forEach(name("delete"));
}

void FrmComposer::showValues() {
    sLevel.forEach(
        [](int, Slider& slider) { slider.setValueText([](std::int32_t value) { return decibels(-value / 100.0); }); });
    sReverb.forEach(
        [](int, Slider& slider) { slider.setValueText([](std::int32_t value) { return decibels(-value); }); });
    sPan.forEach([](int, Slider& slider) { slider.setValueText(side); });
    sMaster.setValueText([](std::int32_t value) { return QString::number(100 - value) + u'%'; });
    sldOffset.setValueText([](std::int32_t value) {
        constexpr double millisecondsAUnit = 1000.0 * 1000 / bytesPerSecond;
        return QString::number(value * millisecondsAUnit, 'f', 0) + QStringLiteral(" ms");
    });
    sldHScale.setValueText(
        [](std::int32_t value) { return QString::number(TrackView::zoomAt(value) * 100, 'f', 0) + u'%'; });
}

}  // namespace lyrebrook
