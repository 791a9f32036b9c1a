#include "platform/base/Numbers.h"
#include "recorder/FrmComposer.h"
#include "recorder/recorderMemory.h"
#include "recorder/waveLength.h"

namespace lyrebrook {
namespace {

constexpr Twips rowHeight = TrackView::barHeight;

QString rowCaption(int track) {
    return track == mixTrack ? QStringLiteral("Fin. Mix") : trackName(track);
}

void restore(Slider& slider, std::int16_t remembered) {
    if (remembered != 0) slider.setValue(remembered);
}

}  // namespace

void FrmComposer::resizeAll() {
    view_ = TrackView({imgContainerA.Width(), imgContainerA.Height()}, trackCount, zoom_, tracks_.songBytes());
    placePictures();
    placeScrollBars();
    for (int track = 1; track <= trackCount; ++track) buildTrack(track);
    placeBars();
    lnCursor.setY2(imgSliderB.Height());
    sldHScale.Move(imgContainerA.Left() - 70, imgContainerA.Top() + imgContainerA.Height());
    sldHScale.setVisible(true);
    HScrollB_Change();
}

void FrmComposer::placePictures() {
    imgSliderA.Move(0, 0, view_.rows().width, view_.rows().height);
    imgContainerB.Move(TrackView::headsWidth, 0, view_.window().width, view_.window().height);
    imgSliderB.Move(0, 0, view_.picture().width, view_.picture().height);
}

void FrmComposer::placeScrollBars() {
    VScrollA.setEnabled(view_.below() > 0);
    if (view_.below() > 0) {
        VScrollA.setMax(toInt16(view_.below()));
        VScrollA.setSmallChange(toInt16(VScrollA.Max() / 10.0));
        VScrollA.setLargeChange(toInt16(VScrollA.Max() / 5.0));
    }
    HScrollB.setMax(TrackView::scrollSteps);
    HScrollB.setSmallChange(TrackView::scrollSteps / 100);
    HScrollB.setLargeChange(TrackView::scrollSteps / 5);
    HScrollB.setEnabled(view_.scrollScale() > 0);
    HScrollB.setWidth(imgSliderA.Width() - imgContainerB.Left());
    HScrollB.Move(imgContainerA.Left() + imgContainerB.Left(), imgContainerA.Top() + imgContainerA.Height());
}

void FrmComposer::buildTrack(int track) {
    Shape& bar = shpWaveform.load(track);
    bar.Move(TrackView::margin, TrackView::rowTop(track));
    bar.setHeight(rowHeight);
    buildRow(track);
    buildStrip(track);
    restore(sLevel[track], gTrackLevel.at(static_cast<std::size_t>(track)));
    restore(sReverb[track], gTrackReverb.at(static_cast<std::size_t>(track)));
}

void FrmComposer::buildRow(int track) {
    const Twips top = TrackView::rowTop(track);
    cmdRecEnable.load(track).Move(750, top);
    cmdRecEnable[track].setVisible(true);
    cmdDeleteTrack.load(track).Move(1100, top);
    cmdDeleteTrack[track].setVisible(track > musicTrack);
    Label& name = lblTrackNum.load(track);
    name.Move(50, top);
    name.setCaption(rowCaption(track));
    name.setVisible(true);
}

void FrmComposer::buildStrip(int track) {
    const Twips x = (track - 1) * 1300;
    const bool whole = track != mixTrack;
    const auto place = [x](Control& control, Twips left, Twips top, bool visible) {
        control.Move(x + left, top);
        control.setVisible(visible);
    };
    place(sLevel.load(track), 60, 960, true);
    place(sPan.load(track), 120, 600, whole);
    place(sReverb.load(track), 690, 1300, whole);
    place(lblChannel.load(track), 160, 280, true);
    place(lblVol.load(track), 230, 2350, true);
    place(lblRev.load(track), 720, 2350, whole);
    lblChannel[track].setCaption(trackName(track));
    if (whole) return;
    lblChannel[track].setWidth(450);
    lblChannel[track].setBackColor(lightRed);
    lblChannel[track].setForeColor(black);
}

void FrmComposer::placeBars() {
    for (int track = 1; track <= trackCount; ++track) {
        const std::int32_t length = getWaveLength(track);
        shpWaveform[track].setWidth(view_.widthOf(length));
        shpWaveform[track].setVisible(length > 0);
        shpWaveform[track].setFillColor(cyan);
    }
    for (std::int32_t take = 1; take <= shpTake.UBound(); ++take) {
        const TakeTable::Stretch& stretch = takes_[take];
        shpTake[take].setLeft(view_.widthOf(stretch.start) + shpWaveform[gRecorderMemory.recordTrack].Left());
        shpTake[take].setWidth(view_.widthOf(stretch.length));
    }
}

SongBar FrmComposer::songBar() const {
    return {.width = shpWaveform[tracks_.longestTrack()].Width(), .songBytes = tracks_.songBytes()};
}

void FrmComposer::sldHScale_Change() {
    zoom_ = TrackView::zoomAt(sldHScale.Value());
    resizeAll();
    updateCursor();
}

void FrmComposer::mnuFitView_Click() {
    zoom_ = 1;
    resizeAll();
}

void FrmComposer::HScrollB_Change() {
    imgSliderB.setLeft(view_.pictureLeft(HScrollB.Value()));
}

void FrmComposer::VScrollA_Change() {
    imgSliderA.setTop(-VScrollA.Value());
}

}  // namespace lyrebrook
