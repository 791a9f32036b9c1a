#include "platform/files/TextStream.h"

#include "platform/files/FilesFixture.h"
#include "platform/files/Text.h"

namespace lyrebrook {
namespace {

class TextStreamTest : public FilesTest {
  protected:
    QStringList linesOf(const QByteArray& bytes) const {
        TextStream stream = TextStream::openForReading(holding("text", bytes));
        QStringList lines;
        while (!stream.AtEndOfStream()) lines << stream.ReadLine();
        EXPECT_EQ(errorOf([&] { stream.ReadLine(); }), 62);
        return lines;
    }
};

TEST_F(TextStreamTest, EveryKindOfLineEndEndsALine) {
    const std::pair<QByteArray, QStringList> cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r\n\r\n", {"a", ""}},
        {"a\nb\rc\r\nd", {"a", "b", "c", "d"}},
        {"\n\r", {"", ""}},
        {"\r\r\n", {"", ""}},
        {QByteArray("a\0b\nc", 5), {QString("a") + QChar(0) + "b", "c"}},
        {"\xEF\xBB\xBFmarked\n", {"marked"}},
    };
    for (const auto& [bytes, lines] : cases) EXPECT_EQ(linesOf(bytes), lines) << bytes.toPercentEncoding().data();
}

TEST_F(TextStreamTest, ALineThatIsNotUtf8IsOfTheOldCodePage) {
    EXPECT_EQ(linesOf("caf\xC3\xA9\ncaf\xE9 \x80 \x93\x81\n\xE2\x82\xAC"),
              (QStringList{u"café"_qs, u"café € “\u0081"_qs, u"€"_qs}));
}

TEST_F(TextStreamTest, AllThatIsLeftKeepsItsLineEnds) {
    TextStream stream = TextStream::openForReading(holding("text", "one\r\ntwo\r\n\ncaf\xE9\rcaf\xC3\xA9"));
    stream.ReadLine();
    EXPECT_EQ(stream.ReadAll(), u"two\r\n\ncafé\rcafé"_qs);
    EXPECT_EQ(errorOf([&] { stream.ReadAll(); }), 62);
}

TEST_F(TextStreamTest, AFileThatDoesNotTellItsSizeIsReadWhole) {
    TextStream stream = TextStream::openForReading("/proc/self/status");
    EXPECT_TRUE(stream.ReadLine().startsWith("Name:"));
}

TEST_F(TextStreamTest, WhatIsWrittenStandsThereAtTheCloseAndIsReadBack) {
    TextStream stream = TextStream::openForWriting(path("text"));
    stream.WriteLine(u"Zoë"_qs);
    stream.Write("tail ");
    stream.WriteLine();
    EXPECT_FALSE(QFileInfo::exists(path("text")));
    stream.Close();
    EXPECT_EQ(bytesOf("text"), "Zo\xC3\xAB\r\ntail \r\n");
    EXPECT_EQ(linesOf(bytesOf("text")), (QStringList{u"Zoë"_qs, "tail "}));
}

TEST_F(TextStreamTest, AStreamThatIsNotClosedLeavesTheOldText) {
    holding("text", "old");
    TextStream::openForWriting(path("text")).Write("new");
    EXPECT_EQ(bytesOf("text"), "old");
    EXPECT_EQ(names(), QStringList{"text"});
}

TEST(Text, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(trimBlanks("  \ta b\n "), "\ta b\n");
    EXPECT_EQ(trimBlanks(u" \u00A0 "_qs), u"\u00A0"_qs);
    EXPECT_EQ(trimBlanks("   "), "");
}

}  // namespace
}  // namespace lyrebrook
