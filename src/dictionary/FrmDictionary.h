#pragma once

#include <QString>

#include "platform/forms/CommandButton.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/TextBox.h"

class QBoxLayout;

namespace lyrebrook {

/// The rhyming dictionary: lists the words that end in the letters that were typed. It stands beside the recorder, and
/// events run between the lines of a search: Stop ends it, Search starts another one inside of it, and closing the
/// screen leaves it to run out unseen. Without the word list a search ends the program with the error that names the
/// file.
class FrmDictionary final : public Form {
  public:
    FrmDictionary();

    /// Lists the lines of the file at `path` that end in `term`, a gap after every five, at most 200.
    void loadWordsFromTextFile(const QString& path, const QString& term);

    Label lblTitle;
    Label Label1;
    TextBox txtWord;
    CommandButton cmdSearch, cmdStop;
    ListBox lstWords;
    Frame Frame1;
    Label Label3, Label4;
    CommandButton Command1, Command2;

  private:
    void layOut();
    QBoxLayout* layOutTerm();
    QBoxLayout* layOutFoot();
    void connectHandlers();

    void cmdSearch_Click();
    void txtWord_KeyPress(int keyAscii);
    void cmdStop_Click();
    void Command1_Click();
    void Command2_Click();

    bool searchActive_ = false;  ///< one for all nested searches: Stop ends them all
};

extern FormInstance<FrmDictionary> frmDictionary;

}  // namespace lyrebrook
