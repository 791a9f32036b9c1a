#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "mixer/FrmVolumeMixer.h"
#include "mixer/levelColumn.h"
#include "platform/forms/Boundary.h"
#include "platform/forms/ListView.h"

namespace lyrebrook {
namespace {

constexpr Twips clientWidth = 9156;
constexpr Twips clientHeight = 7210;
constexpr int margin = 12;  // pixels

// The two rows of panels, in twips.
constexpr Twips viewportWidth = 3375;
constexpr Twips viewportHeight = 2895;
constexpr Twips viewportTop = 2145;
constexpr Twips playbackLeft = 180;
constexpr Twips recordingLeft = 3735;
constexpr Twips headingHeight = 300;
constexpr Twips scrollBarThickness = 210;

/// Of a fader until its line is known. It holds the value that a new panel gets, which so changes nothing on the card.
constexpr Slider::Range untilFilled{.Max = 100, .TickFrequency = 10, .Value = LineRow::newVolume};

struct Place {
    Twips left, top, width, height;
};
constexpr Place volumePlace{225, 570, 525, 1200};
constexpr Place percentPlace{150, 285, 675, 255};
constexpr Place choicePlace{45, 1785, 885, 270};
constexpr Place sidesPlace{15, 2055, 945, 195};
constexpr Place balancePlace{60, 2250, 855, 270};

template <class T>
std::unique_ptr<T> placed(std::unique_ptr<T> control, const Place& place) {
    control->Move(place.left, place.top, place.width, place.height);
    return control;
}

ControlArray<Frame>::Maker panels(QWidget* strip) {
    return [=](int) {
        auto panel = std::make_unique<Frame>(strip);
        panel->setLook(Look::strip);
        panel->Move(LineRow::panelStart, LineRow::panelStart, LineRow::panelWidth, LineRow::panelHeight);
        panel->setElided();
        return panel;
    };
}

ControlArray<Slider>::Maker faders(const ControlArray<Frame>& panels, Look look) {
    return [&panels, look](int) {
        auto fader = placed(std::make_unique<Slider>(panels[0], Orientation::vertical, untilFilled), volumePlace);
        fader->setLook(look);
        fader->setTickStyle(2);
        fader->setValueText([slider = fader.get()](std::int32_t value) {
            return slider->Min() == slider->Max() ? QString() : percentText(value, slider->Min(), slider->Max()) + u'%';
        });
        return fader;
    };
}

ControlArray<Slider>::Maker balances(const ControlArray<Frame>& panels, Look look) {
    return [&panels, look](int) {
        auto slider = std::make_unique<Slider>(panels[0], Orientation::horizontal);
        slider->setLook(look);
        slider->setTickStyle(3);
        return placed(std::move(slider), balancePlace);  // which the look makes room for
    };
}

ControlArray<TextBox>::Maker percents(const ControlArray<Frame>& panels) {
    return [&panels](int) {
        auto box = placed(std::make_unique<TextBox>(panels[0]), percentPlace);
        box->setLook(Look::readout);
        box->setLocked(true);
        box->setAlignment(Qt::AlignCenter);
        box->widget()->setFocusPolicy(Qt::NoFocus);
        return box;
    };
}

ControlArray<CheckBox>::Maker choices(const ControlArray<Frame>& panels, const char* caption, Colour colour) {
    return [&panels, caption, colour](int) {
        auto box = placed(std::make_unique<CheckBox>(panels[0], QString::fromLatin1(caption)), choicePlace);
        box->setLook(Look::lamp);
        box->setBackColor(colour);
        return box;
    };
}

ControlArray<Label>::Maker sideLabels(const ControlArray<Frame>& panels) {
    return [&panels](int) {
        auto label = placed(std::make_unique<Label>(panels[0], QStringLiteral("L    -    R")), sidesPlace);
        label->setLook(Look::strip);
        label->setAlignment(Qt::AlignCenter);
        return label;
    };
}

ControlArray<TextBox>::Maker lineIds(const ControlArray<Frame>& panels, const char* text) {
    return [&panels, text](int) {
        auto box = std::make_unique<TextBox>(panels[0], QString::fromLatin1(text));
        box->setVisible(false);
        return box;
    };
}

void makeSmall(const Control& control) {
    QFont small = control.widget()->font();
    small.setPointSizeF(8.5);
    control.widget()->setFont(small);
}

ControlArray<OptionButton>::Maker options(QWidget* frame) {
    return [=](int) { return std::make_unique<OptionButton>(frame); };
}

}  // namespace

FrmVolumeMixer::FrmVolumeMixer()
    : Form(QStringLiteral("Master Mixer Control")),
      Frame3(content()),
      Label16(Frame3, QStringLiteral("Select Recording Device")),
      Label13(Frame3,
              QStringLiteral("Choose the sound source that you would like to record. Volume settings are automatically "
                             "adjusted, but you still have to fine tune the UN-MUTED and SELECTED volume levels for "
                             "best sound.")),
      radDevice(0, 4, options(Frame3)),
      Label12(Frame3, QStringLiteral("Backtrack/Fin. Mix")),
      Label14(Frame3, QStringLiteral("Microphone")),
      Label11(Frame3, QStringLiteral("CD Player")),
      Label10(Frame3, QStringLiteral("External device")),
      Label15(Frame3, QStringLiteral("Another program")),
      Label20(content(), QStringLiteral("Playback Volumes (Output)")),
      Label24(content(), QStringLiteral("Recording Volumes (Input)")),
      Picture1(content()),
      Picture2(Picture1.widget()),
      Picture3(content()),
      Picture4(Picture3.widget()),
      HScroll1(content(), Orientation::horizontal),
      VScroll1(content(), Orientation::vertical),
      HScroll2(content(), Orientation::horizontal),
      VScroll2(content(), Orientation::vertical),
      fraPlaybackControl(0, 0, panels(Picture2)),
      fraRecordControl(0, 0, panels(Picture4)),
      sldPlaybackVolume(0, 0, faders(fraPlaybackControl, Look::playback)),
      sldRecordVolume(0, 0, faders(fraRecordControl, Look::recording)),
      sldPlaybackBalance(0, 0, balances(fraPlaybackControl, Look::playback)),
      sldRecordBalance(0, 0, balances(fraRecordControl, Look::recording)),
      txtPlaybackVolume(0, 0, percents(fraPlaybackControl)),
      txtRecordVolume(0, 0, percents(fraRecordControl)),
      chkPlaybackMute(0, 0, choices(fraPlaybackControl, "Mute", cyan)),
      chkRecordSelect(0, 0, choices(fraRecordControl, "Select", inactiveBorder)),
      lblPlay(0, 0, sideLabels(fraPlaybackControl)),
      lblRecord(0, 0, sideLabels(fraRecordControl)),
      txtPlaybackLineID(0, 0, lineIds(fraPlaybackControl, "IDnotSet")),
      txtRecordLineID(0, 0, lineIds(fraRecordControl, "ReclineID")),
      fraVUMeter(content(), QStringLiteral("VU Meter")),
      picLeftVUMeter(fraVUMeter),
      picRightVUMeter(fraVUMeter),
      txtLeftVUMeter(fraVUMeter),
      txtRightVUMeter(fraVUMeter),
      Label9(fraVUMeter, QStringLiteral("L    -    R")),
      Frame2(content(), QStringLiteral("Mixer Device")),
      lstMixerDevs(Frame2),
      cmdSelectMixerDev(Frame2, QStringLiteral("Select")),
      Frame4(content(), QStringLiteral("Feedback")),
      txtFeedback(Frame4, {}, Lines::multiple),
      cmdHelp(content(), QStringLiteral("Help")),
      cmdClose(content(), QStringLiteral("Close")),
      Label17(content(), QStringLiteral("Recording Device:")),
      lstWaveInDevs(content()),
      cmdSelectWaveInDev(content(), QStringLiteral("Select")),
      Label19(content(), QStringLiteral("Recording Format:")),
      lstRecFormats(content()),
      cmdSelectRecFormat(content(), QStringLiteral("Select")),
      lstWaveInDevs_OLD(content()),
      cmdSelect(content(), QStringLiteral("Select")),
      messages_(fromQt) {
    nameControls();
    layOut();
    connectHandlers();
}

void FrmVolumeMixer::layOut() {
    setFixedClientSize(clientWidth, clientHeight);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(margin, 10, margin, margin);
    column->setSpacing(8);
    Frame3.widget()->setLayout(layOutPresets());
    column->addWidget(Frame3, 1);
    column->addLayout(layOutRows());
    column->addLayout(layOutBottom());
    layOutViewports();
    layOutBelowTheEdge();
}

QBoxLayout* FrmVolumeMixer::layOutPresets() {
    Frame3.setLook(Look::page);
    Label16.setLook(Look::heading);
    Label13.setLook(Look::hint);
    Label13.setWordWrap(true);
    auto* options = new QHBoxLayout;
    options->setSpacing(3);
    const auto add = [&](int index, Label& label) {
        if (index > 0) options->addStretch(1);
        radDevice[index].widget()->setFixedWidth(20);
        makeSmall(label);
        options->addWidget(radDevice[index]);
        options->addWidget(label);
        label.names(radDevice[index]);
        radDevice[index].setToolTipText(label.ToolTipText());
    };
    int index = 0;
    for (Label* label : {&Label12, &Label14, &Label11, &Label10, &Label15}) add(index++, *label);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(4, 0, 4, 0);
    column->setSpacing(4);
    column->addWidget(Label16);
    column->addWidget(Label13, 1);
    column->addLayout(options);
    return column;
}

/// The room of the viewports, with the level columns at its right.
QBoxLayout* FrmVolumeMixer::layOutRows() {
    fraVUMeter.widget()->setLayout(layOutMeters());
    auto* row = new QHBoxLayout;
    row->addSpacing(toPixels(recordingLeft + viewportWidth) - margin + 10);
    row->addWidget(fraVUMeter, 1);
    row->addStrut(toPixels(headingHeight + viewportHeight + scrollBarThickness));
    return row;
}

QBoxLayout* FrmVolumeMixer::layOutMeters() {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(5);
    int side = 0;
    for (auto& [column, box] : {std::pair(&picLeftVUMeter, &txtLeftVUMeter), {&picRightVUMeter, &txtRightVUMeter}}) {
        column->setScaleMode(ScaleMode::pixels);
        column->setBackColor(0x3C3835);
        column->setBorder(true);
        column->widget()->setFixedSize(28, 148);  // the ramp is made for it before the form shows
        box->setLook(Look::lamp);
        box->setLocked(true);
        box->setAlignment(Qt::AlignCenter);
        box->widget()->setFocusPolicy(Qt::NoFocus);
        box->widget()->setFixedSize(28, 16);
        grid->addWidget(*column, 0, side);
        grid->addWidget(*box, 1, side);
        ++side;
    }
    Label9.setLook(Look::strip);
    Label9.setAlignment(Qt::AlignCenter);
    grid->addWidget(Label9, 2, 0, 1, 2);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addLayout(grid);
    row->addStretch(1);
    return row;
}

QBoxLayout* FrmVolumeMixer::layOutBottom() {
    auto* devices = new QVBoxLayout(Frame2.widget());
    devices->setContentsMargins(0, 0, 0, 0);
    devices->setSpacing(3);
    devices->addWidget(lstMixerDevs, 1);
    devices->addWidget(cmdSelectMixerDev, 0, Qt::AlignRight);
    cmdSelectMixerDev.setLook(Look::compact);
    cmdSelectMixerDev.widget()->setFixedSize(62, 22);
    auto* feedback = new QVBoxLayout(Frame4.widget());
    feedback->setContentsMargins(0, 0, 0, 0);
    feedback->addWidget(txtFeedback);
    txtFeedback.setBackColor(black);
    txtFeedback.setForeColor(cyan);
    txtFeedback.setLocked(true);
    makeSmall(txtFeedback);
    makeSmall(lstMixerDevs);
    static_cast<ListView&>(*lstMixerDevs.widget()).setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    txtFeedback.widget()->setFocusPolicy(Qt::NoFocus);

    auto* buttons = new QVBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdHelp);
    buttons->addWidget(cmdClose);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(Frame2, 5);
    row->addWidget(Frame4, 6);
    row->addLayout(buttons);
    constexpr int height = 104;
    for (Frame* frame : {&Frame2, &Frame4}) frame->widget()->setFixedHeight(height);
    return row;
}

