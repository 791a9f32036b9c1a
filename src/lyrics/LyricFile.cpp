#include "lyrics/LyricFile.h"

#include <QSet>
#include <QStringList>

#include "platform/base/Numbers.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystemObject.h"
#include "platform/files/Text.h"

namespace lyrebrook {
namespace {

const QString& separator() {
    static const QString text = QStringLiteral("::");
    return text;
}

LyricEntry entryOf(const QString& line) {
    const QStringList fields = line.split(separator());
    if (fields.size() < 3) throw RuntimeError(RuntimeErrorNumber::subscriptOutOfRange, "Subscript out of range");
    const QString position = convertToNineDigit(fields[0]);
    textToInt32(position.toStdString());
    return {position, fields[1], fields[2]};
}

/// The positions that are taken. Looking through the store for each line would take seconds for a long file.
QSet<QString> positionsIn(const LyricRows& rows) {
    QSet<QString> positions;
    for (const LyricRow& row : rows) positions.insert(cellText(row, positionColumn));
    return positions;
}

}  // namespace

void loadLyrics(LyricRows& rows, const QString& path) {
    TextStream stream = FileSystemObject().OpenTextFile(path, IOMode::forReading, true);
    QSet<QString> taken = positionsIn(rows);
    while (!stream.AtEndOfStream()) {
        const QString line = stream.ReadLine();
        if (trimBlanks(line).isEmpty()) continue;
        const LyricEntry entry = entryOf(line);
        if (taken.contains(entry.position)) continue;
        appendLyric(rows, entry);
        taken.insert(entry.position);
    }
    stream.Close();
}

QString lyricLines(const LyricRows& rows) {
    QString lines;
    for (std::size_t row = 0; row + 1 < rows.size(); ++row) {
        lines += trimBlanks(cellText(rows[row], positionColumn)) + separator() +
                 trimBlanks(cellText(rows[row], chordColumn)) + separator() +
                 trimBlanks(cellText(rows[row], lyricColumn)) + QStringLiteral("\r\n");
    }
    return lines;
}

}  // namespace lyrebrook
