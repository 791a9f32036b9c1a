#include "dictionary/FrmDictionary.h"
#include "recorder/FrmComposer.h"
#include "steps.h"

namespace lyrebrook {

void findRhymes(Tour& tour) {
    frmComposer->cmdRhyme.setValue(true);
    frmDictionary->txtWord.setText(QStringLiteral("ing"));
    frmDictionary->cmdSearch.setValue(true);
    tour.picture(*frmDictionary, QStringLiteral("rhymes"));
    constexpr int headAndHitsAndGaps = 2 + 200 + 39;
    const int lines = frmDictionary->lstWords.ListCount();
    tour.require(lines == headAndHitsAndGaps, QStringLiteral("\"ing\" ends two hundred words and more"));
    tour.say(QStringLiteral("step 4: looked for words in \"ing\", the last is \"%1\"")
                 .arg(frmDictionary->lstWords.List(lines - 1)));
    frmDictionary->Command2.setValue(true);
}

}  // namespace lyrebrook
