#include "lyrics/FrmLyrics.h"

#include <gmock/gmock.h>

#include <QFile>

#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

/// The editor over the lyric file of a song.
class LyricEditor : public Studio {
  protected:
    LyricEditor() {
        gSongName = QStringLiteral("My Song");
        gLyricFile = path(QStringLiteral("songs/My Song.txt"));
    }

    static void give(const QByteArray& content) {
        QFile file(gLyricFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray fileContent() {
        QFile file(gLyricFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    /// What a load of that file leaves, written back.
    static QByteArray loadedFrom(const QByteArray& content) {
        give(content);
        gLyrics = emptyLyrics();
        frmLyrics->loadLyricsFromTextFile();
        frmLyrics->saveLyric();
        return fileContent();
    }

    void open(const QByteArray& content) {
        give(content);
        frmLyrics->loadLyricsFromTextFile();
        frmLyrics.Show();
    }

    static QStringList list() {
        QStringList lines;
        for (int i = 0; i < frmLyrics->lstLyrics.ListCount(); ++i) lines << frmLyrics->lstLyrics.List(i);
        return lines;
    }

    static void correct(int line, const char* text) {
        frmLyrics->lstLyrics.setListIndex(line);
        frmLyrics->txtLine.setText(QString::fromUtf8(text));
        frmLyrics->cmdUpdate.setValue(true);
    }

    static void remove(int line) {
        frmLyrics->lstLyrics.setListIndex(line);
        frmLyrics->cmdDelete.setValue(true);
    }
};

const Box notLoaded{
    QStringLiteral("Lyrics could not be updated. Please delete the last line of lyrics and try again.")};

TEST_F(LyricEditor, LoadsWhatItCanOfAnyFile) {
    const QByteArray longLine = "000000001::::" + QByteArray(10'000'000, 'x') + "\r\n";
    const std::tuple<QByteArray, QByteArray, bool> cases[] = {
        {"", "", true},
        {"  \n\n2::Am:: b \n1::::a\r\n2::C::again", "000000002::Am::b\r\n000000001::::a\r\n", true},
        {"::::", "000000000::::\r\n", true},
        {"7::C::tail::is::lost", "000000007::C::tail\r\n", true},
        {"1::::a\r\n2::two fields\r\n3::::c", "000000001::::a\r\n", false},
        {"1::::a\r\nsoon::C::b\r\n3::::c", "000000001::::a\r\n", false},
        {"1::::a\r\n4000000000::C::b", "000000001::::a\r\n", false},
        {QByteArray("1::A\0m::a\0b", 11), QByteArray("000000001::A\0m::a\0b\r\n", 21), true},
        {"1::::caf\xE9\r\n2::::caf\xC3\xA9", "000000001::::caf\xC3\xA9\r\n000000002::::caf\xC3\xA9\r\n", true},
        {longLine, longLine, true}};
    for (const auto& [content, expected, whole] : cases) {
        if (!whole) desk().willAnswer(vbOK);
        EXPECT_TRUE(loadedFrom(content) == expected) << content.left(80).toStdString();
        EXPECT_EQ(desk().takeBoxes(), whole ? std::vector<Box>{} : std::vector{notLoaded});
    }
}

TEST_F(LyricEditor, HoldsAsManyEntriesAsARowNumberCounts) {
    QByteArray content;
    for (int i = 40'000; i > 0; --i) content += QByteArray::number(i) + "::::la\r\n";
    desk().willAnswer(vbOK);
    EXPECT_EQ(loadedFrom(content).count('\n'), 32'767);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(notLoaded));
    frmLyrics->SortArray(gLyrics);
    EXPECT_EQ(bytePosition(gLyrics.front()), 40'000 - 32'766);
}

TEST_F(LyricEditor, ASecondLoadAddsAndNeverReplaces) {
    open("1::C::one\r\n");
    give("1::D::other\r\n");
    frmLyrics->addLyricToArray(QStringLiteral("5"), {}, QStringLiteral("not in the file"));
    frmLyrics->loadLyricsFromTextFile();
    QFile::remove(gLyricFile);
    frmLyrics->loadLyricsFromTextFile();
    EXPECT_EQ(fileContent(), "") << "a missing file is made";
    frmLyrics->saveLyric();
    EXPECT_EQ(fileContent(), "000000001::C::one\r\n000000005::::not in the file\r\n");
}

TEST_F(LyricEditor, CorrectsALineAndKeepsItsChord) {
    open("2::Am::*\r\n1::C::first\r\n3::G::\r\n");
    EXPECT_EQ(frmLyrics->lblTitle.Caption(), gSongName);
    EXPECT_THAT(list(), ElementsAre(QStringLiteral("*"), QStringLiteral("first"), QStringLiteral("*")));
    EXPECT_FALSE(frmLyrics->cmdUpdate.Enabled() || frmLyrics->cmdDelete.Enabled());
    correct(2, " third ");
    EXPECT_FALSE(frmLyrics->cmdUpdate.Enabled());
    correct(0, "");
    EXPECT_EQ(frmLyrics->txtPosition.Text(), QStringLiteral("1"));
    EXPECT_THAT(list(), ElementsAre(QStringLiteral("first"), QStringLiteral("*"), QStringLiteral("third")));
    EXPECT_EQ(fileContent(), "000000001::C::first\r\n000000002::Am::*\r\n000000003::G::third\r\n");
}

TEST_F(LyricEditor, DeletingTheLastEntryLeavesAGhost) {
    open("1::C::one\r\n2::D::two\r\n");
    remove(0);
    EXPECT_EQ(fileContent(), "000000002::D::two\r\n");
    remove(0);
    EXPECT_EQ(gLyrics.size(), 2U);
    EXPECT_EQ(fileContent(), "::::\r\n");
    frmLyrics->addLyricToArray(QStringLiteral("9"), {}, QStringLiteral("nine"));
    frmLyrics->keepChange();
    remove(0);
    EXPECT_EQ(fileContent(), "::::\r\n000000009::::nine\r\n") << "nothing has its position, so nothing goes";
    EXPECT_THAT(list(), ElementsAre(QStringLiteral("*"), QStringLiteral("nine")));
}

TEST_F(LyricEditor, ClearsWithYesAndSavesWhateverTheAnswer) {
    open("1::C::one\r\n");
    const Box question{QStringLiteral("Are you sure you want to delete all lyrics for: \"My Song\"?"),
                       vbYesNoCancel + vbQuestion, QStringLiteral("Save changes")};
    const std::pair<MsgBoxResult, const char*> answers[] = {
        {vbCancel, "000000001::C::one\r\n"}, {vbNo, "000000001::C::one\r\n"}, {vbYes, ""}};
    for (const auto& [answer, expected] : answers) {
        QFile::remove(gLyricFile);
        desk().willAnswer(answer);
        frmLyrics->cmdClear.setValue(true);
        EXPECT_EQ(fileContent(), expected);
    }
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(question, question, question));
    EXPECT_THAT(list(), ElementsAre());
}

TEST_F(LyricEditor, AFileThatCantBeWrittenEndsTheProgramAndStaysAsItIs) {
    open("1::C::one\r\n");
    QFile::setPermissions(gLyricFile, QFile::ReadOwner);
    correct(0, "other");
    EXPECT_EQ(desk().takeGeneralError(), QStringLiteral("70: Permission denied"));
    EXPECT_EQ(fileContent(), "1::C::one\r\n");
}

}  // namespace
}  // namespace lyrebrook
