#include "lyrics/lyricSheet.h"

#include "platform/files/Text.h"

namespace lyrebrook {

QString lyricSheet(const QString& songName, const LyricRows& lyrics) {
    const QString lineAndGap = QStringLiteral("\r\n\r\n");
    QString sheet = songName.toUpper() + lineAndGap;
    for (const LyricRow& row : lyrics) {
        const QString lyric = cellText(row, lyricColumn);
        if (trimBlanks(lyric) != QStringLiteral("*")) sheet += lyric + lineAndGap;
    }
    return sheet;
}

}  // namespace lyrebrook
