#include "dictionary/FrmDictionary.h"
#include "lyrics/FrmLyrics.h"
#include "recorder/RecorderScreen.h"

namespace lyrebrook {
namespace {

class LyricsInRecorder : public RecorderScreen {
  protected:
    static void type(const char* chord, const char* lyric) {
        frmComposer->txtChord.setText(QString::fromUtf8(chord));
        frmComposer->txtLyrics.setText(QString::fromUtf8(lyric));
    }
    static void write(double atSecond, const char* chord, const char* lyric) {
        moveTo(atSecond);
        type(chord, lyric);
        frmComposer->cmdLyricAdd.setValue(true);
    }
    static QString shown() { return frmComposer->txtChord.Text() + u'|' + frmComposer->txtLyrics.Text(); }
    static QByteArray lyricFile() {
        QFile file(gLyricFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(LyricsInRecorder, EachLineIsShownItsLeadBeforeThePlaceWhereItWasWritten) {
    open();
    write(8, "", "no chord");
    write(4, "Am", " Walking down the road ");
    write(8.01, "G", "");
    ASSERT_EQ(lyricFile(), "000705600::Am::Walking down the road\r\n001411200::::no chord\r\n001412964::G::\r\n");
    moveTo(1);
    EXPECT_EQ(shown(), QStringLiteral("|"));
    const std::int64_t start = desk().monotonicMilliseconds() - 1000;
    clickPlay();
    const std::pair<double, const char*> lines[] = {
        {705600, "Am|Walking down the road"}, {1411200, "|no chord"}, {1412964, "G|"}};
    constexpr double tick = 50;
    for (const auto& [position, line] : lines) {
        ASSERT_TRUE(crankUntil([line] { return shown() == QString::fromUtf8(line); }, 10s)) << line;
        const double late = static_cast<double>(desk().monotonicMilliseconds() - start) - (position - 200000) / 176.4;
        EXPECT_GE(late, 0) << line;
        EXPECT_LE(late, 2 * tick) << line;  // lines a hundredth of a second apart take a tick each
    }
    crank(10s);
    EXPECT_EQ(shown(), QStringLiteral("G|")) << "nothing clears the last line";
    moveTo(1);
    EXPECT_EQ(shown(), QStringLiteral("G|")) << "a jump of the running song doesn't seek";
    clickStop();
    moveTo(6);
    EXPECT_EQ(shown(), QStringLiteral("Am|Walking down the road")) << "the line that the cursor stands in";
}

TEST_F(LyricsInRecorder, StaysAsItIsWithLyricsOffAndWhenTheEditorTakesTheLinesAway) {
    open();
    write(4, "Am", "one");
    write(8, "C", "two");
    for (const int enabled : {0, 1}) {
        frmComposer->chkLyrics.setValue(enabled);
        EXPECT_EQ(frmComposer->Timer1.Interval(), enabled == 1 ? 20 : 500);
        moveTo(5);
        clickPlay();
        if (enabled == 1) frmLyrics->resetLyricsArray();
        crank(4s);
        EXPECT_EQ(shown(), enabled == 1 ? QStringLiteral("Am|one") : QStringLiteral("C|two"));
        clickStop();
    }
}

TEST_F(LyricsInRecorder, PlayAsksWhatToDoWithTypedWords) {
    open();
    write(4, "Am", "one");
    moveTo(10);
    const std::tuple<const char*, MsgBoxResult, QByteArray> cases[] = {
        {"x", vbCancel, "000705600::Am::one\r\n"},
        {"uno", vbNo, "000705600::Am::uno\r\n"},
        {"two", vbYes, "000705600::Am::uno\r\n001764000::Am::two\r\n"}};
    for (const auto& [words, answer, saved] : cases) {
        type("Am", words);
        desk().willAnswer(answer);
        clickPlay();
        EXPECT_TRUE(frmComposer->playing());
        EXPECT_EQ(lyricFile(), saved);
        frmComposer->cmdRhyme.setValue(true);
        EXPECT_TRUE(frmComposer->playing() && frmDictionary->Visible()) << "rhymes are looked for while it runs";
        clickStop();
        const Box question{QStringLiteral("Click YES to save new lyric and chord\r\nClick NO to update existing "
                                          "chord!\r\n"),
                           35, QStringLiteral("Save changes")};
        expectBoxes(question);
    }
}

TEST_F(LyricsInRecorder, UpdateChangesTheLineThatWasOnShowAndNeverBlanksOne) {
    open();
    write(4, "Am", "one");
    moveTo(5);
    write(10, "C", "two");
    type("G", "uno");
    frmComposer->cmdLyricUpdate.setValue(true);
    EXPECT_EQ(lyricFile(), "000705600::G::uno\r\n001764000::C::two\r\n") << "an insert leaves what is on show";
    type("D", " ");
    desk().willAnswer(vbOK);
    frmComposer->cmdLyricUpdate.setValue(true);
    expectBoxes(
        Box{QStringLiteral("You can only update lyrics that are currently displayed. Type the lyrics and use the "
                           "\"INSERT\" button to add for the first time.")});
    moveTo(5);
    clickPlay();
    frmComposer->cmdViewLyrics.setValue(true);
    EXPECT_TRUE(!frmComposer->playing() && frmLyrics->Visible());
    frmComposer.Unload();
    EXPECT_FALSE(frmLyrics.isLoaded()) << "the store is empty now, and a save would empty the file";
    EXPECT_EQ(lyricFile(), "000705600::G::uno\r\n001764000::C::two\r\n");
}

}  // namespace
}  // namespace lyrebrook
