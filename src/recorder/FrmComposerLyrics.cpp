#include "dictionary/FrmDictionary.h"
#include "lyrics/FrmLyrics.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "recorder/FrmComposer.h"

namespace lyrebrook {

LyricTimeline::Line FrmComposer::typedLine() const {
    return {.lyric = trimBlanks(txtLyrics.Text()), .chord = trimBlanks(txtChord.Text())};
}

/// Noted as the boxes took it: a line that is too long for them is not one that somebody changed.
void FrmComposer::showLine(const LyricTimeline::Line& line) {
    txtLyrics.setText(line.lyric);
    txtChord.setText(line.chord);
    lyrics_.setShown(typedLine());
}

void FrmComposer::seekLyric() {
    showLine(lyrics_.seekLyric(transport_.playPos()));
}

void FrmComposer::advanceLyric() {
    if (const auto line = lyrics_.advanceLyric(transport_.playPos())) showLine(*line);
}

void FrmComposer::confirmLyricEdits() {
    if (lyrics_.isShown(typedLine())) return;
    const auto answer = MsgBox(QStringLiteral("Click YES to save new lyric and chord\r\n"
                                              "Click NO to update existing chord!\r\n"),
                               vbYesNoCancel + vbQuestion, QStringLiteral("Save changes"));
    if (unloaded_) return;
    if (answer == vbYes) cmdLyricAdd_Click();
    if (answer == vbNo) cmdLyricUpdate_Click();
}

void FrmComposer::cmdLyricAdd_Click() {
    if (playing()) cmdStop_Click();
    if (unloaded_) return;  // closed while the take was saved
    const auto line = typedLine();
    frmLyrics->addLyricToArray(QString::number(transport_.playPos()), line.chord, line.lyric);
    lyrics_.setShown(line);
    frmLyrics->keepChange();
}

void FrmComposer::cmdLyricUpdate_Click() {
    if (playing()) cmdStop_Click();
    if (unloaded_) return;
    const auto line = typedLine();
    if (line.lyric.isEmpty()) {
        MsgBox(
            QStringLiteral("You can only update lyrics that are currently displayed. Type the lyrics and use the "
                           "\"INSERT\" button to add for the first time."));
        return;
    }
    frmLyrics->updateLyricLine(QString::number(lyrics_.shownLyricPos()), line.chord, line.lyric);
    lyrics_.setShown(line);
    frmLyrics->keepChange();
}

void FrmComposer::cmdViewLyrics_Click() {
    if (playing()) cmdStop_Click();
    if (!unloaded_) frmLyrics.Show();
}

void FrmComposer::cmdRhyme_Click() {
    frmDictionary.Show();
}

}  // namespace lyrebrook
