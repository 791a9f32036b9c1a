#include "dictionary/FrmDictionary.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "dictionary/RhymeSearch.h"
#include "platform/files/App.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "shell/FrmIntro.h"

namespace lyrebrook {

FormInstance<FrmDictionary> frmDictionary;

FrmDictionary::FrmDictionary()
    : Form(QStringLiteral("Rhyming Dictionary")),
      lblTitle(content(), QStringLiteral("Rhyming Dictionary")),
      Label1(content(), QStringLiteral("Search Term")),
      txtWord(content()),
      cmdSearch(content(), QStringLiteral("Search")),
      cmdStop(content(), QStringLiteral("Stop")),
      lstWords(content()),
      Frame1(content()),
      Label3(Frame1, QStringLiteral("Important:")),
      Label4(Frame1, QStringLiteral("Please click on the 'Help' button for instructions on using this tool!")),
      Command1(content(), QStringLiteral("Help")),
      Command2(content(), QStringLiteral("Close")) {
    layOut();
    connectHandlers();
}

void FrmDictionary::layOut() {
    lblTitle.setLook(Look::title);
    lstWords.setAccessibleName(QStringLiteral("Words that rhyme"));

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(12);
    column->addWidget(lblTitle);
    column->addLayout(layOutTerm());
    column->addWidget(lstWords, 1);
    column->addLayout(layOutFoot());
    window().resize(460, 560);
}

QBoxLayout* FrmDictionary::layOutTerm() {
    Label1.names(txtWord);
    txtWord.setToolTipText(QStringLiteral("The letters that the words shall end in"));
    cmdSearch.setLook(Look::primary);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(Label1);
    row->addWidget(txtWord, 1);
    row->addWidget(cmdSearch);
    row->addWidget(cmdStop);
    return row;
}

QBoxLayout* FrmDictionary::layOutFoot() {
    Label3.setLook(Look::heading);
    Label4.setLook(Look::hint);
    Label4.setWordWrap(true);
    auto* hint = new QVBoxLayout(Frame1.widget());
    hint->addWidget(Label3);
    hint->addWidget(Label4);
    auto* buttons = new QVBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(Frame1, 1);
    row->addLayout(buttons);
    return row;
}

void FrmDictionary::connectHandlers() {
    on(cmdSearch.Click, &FrmDictionary::cmdSearch_Click);
    on(txtWord.KeyPress, &FrmDictionary::txtWord_KeyPress);
    on(cmdStop.Click, &FrmDictionary::cmdStop_Click);
    on(Command1.Click, &FrmDictionary::Command1_Click);
    on(Command2.Click, &FrmDictionary::Command2_Click);
}

void FrmDictionary::cmdSearch_Click() {
    lstWords.Clear();
    if (trimBlanks(txtWord.Text()).isEmpty()) {
        MsgBox(QStringLiteral("Please enter a search term befor you click 'Search'."));
        return;
    }
    lstWords.AddItem(QStringLiteral("F i n d i n g   R h y m e   W o r d s..."));
    lstWords.AddItem({});
    loadWordsFromTextFile(App::Path() + QStringLiteral("/database/eng.xon"), txtWord.Text());
}

void FrmDictionary::loadWordsFromTextFile(const QString& path, const QString& term) {
    RhymeSearch search(path, term);
    searchActive_ = true;
    while (search.goesOn()) {
        const RhymeSearch::Line line = search.readLine();
        if (!line.isBlank) {
            if (line.endsGroup) lstWords.AddItem({});
            if (line.rhymes) lstWords.AddItem(line.word);
            if (!searchActive_) break;
        }
        DoEvents();
    }
}

void FrmDictionary::txtWord_KeyPress(int keyAscii) {
    constexpr int enter = 13;
    if (keyAscii == enter) cmdSearch_Click();
}

void FrmDictionary::cmdStop_Click() {
    searchActive_ = false;
}

void FrmDictionary::Command1_Click() {
    frmIntro->openHelp(20);
}

void FrmDictionary::Command2_Click() {
    frmDictionary.Unload();
}

}  // namespace lyrebrook
