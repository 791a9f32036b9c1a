#pragma once

#include <QString>
#include <cstdint>

#include "lyrics/LyricStore.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/CommonDialog.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/TextBox.h"

class QBoxLayout;

namespace lyrebrook {

/// The lyric editor: corrects, deletes and prints the lines of the current song; new ones are written in the recorder.
/// It is also the way in which other screens reach the lyric store and its file, so it is often loaded without being
/// seen. Every change is in the file at once. What can't be written goes to the general error dialog.
class FrmLyrics final : public Form {
  public:
    FrmLyrics();

    void Form_Load() override;

    void resetLyricsArray();

    /// Adds the entries of `gLyricFile` to the store and never replaces any. At a line that can't be read it says so
    /// and keeps what came before.
    void loadLyricsFromTextFile();

    /// Writes the store to `gLyricFile`.
    void saveLyric();
    void writeLyricFile(const QString& text);

    QString convertToNineDigit(const QString& position);
    void addLyricToArray(const QString& position, const QString& chord, const QString& lyric);
    void updateLyricLine(const QString& position, const QString& chord, const QString& lyric);
    void SortArray(LyricRows& array, std::int16_t column = positionColumn);

    /// Fills the list from the store. The item data is the position.
    void updateLyricList();

    /// What follows each change of the store: sorted, in the file, and in the list.
    void keepChange();

    Label lblTitle;
    Frame Frame1;
    ListBox lstLyrics;
    Label Label4;
    TextBox txtLine, txtPosition, txtLyrics;
    CommandButton cmdUpdate, cmdDelete, cmdSave, cmdClear, cmdPrint, cmdHelp, cmdClose;
    CommonDialog CommonDialog1;

  private:
    void layOut();
    QBoxLayout* layOutButtons();
    void connectHandlers();

    void lstLyrics_Click();
    void cmdUpdate_Click();
    void cmdDelete_Click();
    void cmdSave_Click();
    void cmdClear_Click();
    void cmdPrint_Click();

    std::int32_t selectedPosition_ = 0;
};

extern FormInstance<FrmLyrics> frmLyrics;

}  // namespace lyrebrook
