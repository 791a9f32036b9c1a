#include "lyrics/FrmLyrics.h"

#include <gmock/gmock.h>

#include <QFile>
#include <numeric>
#include <random>

#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

const Box notLoaded{
    QStringLiteral("Lyrics could not be updated. Please delete the last line of lyrics and try again.")};

/// The editor over the lyric file of a song.
class LyricEditor : public Studio {
  protected:
    LyricEditor() {
        gSongName = QStringLiteral("My Song");
        gLyricFile = path(QStringLiteral("songs/My Song.txt"));
    }

    /// Puts a file in place, and loads it without a word where it is `whole`.
    void load(const QByteArray& content, bool whole = true) {
        QFile file(gLyricFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        if (!whole) desk().willAnswer(vbOK);
        frmLyrics->loadLyricsFromTextFile();
        EXPECT_EQ(desk().takeBoxes(), whole ? std::vector<Box>{} : std::vector{notLoaded});
    }
    static QByteArray fileContent() {
        QFile file(gLyricFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    static QString list() {
        QStringList lines;
        for (int i = 0; i < frmLyrics->lstLyrics.ListCount(); ++i) lines << frmLyrics->lstLyrics.List(i);
        return lines.join(u'|');
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

TEST_F(LyricEditor, LoadsWhatItCanOfAnyFile) {
    const QByteArray longLine = "000000001::::" + QByteArray(10'000'000, 'x') + "\r\n";
    const std::tuple<QByteArray, QByteArray, bool> cases[] = {
        {"", "", true},
        {"  \n\n2::Am:: b \n1234567890::::a\r\n2::C::again", "000000002::Am::b\r\n1234567890::::a\r\n", true},
        {"::::", "000000000::::\r\n", true},
        {"7::C::tail::is::lost", "000000007::C::tail\r\n", true},
        {"1::::a\r\n2::two fields\r\n3::::c", "000000001::::a\r\n", false},
        {"1::::a\r\nsoon::C::b\r\n3::::c", "000000001::::a\r\n", false},
        {"1::::a\r\n4000000000::C::b", "000000001::::a\r\n", false},
        {QByteArray("1::A\0m::a\0b", 11), QByteArray("000000001::A\0m::a\0b\r\n", 21), true},
        {"1::::caf\xE9\r\n2::::caf\xC3\xA9", "000000001::::caf\xC3\xA9\r\n000000002::::caf\xC3\xA9\r\n", true},
        {longLine, longLine, true}};
    frmLyrics->loadLyricsFromTextFile();
    EXPECT_EQ(fileContent(), "") << "a song without a file gets one";
    for (const auto& [content, expected, whole] : cases) {
        frmLyrics->resetLyricsArray();
        load(content, whole);
        frmLyrics->saveLyric();
        EXPECT_TRUE(fileContent() == expected) << content.left(80).toStdString();
    }
}

TEST_F(LyricEditor, HoldsAsManyEntriesAsARowNumberCountsAndSortsThem) {
    std::vector<int> positions(40'000);
    std::iota(positions.begin(), positions.end(), 0);
    std::shuffle(positions.begin(), positions.end(), std::mt19937(5));
    QByteArray content;
    for (const int i : positions) content += QByteArray::number(i) + "::::" + QByteArray::number(i) + '\n';
    load(content, false);
    ASSERT_EQ(gLyrics.size(), 32'768U);
    gLyrics[7][3] = 7;
    frmLyrics->SortArray(gLyrics);
    for (std::size_t row = 0; row + 2 < gLyrics.size(); ++row) {
        ASSERT_LT(cellText(gLyrics[row], positionColumn), cellText(gLyrics[row + 1], positionColumn));
        ASSERT_EQ(cellText(gLyrics[row], lyricColumn).toInt(), bytePosition(gLyrics[row]));
    }
    EXPECT_EQ(gLyrics[7][3], 7) << "the last column stays";
    EXPECT_EQ(gLyrics.back(), LyricRow{});
}

TEST_F(LyricEditor, CorrectsALineAndKeepsItsChord) {
    load("2::Am::*\r\n1::C::first\r\n3::G::\r\n");
    frmLyrics.Show();
    EXPECT_EQ(list(), QStringLiteral("*|first|*"));
    EXPECT_FALSE(frmLyrics->cmdUpdate.Enabled() || frmLyrics->cmdDelete.Enabled());
    correct(2, " third ");
    correct(0, "");
    EXPECT_EQ(frmLyrics->txtPosition.Text(), QStringLiteral("1"));
    EXPECT_EQ(list(), QStringLiteral("first|*|third"));
    const QByteArray saved = "000000001::C::first\r\n000000002::Am::*\r\n000000003::G::third\r\n";
    EXPECT_EQ(fileContent(), saved);
    load("3::D::other\r\n4::::fourth\r\n");
    frmLyrics->cmdSave.setValue(true);
    EXPECT_EQ(fileContent(), saved + "000000004::::fourth\r\n") << "a load adds and never replaces";
    QFile::setPermissions(gLyricFile, QFile::ReadOwner);
    correct(0, "other");
    EXPECT_EQ(desk().takeGeneralError(), QStringLiteral("70: Permission denied"));
}

TEST_F(LyricEditor, TellsOfAFolderThatVanished) {
    gLyricFile = path(QStringLiteral("gone/My Song.txt"));
    desk().willAnswer(vbOK);
    frmLyrics->loadLyricsFromTextFile();
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(notLoaded));
    frmLyrics->cmdSave.setValue(true);
    EXPECT_EQ(desk().takeGeneralError(), QStringLiteral("76: Path not found"));
}

TEST_F(LyricEditor, DeletingTheLastEntryLeavesAGhost) {
    load("1::C::one\r\n2::D::two\r\n");
    remove(0);
    EXPECT_EQ(fileContent(), "000000002::D::two\r\n");
    remove(0);
    EXPECT_EQ(fileContent(), "::::\r\n");
    frmLyrics->addLyricToArray(QStringLiteral("9"), {}, QStringLiteral("nine"));
    frmLyrics->keepChange();
    remove(0);
    EXPECT_EQ(fileContent(), "::::\r\n000000009::::nine\r\n") << "nothing has its position, so nothing goes";
    EXPECT_EQ(list(), QStringLiteral("*|nine"));
}

TEST_F(LyricEditor, ClearsWithYesAndSavesWhateverTheAnswer) {
    load("1::C::one\r\n");
    const Box question{QStringLiteral("Are you sure you want to delete all lyrics for: \"My Song\"?"), 35,
                       QStringLiteral("Save changes")};
    for (const auto answer : {vbCancel, vbNo, vbYes}) {
        QFile::remove(gLyricFile);
        desk().willAnswer(answer);
        frmLyrics->cmdClear.setValue(true);
        EXPECT_EQ(fileContent(), answer == vbYes ? "" : "000000001::C::one\r\n");
        EXPECT_THAT(desk().takeBoxes(), ElementsAre(question));
    }
    EXPECT_EQ(list(), QString());
}

}  // namespace
}  // namespace lyrebrook
