#include "dictionary/FrmDictionary.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTimer>

#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

const QString head = QStringLiteral("F i n d i n g   R h y m e   W o r d s...");

QByteArray numbered(int count, const char* ending) {
    QByteArray lines;
    for (int i = 1; i <= count; ++i) lines += QByteArray::number(i) + ending + '\n';
    return lines;
}

class Dictionary : public Studio {
  protected:
    void giveWords(const QByteArray& lines) {
        QFile file(path("database/eng.xon"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }

    /// The list after a search, without its head.
    QStringList found(const QString& term) {
        frmDictionary->txtWord.setText(term);
        frmDictionary->cmdSearch.setValue(true);
        QStringList lines = shown();
        EXPECT_EQ(lines.mid(0, 2), (QStringList{head, QString()}));
        return lines.mid(2);
    }

    static QStringList shown() {
        QStringList lines;
        for (int i = 0; i < frmDictionary->lstWords.ListCount(); ++i) lines << frmDictionary->lstWords.List(i);
        return lines;
    }

    /// Happens at the first line of the next search that lets events run.
    static void duringSearch(const std::function<void()>& action) { QTimer::singleShot(0, action); }
};

TEST_F(Dictionary, ListsTheLinesThatEndInTheTermInTheFilesOwnOrderAndCase) {
    struct Case {
        const char* about;
        QByteArray lines;
        QString term;
        QStringList rhymes;
    };
    const Case cases[] = {
        {"any case", "SINGING\nBring\nsong\ning\n", "iNg", {"SINGING", "Bring", "ing"}},
        {"ends of lines", "ring\r\n\r\n  \nking\rwing", "ing", {"ring", "king", "wing"}},
        {"the line is not trimmed", "ring \nmy ring\n", "ring", {"my ring"}},
        {"nor is the term", "ring\nmy ring\nspring\n", " ring", {"my ring"}},
        {"a blank behind the term", "ring\nring \n", "ring ", {"ring "}},
        {"a term longer than the line", "ing\n", "sing", {}},
        {"characters, not bytes", "caf\xC3\xA9\nCAF\xC3\x89\nfe\n\xD0\xBC\xD0\xB8\xD1\x80\n", "É", {"café", "CAFÉ"}},
        {"any script", "\xD0\xBC\xD0\xB8\xD1\x80\n\xD0\xB0\n", "ИР", {"мир"}},
        {"Windows-1252", "caf\xE9\n", "fé", {"café"}},
        {"no word", "", "ing", {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.about);
        giveWords(each.lines);
        EXPECT_EQ(found(each.term), each.rhymes);
    }
}

TEST_F(Dictionary, AGapFollowsEveryFiveHitsAsSoonAsAnotherLineIsRead) {
    giveWords(numbered(5, "ing"));
    EXPECT_THAT(found("ing"), SizeIs(5));
    giveWords(numbered(5, "ing") + "\n \nother\nmore\n");
    EXPECT_EQ(found("ing").mid(4), (QStringList{"5ing", ""}));
    giveWords(numbered(6, "ing"));
    EXPECT_EQ(found("ing").mid(4), (QStringList{"5ing", "", "6ing"}));
}

TEST_F(Dictionary, EndsAtTheTwoHundredthHit) {
    giveWords(numbered(300, "ing"));
    QStringList rhymes = found("ing");
    EXPECT_EQ(rhymes.removeAll(QString()), 39);
    EXPECT_THAT(rhymes, SizeIs(200));
    EXPECT_EQ(rhymes.last(), "200ing");
}

TEST_F(Dictionary, AsksForATermThatIsMoreThanBlanks) {
    giveWords("ring\n");
    found("ing");
    desk().willAnswer(vbOK);
    frmDictionary->txtWord.setText("  ");
    frmDictionary->cmdSearch.setValue(true);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{"Please enter a search term befor you click 'Search'."}));
    EXPECT_THAT(shown(), SizeIs(0));
}

TEST_F(Dictionary, StopIsNoticedAtTheNextLineThatIsNotBlank) {
    giveWords("ring\n\n\nking\nwing\n");
    duringSearch([] { frmDictionary->cmdStop.setValue(true); });
    EXPECT_EQ(found("ing"), (QStringList{"ring", "king"}));
}

TEST_F(Dictionary, ASearchInsideASearchAddsToTheSameListAndLetsTheFirstGoOn) {
    giveWords("ring\nkong\nking\n");
    duringSearch([] {
        frmDictionary->txtWord.setText("ong");
        frmDictionary->cmdSearch.setValue(true);
    });
    EXPECT_EQ(found("ing"), (QStringList{"kong", "king"}));
}

TEST_F(Dictionary, ASearchOutlivesItsScreen) {
    giveWords("ring\nking\n");
    duringSearch([] { frmDictionary->Command2.setValue(true); });
    frmDictionary->txtWord.setText("ing");
    frmDictionary->cmdSearch.setValue(true);
    EXPECT_FALSE(frmDictionary.isLoaded());
}

TEST_F(Dictionary, AMissingListEndsTheProgramWithTheErrorThatNamesIt) {
    frmDictionary->txtWord.setText("ing");
    frmDictionary->cmdSearch.setValue(true);
    EXPECT_EQ(desk().takeGeneralError(), "53: File not found: " + path("database/eng.xon"));
}

TEST_F(Dictionary, TheListThatShipsHoldsPlainEnglishWords) {
    QFile::copy(LYREBROOK_WORD_LIST, path("database/eng.xon"));
    EXPECT_EQ(found("ightingale"), (QStringList{"Nightingale", "nightingale"}));
    EXPECT_THAT(found("'s"), SizeIs(0));
}

}  // namespace
}  // namespace lyrebrook
