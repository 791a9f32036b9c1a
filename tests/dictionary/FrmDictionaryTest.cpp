#include "dictionary/FrmDictionary.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTimer>

#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

class Dictionary : public Studio {
  protected:
    void giveWords(const QByteArray& lines) {
        QFile file(path("database/eng.xon"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }
    static void search(const QString& term) {
        frmDictionary->txtWord.setText(term);
        frmDictionary->cmdSearch.setValue(true);
    }
    static QString shown() {
        QStringList lines;
        for (int i = 0; i < frmDictionary->lstWords.ListCount(); ++i) lines << frmDictionary->lstWords.List(i);
        return lines.join(u'|');
    }
    /// The list after a search, without its head.
    static QString found(const QString& term) {
        search(term);
        QString lines = shown();
        const QString head = "F i n d i n g   R h y m e   W o r d s...|";
        EXPECT_TRUE(lines.startsWith(head));
        return lines.mid(head.size() + 1);
    }
    /// Happens at the first line of the next search that lets events run.
    static void duringSearch(const std::function<void()>& action) { QTimer::singleShot(0, action); }
};

TEST_F(Dictionary, ListsTheLinesThatEndInTheTermInGroupsOfFive) {
    const QByteArray endless = QByteArray(1'000'000, 'x') + "ing";
    const std::tuple<const char*, QByteArray, QString, QString> cases[] = {
        {"any case, the file's own order", "SINGING\nBring\nsong\ning\n", "iNg", "SINGING|Bring|ing"},
        {"ends of lines", "ring\r\n\r\n  \nking\rwing", "ing", "ring|king|wing"},
        {"neither line nor term is trimmed", "ring \nring\nmy ring\nspring\n", " ring", "my ring"},
        {"a blank behind the term", "ring\nring \n", "ring ", "ring "},
        {"a term longer than the line", "ing\n", "sing", ""},
        {"characters, not bytes", "caf\xC3\xA9\nCAF\xC3\x89\nfe\n\xD0\xBC\xD0\xB8\xD1\x80\n", "É", "café|CAFÉ"},
        {"any script", "\xD0\xBC\xD0\xB8\xD1\x80\n\xD0\xB0\n", "ИР", "мир"},
        {"Windows-1252", "caf\xE9\n", "fé", "café"},
        {"megabytes without an end", endless + "\nno\n" + endless, "ing", endless + "|" + endless},
        {"no word", "", "ing", ""},
        {"no gap without a line behind it", "1s\n2s\n3s\n4s\n5s\n", "s", "1s|2s|3s|4s|5s"},
        {"a gap with the next line", "1s\n2s\n3s\n4s\n5s\n \nother\nmore\n", "s", "1s|2s|3s|4s|5s|"},
        {"groups", "1s\n2s\n3s\n4s\n5s\n6s\n", "s", "1s|2s|3s|4s|5s||6s"},
    };
    for (const auto& [about, lines, term, rhymes] : cases) {
        giveWords(lines);
        EXPECT_TRUE(found(term) == rhymes) << about << ": " << shown().left(200).toStdString();
    }
}

TEST_F(Dictionary, EndsAtTheTwoHundredthHit) {
    giveWords(QByteArray("ring\n").repeated(199) + "last ring\nring\n");
    const QStringList rhymes = found("ing").split(u'|');
    EXPECT_EQ(rhymes.count(QString()), 39);
    EXPECT_EQ(rhymes.size(), 200 + 39);
    EXPECT_EQ(rhymes.last(), "last ring");
}

TEST_F(Dictionary, AsksForATermThatIsMoreThanBlanks) {
    giveWords("ring\n");
    search("ing");
    desk().willAnswer(vbOK);
    search("  ");
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{"Please enter a search term befor you click 'Search'."}));
    EXPECT_EQ(shown(), "");
}

TEST_F(Dictionary, EventsRunDuringASearch) {
    giveWords("ring\n\n\nking\nkong\nwing\n");
    duringSearch([] { frmDictionary->cmdStop.setValue(true); });
    EXPECT_EQ(found("ing"), "ring|king") << "a stop is noticed at the next line that is not blank";
    duringSearch([] { search("ong"); });
    EXPECT_EQ(found("ing"), "kong|king|wing") << "the first search goes on in the list of the second";
    duringSearch([] { frmDictionary->Command2.setValue(true); });
    search("ing");
    EXPECT_FALSE(frmDictionary.isLoaded()) << "a search outlives its screen";
}

TEST_F(Dictionary, AMissingListEndsTheProgramWithTheErrorThatNamesIt) {
    search("ing");
    EXPECT_EQ(desk().takeGeneralError(), "53: File not found: " + path("database/eng.xon"));
}

TEST_F(Dictionary, TheListThatShipsHoldsPlainEnglishWords) {
    QFile::copy(LYREBROOK_WORD_LIST, path("database/eng.xon"));
    EXPECT_EQ(found("ightingale"), "Nightingale|nightingale");
    EXPECT_EQ(found("'s"), "");
}

}  // namespace
}  // namespace lyrebrook
