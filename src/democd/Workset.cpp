#include "democd/Workset.h"

#include "platform/files/App.h"
#include "platform/files/ProfileFile.h"
#include "shell/modINI.h"

namespace lyrebrook {
namespace {

constexpr qsizetype endingLength = 4;  // of ".xon"

QString withBreakTags(QString text) {
    const QString tag = QStringLiteral("<br>");
    return text.replace(QStringLiteral("\r\n"), tag).replace(u'\r', tag).replace(u'\n', tag);
}

QString withLineBreaks(QString text) {
    return text.replace(QStringLiteral("<br>"), QStringLiteral("\r\n"));
}

/// The workset that ships can't know where it will stand: it says "@PROGRAM_FOLDER@" where the program's folder
/// belongs.
QString withProgramFolder(QString path) {
    return path.replace(QStringLiteral("@PROGRAM_FOLDER@"), App::Path());
}

/// One workset file, seen key by key. Key names compare without case: the photographs' are written and read in two
/// spellings.
class File {
  public:
    explicit File(const QString& path) : path_(path) {}

    void write(const QString& key, const QString& value) const { writeProfileValue(section, key, value, path_); }
    QString read(const QString& key) const { return readProfileValue(section, key, {}, path_); }
    QString readLines(const QString& key) const { return withLineBreaks(read(key)); }
    QString readPath(const QString& key) const { return withProgramFolder(read(key)); }

  private:
    static inline const QString section = QStringLiteral("Project Info");

    QString path_;
};

QString songKey(std::size_t index, const char* what) {
    return QStringLiteral("Song%1").arg(index + 1) + QString::fromLatin1(what);
}

QString photoKey(const char* what, std::size_t index) {
    return QString::fromLatin1(what) + QString::number(index + 1);
}

}  // namespace

bool MediaFile::isSelected() const {
    return !name.isEmpty() && name != notSelected;
}

WorksetHtml htmlOf(const Workset& workset) {
    return {
        .postalHtml = withBreakTags(workset.postal),
        .cvHtml = withBreakTags(workset.cv),
        .photoDescHtml = {withBreakTags(workset.photos[0].description), withBreakTags(workset.photos[1].description),
                          withBreakTags(workset.photos[2].description)}};
}

void writeWorkset(const QString& path, const QString& title, const Workset& workset, const WorksetHtml& html) {
    const ProfileTransaction allOrNothing(path);
    const File file(path);
    file.write(QStringLiteral("projectName"), title);
    file.write(QStringLiteral("artistName"), workset.artistName);
    file.write(QStringLiteral("Age"), workset.age);
    file.write(QStringLiteral("Postal"), html.postalHtml);
    file.write(QStringLiteral("Email"), workset.email);
    file.write(QStringLiteral("Phone"), workset.phone);
    file.write(QStringLiteral("Country"), workset.country);
    file.write(QStringLiteral("Owner"), workset.owner);
    file.write(QStringLiteral("CV"), html.cvHtml);
    for (std::size_t i = 0; i < workset.songs.size(); ++i) {
        file.write(songKey(i, "Title"), workset.songs[i].title);
        file.write(songKey(i, "Path"), workset.songs[i].file.name);
        file.write(songKey(i, "PathLong"), workset.songs[i].file.path);
    }
    for (std::size_t i = 0; i < workset.photos.size(); ++i) {
        file.write(photoKey("PhotoDesc", i), html.photoDescHtml[i]);
        file.write(photoKey("photoPath", i), workset.photos[i].file.name);
        file.write(photoKey("photoPathLong", i), workset.photos[i].file.path);
    }
}

Workset readWorkset(const QString& path) {
    const File file(path);
    Workset workset{.artistName = file.read(QStringLiteral("artistName")),
                    .age = file.read(QStringLiteral("Age")),
                    .postal = file.readLines(QStringLiteral("Postal")),
                    .email = file.read(QStringLiteral("Email")),
                    .phone = file.read(QStringLiteral("Phone")),
                    .country = file.read(QStringLiteral("Country")),
                    .owner = file.read(QStringLiteral("Owner")),
                    .cv = file.readLines(QStringLiteral("CV")),
                    .songs = {},
                    .photos = {}};
    for (std::size_t i = 0; i < workset.songs.size(); ++i) {
        workset.songs[i] = {file.read(songKey(i, "Title")),
                            {file.read(songKey(i, "Path")), file.readPath(songKey(i, "PathLong"))}};
    }
    for (std::size_t i = 0; i < workset.photos.size(); ++i) {
        workset.photos[i] = {file.readLines(photoKey("PhotoDesc", i)),
                             {file.read(photoKey("PhotoPath", i)), file.readPath(photoKey("PhotoPathLong", i))}};
    }
    return workset;
}

bool isWorksetFile(const QString& fileName) {
    const QString name = fileName.toUpper();
    return name.endsWith(QStringLiteral(".XON")) && !name.endsWith(QStringLiteral("_SONGDATA.XON"));
}

QString worksetTitle(const QString& fileName) {
    return fileName.chopped(endingLength);
}

}  // namespace lyrebrook
