#pragma once

#include <QString>
#include <array>

namespace lyrebrook {

/// A song's or a photograph's file: bare name and full path. A slot without a file says `notSelected` in both.
struct MediaFile {
    QString name;
    QString path;

    /// Whether the pages show it. They go by the name: nobody looks for the file.
    bool isSelected() const;
};

inline constexpr QStringView notSelected = u"Not selected";

/// The workset that comes with the program. It is never written and never deleted.
inline constexpr QStringView demoWorkset = u"Demo Workset";

struct WorksetSong {
    QString title;
    MediaFile file;
};

struct WorksetPhoto {
    QString description;
    MediaFile file;
};

/// All that the demo CD shows, as it was typed.
struct Workset {
    QString artistName, age, postal, email, phone, country, owner, cv;
    std::array<WorksetSong, 3> songs;
    std::array<WorksetPhoto, 3> photos;
};

/// The texts that may have several lines as the pages and the file hold them: "<br>" for each line break.
struct WorksetHtml {
    QString postalHtml, cvHtml;
    std::array<QString, 3> photoDescHtml;
};
WorksetHtml htmlOf(const Workset& workset);

/// Writes a profile file, key by key; of the texts with line breaks it takes those in `html`. A write that fails goes
/// unnoticed and leaves the old file.
void writeWorkset(const QString& path, const QString& title, const Workset& workset, const WorksetHtml& html);

/// Reads it back; a key that is missing gives an empty text. A value longer than a profile file can tell is cut.
Workset readWorkset(const QString& path);

/// Whether a file of the projects folder is a workset, by its bare name. Song data files share the folder.
bool isWorksetFile(const QString& fileName);

/// The title of a workset by its bare file name.
QString worksetTitle(const QString& fileName);

}  // namespace lyrebrook
