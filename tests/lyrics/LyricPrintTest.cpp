#include <gmock/gmock.h>

#include <QDir>
#include <QMainWindow>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>

#include "lyrics/FrmLyrics.h"
#include "lyrics/PrintText.h"
#include "platform/base/RuntimeError.h"
#include "platform/printing/PaperPrinter.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

constexpr PageMargins margins{.left = 1000, .right = 1000, .top = 1500, .bottom = 1100};
const Box notPrinted{"Print function not supported on your operating system!"};

/// Keeps what it was given. Ten characters and three lines go on a sheet, unless the letters are changed.
class Typewriter final : public Printer {
  public:
    struct Line {
        QString text;
        int page;
        Twips x, y;
        bool operator==(const Line&) const = default;
    };

    Twips ScaleWidth() const override { return 3000; }
    Twips ScaleHeight() const override { return 3200; }
    Twips CurrentX() const override { return x_; }
    Twips CurrentY() const override { return y_; }
    void setCurrentX(Twips x) override { x_ = x; }
    void setCurrentY(Twips y) override { y_ = y; }
    Twips TextWidth(const QString& text) const override {
        ++measures;
        return letter * static_cast<double>(text.toUcs4().size());
    }
    Twips TextHeight(const QString&) const override { return 200; }
    void setFont(const Font&) override {}
    void Print(const QString& text) override {
        if (lines.size() == ribbon) throw RuntimeError(RuntimeErrorNumber::printerError, "The ribbon is torn");
        lines.push_back({text, page_, x_, y_});
        y_ += 200;
    }
    void NewPage() override {
        ++page_;
        y_ = 0;
    }
    void EndDoc() override { ++documents; }

    QStringList texts() const {
        QStringList texts;
        for (const Line& line : lines) texts << line.text;
        return texts;
    }

    Twips letter = 100;
    std::size_t ribbon = 1000;
    std::vector<Line> lines;
    int documents = 0;
    mutable std::size_t measures = 0;

  private:
    int page_ = 1;
    Twips x_ = 0, y_ = 0;
};

TEST(PrintLayout, BreaksLinesAtBlanksThatStayAtTheEndOfTheirLine) {
    const std::tuple<const char*, QString, QStringList> cases[] = {
        {"exactly the width, a blank beyond it", "1234567890 ", {"1234567890 "}},
        {"one more", "12345 78901", {"12345 ", "78901"}},
        {"the last blank that fits", "one two three", {"one two ", "three"}},
        {"blanks in a row", "12345 78      90123", {"12345 78   ", "90123"}},
        {"a blank at the start", " 1234567890", {" ", "1234567890"}},
        {"a long word, its breaking character twice", "abcdefghijklmnopq", {"abcdefghijk", "klmnopq"}},
        {"a word with one letter too many", "abcdefghijk", {"a", "bcdefghijk"}},
        {"a tab breaks and stays", "abc\tdefghij k", {"abc\t", "\tdefghij k"}},
        {"a tab without a space behind", "abcdef\tghijklm", {"abcdef\tghij", "jklm"}},
        {"a tab before a long word", "\tabcdefghij k", {"\t", "abcdefghij ", "k"}},
        {"signs of two units", QString("🎵").repeated(12), {QString("🎵").repeated(11), QString("🎵").repeated(2)}},
        {"no text between, and an end of line at the end", "a\r\n\r\nb\r\n", {"a", "", "b", ""}},
    };
    for (const auto& [about, text, lines] : cases) {
        Typewriter typewriter;
        EXPECT_TRUE(printLayout(typewriter, {text, {}}, margins));
        EXPECT_EQ(typewriter.texts(), lines) << about;
        EXPECT_EQ(typewriter.documents, 1);
    }
}

