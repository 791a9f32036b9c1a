// What a change of a song of 5,000 lyric lines costs, what each tick pays for the next line, and what the file's
// longest costs to load and sort.
#include "lyrics/FrmLyrics.h"
#include "lyrics/LyricFile.h"
#include "platform/files/FileContent.h"
#include "recorder/LyricTimeline.h"
#include "shell/modConfig.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

constexpr int songLines = 5000;
constexpr int bytesBetweenLines = 100000;

LyricRows song(int lines) {
    LyricRows rows = emptyLyrics();
    for (int i = 0; i < lines; ++i) {
        const QString position = QString::number(i * bytesBetweenLines);
        appendLyric(rows, {convertToNineDigit(position), QStringLiteral("Am"), QStringLiteral("Line of the song")});
    }
    return rows;
}

/// A line in the middle of the song: inserted, sorted, saved and listed, as the recorder does.
double changeCost() {
    gLyrics = song(songLines);
    frmLyrics->updateLyricList();
    return costOf([] {
               frmLyrics->addLyricToArray(QString::number(songLines / 2 * bytesBetweenLines + 1), {},
                                          QStringLiteral("New"));
               frmLyrics->keepChange();
           })
        .clock.count();
}

/// Microseconds a call, through a song whose lines follow each other closely.
double advanceCost(const LyricRows& rows) {
    constexpr std::int32_t bytesATick = 3528;
    constexpr std::int32_t ticks = songLines * (bytesBetweenLines / bytesATick);
    LyricTimeline timeline(rows);
    timeline.seekLyric(0);
    const Cost cost = costOf([&] {
        for (std::int32_t tick = 0; tick < ticks; ++tick) timeline.advanceLyric(tick * bytesATick);
    });
    return cost.clock.count() * 1000 / ticks;
}

/// As many lines as the store holds, from the last to the first.
double loadCost(const QString& path) {
    LyricRows rows = emptyLyrics();
    return costOf([&] {
               loadLyrics(rows, path);
               sortLyrics(rows, positionColumn);
           })
        .clock.count();
}

void measure() {
    const BenchStudio desk;
    gSongName = QStringLiteral("Long Song");
    gLyricFile = gSongsFolder + QStringLiteral("Long Song.txt");
    frmLyrics.Show();
    besideFigure({.name = "lyric-change", .reference = "what a change of 5,000 lines may take", .unit = "ms"}, 100,
                 changeCost);
    const LyricRows rows = song(songLines);
    besideFigure({.name = "lyric-advance", .reference = "what a tick may pay for the next line", .unit = "us"}, 5,
                 [&rows] { return advanceCost(rows); });
    constexpr int mostLines = 32767;
    QByteArray content;
    for (int i = mostLines; i > 0; --i) content += QByteArray::number(i) + "::Am::Line of the song\r\n";
    const QString file = gSongsFolder + QStringLiteral("Longest.txt");
    replaceFile(file, content);
    besideFigure({.name = "lyric-load", .reference = "what 32,767 unsorted lines may take", .unit = "ms"}, 500,
                 [&file] { return loadCost(file); });
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