/// Stand where they are told to, beside the layouts: the panels' positions are part of what the screen does.
void FrmVolumeMixer::layOutViewports() {
    for (Label* heading : {&Label20, &Label24}) heading->setFontBold(true);
    Label20.Move(playbackLeft, viewportTop - headingHeight, viewportWidth, headingHeight);
    Label24.Move(recordingLeft, viewportTop - headingHeight, viewportWidth, headingHeight);
    Picture1.Move(playbackLeft, viewportTop, viewportWidth, viewportHeight);
    Picture3.Move(recordingLeft, viewportTop, viewportWidth, viewportHeight);
    for (PictureBox* viewport : {&Picture1, &Picture3}) viewport->setBackColor(windowBackground);
    for (PictureBox* strip : {&Picture2, &Picture4}) strip->Move(0, 0, LineRow::emptyStripWidth, viewportHeight);
    for (ScrollBar* across : {&HScroll1, &HScroll2}) {
        across->setHeight(scrollBarThickness);
        across->setLargeChange(toPixels(viewportWidth));
    }
    for (ScrollBar* down : {&VScroll1, &VScroll2}) {
        down->setWidth(scrollBarThickness);
        down->setVisible(false);
    }
}

void FrmVolumeMixer::layOutBelowTheEdge() {
    Twips left = 0;
    for (Control* hidden :
         std::initializer_list<Control*>{&Label17, &lstWaveInDevs, &cmdSelectWaveInDev, &Label19, &lstRecFormats,
                                         &cmdSelectRecFormat, &lstWaveInDevs_OLD, &cmdSelect}) {
        constexpr Twips width = 1100;
        hidden->Move(left, clientHeight + 150, width, 600);
        hidden->widget()->setFocusPolicy(Qt::NoFocus);
        left += width;
    }
}

void FrmVolumeMixer::nameControls() {
    Label12.setToolTipText(QStringLiteral(" Record backtracks (Wave files) selected in Lyrebrook."));
    Label14.setToolTipText(QStringLiteral(" Record sound using a microphone that is plugged into your sound card."));
    Label11.setToolTipText(QStringLiteral(" Record sound generated by the CD player on your computer."));
    Label10.setToolTipText(QStringLiteral(
        " Record sound generated by an external sound source like a keyboard or guitar plugged into your sound card."));
    Label15.setToolTipText(QStringLiteral(" Record sound generated by another program (e.g. Windows Media Player)."));
    fraVUMeter.setToolTipText(QStringLiteral("The VU Meters should only occasionally reach the top of the bar..."));
    picLeftVUMeter.setAccessibleName(QStringLiteral("Left level"));
    picRightVUMeter.setAccessibleName(QStringLiteral("Right level"));
    txtFeedback.setAccessibleName(Frame4.Caption());
    lstMixerDevs.setAccessibleName(Frame2.Caption());
    HScroll1.setAccessibleName(Label20.Caption());
    HScroll2.setAccessibleName(Label24.Caption());
}

}  // namespace lyrebrook
