#include "mixer/levelMeters.h"
#include "platform/forms/Desktop.h"
#include "recorder/FrmComposer.h"
#include "recorder/levelBarPictures.h"
#include "recorder/noticeLine.h"
#include "recorder/recorderMemory.h"

namespace lyrebrook {
namespace {

Marks& marks() {
    return gRecorderMemory.marks;
}

}  // namespace

void FrmComposer::Timer1_Timer() {
    bars_.DecayVU();
    if (!recording() && vuBuffer_) feedLevelColumns(bars_.UpdateVU(*vuBuffer_));
    showLevels(bars_, leftVU, rightVU);
    showNotice(notice_, recording() ? take_.recordBuffer() : nullptr, lblNotice);
    if (!playing()) return;
    showState();
    updateCursor();
    applyTrackMix();
    if (lyricsEnabled()) advanceLyric();
    if (recording()) {
        extendRecordedWave();
        feedLevelColumns(bars_.UpdateVU(*take_.recordBuffer()));
        showLevels(bars_, leftVU, rightVU);
        if (endsTake(position())) cmdStop.setValue(true);
    }
    if (!tracks_.loaded() || !marks().passedBy(position())) return;
    cmdStop_Click();
    if (!tracks_.loaded()) return;  // closed while the take was saved
    setPosition(marks().punchIn);
    updateCursor();
    cmdPlay_Click();
}

void FrmComposer::showState() {
    const bool lit = static_cast<std::int32_t>(desktop().secondsSinceMidnight() * 4) % 2 == 1;
    lblRecording.setVisible(recording() && lit);
    if (!recording()) return;
    lblRecording.setCaption(QStringLiteral("R E C O R D I N G"));
    lblRecording.setForeColor(red);
}

void FrmComposer::applyTrackMix() {
    playback_.applyTrackMix(mix());
}

void FrmComposer::updateCursor() {
    if (!tracks_.loaded()) return;
    const bool stopped = !playing();
    transport_.read(tracks_.playCursor(musicTrack));
    const double x = songBar().cursorX(transport_.playPos());
    lnCursor.setX1(x);
    lnCursor.setX2(x);
    if (stopped && lyricsEnabled()) seekLyric();
    lblHMS.setCaption(timeText(transport_.playPos(), tracks_.songBytes()));
}

void FrmComposer::cmdPlay_Click() {
    if (playing()) return cmdStop_Click();
    if (!tracks_.loaded()) return;
    const std::int32_t cursor = tracks_.playCursor(tracks_.longestTrack());
    confirmLyricEdits();
    if (unloaded_) return;
    transport_.begin(cursor);
    Timer1.setEnabled(true);
    applyTrackMix();
    if (lyricsEnabled()) seekLyric();
    if (recording()) CreateRecordBuffer();
    playback_.startTracks(mix(), recording() ? take_.recordBuffer() : nullptr);
}

void FrmComposer::cmdStop_Click() {
    transport_.playing = false;
    playback_.stopTracks();
    if (recording()) SaveRecording();
    if (unloaded_) return;
    lblRecording.setVisible(false);
    take_.release();
    // Drops and starts the meters' capture; the box ends up ticked whatever it was.
    cbEnableVU.setValue(0);
    cbEnableVU.setValue(1);
}

void FrmComposer::cmdHome_Click() {
    if (!tracks_.loaded()) return;
    double songStart = 0;
    setPosition(marks().punchInSet ? marks().punchIn : songStart);
    updateCursor();
    cmdStop_Click();
    HScrollB.setValue(0);
}

void FrmComposer::imgSliderB_MouseDown(MouseButton, int, Twips x, Twips) {
    if (!tracks_.loaded()) return;
    if (recording()) cmdRecord.setValue(true);
    if (!tracks_.loaded()) return;
    double fraction = songBar().fractionAt(x);
    setPosition(fraction);
    updateCursor();
}

void FrmComposer::imgSliderB_MouseMove(MouseButton button, int shift, Twips x, Twips y) {
    if (button == MouseButton::left) imgSliderB_MouseDown(button, shift, x, y);
}

void FrmComposer::btnIn_Click() {
    if (!tracks_.loaded()) return;
    if (!marks().toggleIn(position())) {
        MsgBox(
            QStringLiteral("You cannot set the START position after or equal to the END position! "
                           "Please try again"));
        return;
    }
    btnIn.setBackColor(marks().punchInSet ? green : buttonFace);
}

void FrmComposer::btnOUT_Click() {
    if (!tracks_.loaded()) return;
    if (!marks().toggleOut(position())) {
        MsgBox(
            QStringLiteral("You cannot set the END position after or equal to the START position! "
                           "Please try again"));
        return;
    }
    btnOUT.setBackColor(marks().punchOutSet ? green : buttonFace);
}

void FrmComposer::btnRepeat_Click() {
    if (!marks().toggleRepeat()) {
        MsgBox(
            QStringLiteral("Please set a start and end position by clicking on the IN/OUT buttons above, before you "
                           "set the song to repeat."));
        return;
    }
    btnRepeat.setBackColor(marks().repeatOn ? red : buttonFace);
    btnRepeat.setFontBold(!marks().repeatOn);
}

void FrmComposer::chkLyrics_Click() {
    constexpr std::int32_t withLyrics = 20;
    constexpr std::int32_t sparing = 500;
    Timer1.setInterval(lyricsEnabled() ? withLyrics : sparing);
}

}  // namespace lyrebrook
