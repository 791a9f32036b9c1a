#include "lyrics/FrmLyrics.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "lyrics/LyricFile.h"
#include "lyrics/PrintText.h"
#include "lyrics/lyricSheet.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/FileSystemObject.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "shell/FrmIntro.h"
#include "shell/modConfig.h"

namespace lyrebrook {

FormInstance<FrmLyrics> frmLyrics;

FrmLyrics::FrmLyrics()
    : Form(QStringLiteral("View lyrics")),
      lblTitle(content(), QStringLiteral("No Title")),
      Frame1(content()),
      lstLyrics(Frame1),
      Label4(content(),
             QStringLiteral("To update, click on GREEN text, then change RED lyrics. Click UPDATE button and SAVE.")),
      txtLine(content(), QStringLiteral("Click on list above to update one line")),
      txtPosition(content(), QStringLiteral("INDEX VALUE OF SELECTED TEXT")),
      txtLyrics(content(), QStringLiteral("Text1"), Lines::multiple),
      cmdUpdate(content(), QStringLiteral("Update")),
      cmdDelete(content(), QStringLiteral("Delete")),
      cmdSave(content(), QStringLiteral("Save")),
      cmdClear(content(), QStringLiteral("Clear")),
      cmdPrint(content(), QStringLiteral("Print")),
      cmdHelp(content(), QStringLiteral("Help")),
      cmdClose(content(), QStringLiteral("Close")) {
    txtPosition.setVisible(false);
    txtLyrics.setVisible(false);
    cmdUpdate.setEnabled(false);
    cmdDelete.setEnabled(false);
    layOut();
    connectHandlers();
}

void FrmLyrics::layOut() {
    lblTitle.setLook(Look::title);
    lblTitle.setElided();
    Frame1.setLook(Look::bare);
    Label4.setLook(Look::hint);
    Label4.setWordWrap(true);
    lstLyrics.setBackColor(black);
    lstLyrics.setForeColor(green);
    lstLyrics.setAccessibleName(QStringLiteral("Lyrics"));
    txtLine.setBackColor(black);
    txtLine.setForeColor(lightRed);
    txtLine.setAccessibleName(QStringLiteral("Line to correct"));
    cmdUpdate.setLook(Look::primary);
    for (CommandButton* button : {&cmdDelete, &cmdClear}) button->setLook(Look::danger);

    auto* lines = new QVBoxLayout(Frame1.widget());
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(lstLyrics);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(12);
    column->addWidget(lblTitle);
    column->addWidget(Frame1, 1);
    column->addWidget(Label4);
    column->addWidget(txtLine);
    column->addLayout(layOutButtons());
    window().resize(760, 560);
}

QBoxLayout* FrmLyrics::layOutButtons() {
    auto* row = new QHBoxLayout;
    for (CommandButton* button : {&cmdUpdate, &cmdDelete, &cmdSave, &cmdClear, &cmdPrint}) row->addWidget(*button);
    row->addStretch(1);
    for (CommandButton* button : {&cmdHelp, &cmdClose}) row->addWidget(*button);
    return row;
}

void FrmLyrics::connectHandlers() {
    on(lstLyrics.Click, &FrmLyrics::lstLyrics_Click);
    on(cmdUpdate.Click, &FrmLyrics::cmdUpdate_Click);
    on(cmdDelete.Click, &FrmLyrics::cmdDelete_Click);
    on(cmdSave.Click, &FrmLyrics::cmdSave_Click);
    on(cmdClear.Click, &FrmLyrics::cmdClear_Click);
    on(cmdPrint.Click, &FrmLyrics::cmdPrint_Click);
    on(cmdHelp.Click, [] { frmIntro->openHelp(0); });
    on(cmdClose.Click, [] { frmLyrics.Unload(); });
}

void FrmLyrics::Form_Load() {
    if (gLyricFile.isEmpty()) gLyricFile = App::Path() + QStringLiteral("/songs/") + gSongName + QStringLiteral(".txt");
    lblTitle.setCaption(gSongName);
    updateLyricList();
    lstLyrics.Refresh();
}

void FrmLyrics::resetLyricsArray() {
    gLyrics = emptyLyrics();
}

void FrmLyrics::loadLyricsFromTextFile() {
    const std::size_t before = gLyrics.size();
    try {
        loadLyrics(gLyrics, gLyricFile);
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Lyrics could not be updated. Please delete the last line of lyrics and try again."));
    }
    // The form was loaded, and its list filled, before there was anything to show.
    if (gLyrics.size() != before) updateLyricList();
}

void FrmLyrics::saveLyric() {
    writeLyricFile(lyricLines(gLyrics));
    gLyricsSaved = true;
}

void FrmLyrics::writeLyricFile(const QString& text) {
    TextStream stream = FileSystemObject().OpenTextFile(gLyricFile, IOMode::forWriting, true);
    stream.Write(text);
    stream.Close();
}

QString FrmLyrics::convertToNineDigit(const QString& position) {
    return lyrebrook::convertToNineDigit(position);
}

void FrmLyrics::addLyricToArray(const QString& position, const QString& chord, const QString& lyric) {
    lyrebrook::addLyricToArray(gLyrics, {position, chord, lyric});
}

void FrmLyrics::updateLyricLine(const QString& position, const QString& chord, const QString& lyric) {
    lyrebrook::updateLyricLine(gLyrics, {position, chord, lyric});
}

void FrmLyrics::SortArray(LyricRows& array, std::int16_t column) {
    sortLyrics(array, column);
}

void FrmLyrics::updateLyricList() {
    lstLyrics.Clear();
    for (const LyricItem& item : lyricItems(gLyrics)) {
        lstLyrics.AddItem(item.text);
        lstLyrics.setItemData(lstLyrics.NewIndex(), item.position);
    }
}

void FrmLyrics::keepChange() {
    SortArray(gLyrics);
    saveLyric();
    updateLyricList();
    lstLyrics.Refresh();
}

void FrmLyrics::lstLyrics_Click() {
    txtLine.setText(trimBlanks(lstLyrics.Text()));
    selectedPosition_ = lstLyrics.ItemData(lstLyrics.ListIndex());
    cmdUpdate.setEnabled(true);
    cmdDelete.setEnabled(true);
    txtPosition.setText(QString::number(selectedPosition_));
}

void FrmLyrics::cmdUpdate_Click() {
    updateLyricLine(QString::number(selectedPosition_), {}, trimBlanks(txtLine.Text()));
    cmdUpdate.setEnabled(false);
    keepChange();
}

void FrmLyrics::cmdDelete_Click() {
    deleteLyricLine(gLyrics, QString::number(selectedPosition_));
    cmdUpdate.setEnabled(false);
    cmdDelete.setEnabled(false);
    keepChange();
}

void FrmLyrics::cmdSave_Click() {
    saveLyric();
    gLyricsSaved = true;
}

void FrmLyrics::cmdClear_Click() {
    const QString question = QStringLiteral("Are you sure you want to delete all lyrics for: \"%1\"?").arg(gSongName);
    if (MsgBox(question, vbYesNoCancel + vbQuestion, QStringLiteral("Save changes")) == vbYes) {
        lstLyrics.Clear();
        resetLyricsArray();
        writeLyricFile({});
    }
    saveLyric();
    gLyricsSaved = true;
}

void FrmLyrics::cmdPrint_Click() {
    constexpr PageMargins margins{.left = 1000, .right = 1000, .top = 1500, .bottom = 1100};
    txtLyrics.setText(lyricSheet(gSongName, gLyrics));
    CommonDialog1.setCancelError(true);
    try {
        CommonDialog1.ShowPrinter();
        for (int copy = 1; copy <= CommonDialog1.Copies(); ++copy) PrintText(txtLyrics, margins, PrintedPart::whole);
    } catch (const std::exception&) {
        return;  // who cancels the dialog knows it
    }
}

}  // namespace lyrebrook
