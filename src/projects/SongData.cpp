#include "projects/SongData.h"

#include "platform/base/Numbers.h"
#include "platform/files/ProfileFile.h"
#include "platform/files/Text.h"
#include "shell/modConfig.h"
#include "shell/modINI.h"

namespace lyrebrook {
namespace {

const QString section = QStringLiteral("ProjectData");

bool isDropped(QChar character, qsizetype position) {
    if (character == u'+') return position > 0;
    return QStringView(u"-()'%$#*!^~@&./\\?,:;`=<>[]{}").contains(character);
}

}  // namespace

QString StrToDbStr(const QString& text) {
    if (text.size() <= 1) return {};
    toInt16(static_cast<double>(text.size()));  // the position counter is 16 bits wide
    QString safe;
    safe.reserve(text.size());
    for (qsizetype position = 0; position < text.size(); ++position) {
        if (!isDropped(text[position], position)) safe += text[position];
    }
    return safe;
}

QString fileSafeTitle(const QString& title) {
    return trimBlanks(StrToDbStr(title));
}

QString songDataPath(const QString& title) {
    return gProjectsFolder + fileSafeTitle(title) + QStringLiteral("_songData") + QStringLiteral(".xon");
}

bool isSongDataFile(const QString& fileName) {
    return fileName.contains(u"_songData");
}

void writeSongData(const QString& path, const SongData& song) {
    const ProfileTransaction allOrNothing(path);
    writeProfileValue(section, QStringLiteral("projectName"), song.projectName, path);
    writeProfileValue(section, QStringLiteral("projectCategory"), song.projectCategory, path);
    writeProfileValue(section, QStringLiteral("VoiceTrackOffset"), QString::number(song.voiceTrackOffset), path);
}

SongData readSongTexts(const QString& path) {
    return {.projectName = readProfileValue(section, QStringLiteral("projectName"), {}, path),
            .projectCategory = readProfileValue(section, QStringLiteral("projectCategory"), {}, path)};
}

std::int32_t readVoiceTrackOffset(const QString& path) {
    const QString text = readProfileValue(section, QStringLiteral("VoiceTrackOffset"), {}, path);
    return text.isEmpty() ? 0 : textToInt16(text.toStdString());
}

}  // namespace lyrebrook