TEST(PrintLayout, MeasuresLittleOfALongParagraph) {
    for (const QString word : {"x", "four "}) {
        for (const int letter : {1, 2, 3, 4, 5, 6, 7}) {
            Typewriter typewriter;
            typewriter.letter = letter;
            printLayout(typewriter, {word.repeated(10'000), {}}, margins);
            constexpr std::size_t mostMeasures = 25;
            EXPECT_LE(typewriter.measures, typewriter.lines.size() * mostMeasures);
            typewriter.lines.resize(typewriter.lines.size() - 2);  // what is left over
            const qsizetype length = (1000 / letter + 1) / word.size() * word.size();
            for (const QString& line : typewriter.texts()) ASSERT_EQ(line.size(), length) << letter;
        }
    }
}

TEST(PrintLayout, FollowsTheAlignmentOntoAsManyPagesAsItTakes) {
    using Line = Typewriter::Line;
    const QString text = "1234567\r\n1\r\n12\r\n1234";
    Typewriter right;
    printLayout(right, {text, {}, TextAlignment::right}, margins);
    EXPECT_THAT(right.lines, ElementsAre(Line{"1234567", 1, 1300, 1500}, Line{"1", 1, 1900, 1700},
                                         Line{"12", 1, 1800, 1900}, Line{"1234", 2, 1600, 1500}));
    Typewriter centre;
    centre.setCurrentY(1600);  // a place below the margin stays
    printLayout(centre, {text, {}, TextAlignment::centre}, margins);
    EXPECT_THAT(centre.lines, ElementsAre(Line{"1234567", 1, 1150, 1600}, Line{"1", 1, 1450, 1800},
                                          Line{"12", 2, 1400, 1500}, Line{"1234", 2, 1300, 1700}));
}

TEST(PrintLayout, PrintsNothingWithoutTextOrRoom) {
    Typewriter typewriter;
    EXPECT_FALSE(printLayout(typewriter, {}, margins));
    EXPECT_FALSE(printLayout(typewriter, {"a", {}}, {.left = 1500, .right = 1500}));
    EXPECT_FALSE(printLayout(typewriter, {"a", {}}, {.top = 1600, .bottom = 1600}));
    EXPECT_EQ(typewriter.documents, 0);
    // Room, but not for a line: each one gets a page of its own.
    EXPECT_TRUE(printLayout(typewriter, {"a\r\nb", {}}, {.top = 3000, .bottom = 150}));
    EXPECT_THAT(typewriter.lines, ElementsAre(Typewriter::Line{"a", 2, 0, 3000}, Typewriter::Line{"b", 3, 0, 3000}));
}

/// A word of a PDF as a reader finds it, in twips from the upper left corner of its page.
struct Word {
    QString text = {};
    int page = 0;
    Twips left = 0, top = 0, right = 0, bottom = 0;
};

struct Pdf {
    QStringList pageSizes;
    std::vector<Word> words;
};

Pdf read(const QString& path) {
    QProcess reader;
    reader.start("pdftotext", {"-bbox", path, "-"});
    EXPECT_TRUE(reader.waitForFinished());
    static const QRegularExpression element(
        R"re(<page width="([\d.]+)" height="([\d.]+)">|<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*)</word>)re");
    Pdf pdf;
    for (auto each = element.globalMatch(QString::fromUtf8(reader.readAllStandardOutput())); each.hasNext();) {
        const auto found = each.next();
        const auto twips = [&found](int group) { return found.captured(group).toDouble() * 20; };
        if (found.capturedLength(1) > 0)
            pdf.pageSizes << QString("%1 x %2").arg(twips(1)).arg(twips(2));
        else
            pdf.words.push_back(
                {found.captured(7), static_cast<int>(pdf.pageSizes.size()), twips(3), twips(4), twips(5), twips(6)});
    }
    return pdf;
}

class OnPaper : public Studio {
  protected:
    std::unique_ptr<PaperPrinter> printerTo(const QString& pdf, QPageSize::PageSizeId paper = QPageSize::A4) {
        auto setUp = std::make_unique<QPrinter>(QPrinter::HighResolution);
        setUp->setOutputFormat(QPrinter::PdfFormat);
        setUp->setOutputFileName(pdf);
        setUp->setPageSize(QPageSize(paper));
        return std::make_unique<PaperPrinter>(std::move(setUp));
    }

    QMainWindow window_;
    TextBox box_{&window_, {}, Lines::multiple};
};

TEST_F(OnPaper, TheMarginsHoldOnA4AndLetter) {
    const QString verse = QStringLiteral("Walking down the road with wind and rain about me ").repeated(40);
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        const auto printer = printerTo(path("out.pdf"), paper);
        ASSERT_TRUE(printLayout(*printer, {verse, {.Name = "DejaVu Sans", .Size = 24}}, margins));
        const Pdf pdf = read(path("out.pdf"));
        const QString sheet = QString("%1 x %2").arg(printer->ScaleWidth()).arg(printer->ScaleHeight());
        EXPECT_THAT(pdf.pageSizes, ElementsAre(sheet, sheet, sheet));
        EXPECT_EQ(pdf.words.size(), 400U);
        constexpr Twips tolerance = 2;
        Word before;
        Twips top = 0;
        for (const Word& word : pdf.words) {
            const bool newPage = before.page != word.page;
            const bool newLine = newPage || word.left < before.left;
            if (newLine) top = newPage ? margins.top : top + printer->TextHeight({});
            EXPECT_NEAR(word.top, top, tolerance) << word.text.toStdString();
            EXPECT_NEAR(word.left, newLine ? margins.left : before.right + printer->TextWidth(" "), tolerance);
            EXPECT_NEAR(word.right, word.left + printer->TextWidth(word.text), tolerance);
            EXPECT_LE(word.right, printer->ScaleWidth() - margins.right + tolerance);
            EXPECT_LE(word.bottom, printer->ScaleHeight() - margins.bottom + tolerance);
            before = word;
        }
    }
}

TEST_F(OnPaper, ADocumentThatFailsLeavesNothingOfItselfToTheNext) {
    const auto printer = printerTo(path("missing/out.pdf"));
    const PrintedText text{"found", {.Name = "No Such Font"}};
    EXPECT_THROW(printLayout(*printer, text, margins), RuntimeError);
    ASSERT_TRUE(QDir().mkpath(path("missing")));
    EXPECT_TRUE(printLayout(*printer, text, margins));
    const Pdf pdf = read(path("missing/out.pdf"));
    ASSERT_EQ(pdf.words.size(), 1U);
    EXPECT_NEAR(pdf.words[0].top, margins.top, 2);
}

TEST_F(OnPaper, TheBoxGivesItsTextOrSelectionInItsOwnFontAndAlignment) {
    box_.setText("first\r\nsecond");
    box_.setAlignment(Qt::AlignRight);
    desk().setPrinter(printerTo(path("out.pdf")));
    EXPECT_FALSE(PrintText(box_, margins, PrintedPart::selection));
    EXPECT_TRUE(PrintText(box_, margins, PrintedPart::whole));
    const Pdf pdf = read(path("out.pdf"));
    ASSERT_EQ(pdf.words.size(), 2U);
    for (const Word& word : pdf.words) EXPECT_NEAR(word.right, desk().printer().ScaleWidth() - margins.right, 2);
    desk().printer().setFont(box_.Font());
    EXPECT_NEAR(pdf.words[1].right - pdf.words[1].left, desk().printer().TextWidth("second"), 2);

    auto typewriter = std::make_unique<Typewriter>();
    typewriter->ribbon = 1;
    desk().setPrinter(std::move(typewriter));
    desk().willAnswer(vbOK);
    EXPECT_FALSE(PrintText(box_, margins, PrintedPart::whole)) << "it fails in the middle";
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(notPrinted));
}

TEST_F(OnPaper, TheEditorPrintsADocumentForEachCopyUnlessTheDialogIsCancelled) {
    const auto row = [](const char* lyric) { return LyricRow{"000000001", "Am", lyric, {}}; };
    gSongName = "Été";
    gLyrics = {row("Walking "), row(" * "), row(""), row("down"), {}};
    desk().willPrintTo({});
    frmLyrics->cmdPrint.setValue(true);
    EXPECT_EQ(frmLyrics->txtLyrics.Text(), "ÉTÉ\r\n\r\nWalking \r\n\r\n\r\n\r\ndown\r\n\r\n\r\n\r\n");
    desk().willPrintTo(path("missing/out.pdf"), 3);
    for (int copy = 0; copy < 3; ++copy) desk().willAnswer(vbOK);
    frmLyrics->cmdPrint.setValue(true);
    EXPECT_THAT(desk().takeBoxes(), ElementsAre(notPrinted, notPrinted, notPrinted));
    desk().willPrintTo(path("out.pdf"));
    frmLyrics->cmdPrint.setValue(true);
    QStringList words;
    for (const Word& word : read(path("out.pdf")).words) words << word.text;
    EXPECT_EQ(words, (QStringList{"ÉTÉ", "Walking", "down"}));
}

}  // namespace
}  // namespace lyrebrook
