#include "platform/files/App.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>
#include <filesystem>

#include "platform/files/FileContent.h"

namespace lyrebrook {
namespace {

/// Folders that the program expects, whether or not something is shipped for them.
const QStringList& programFolders() {
    static const QStringList folders = {QStringLiteral("songs"),           QStringLiteral("projects"),
                                        QStringLiteral("tracks/Version1"), QStringLiteral("songTemplate"),
                                        QStringLiteral("playlists"),       QStringLiteral("database"),
                                        QStringLiteral("support"),         QStringLiteral("DemoCD"),
                                        QStringLiteral("DemoCD_Example"),  QStringLiteral("templates/cdRedPlayer")};
    return folders;
}

// Only the two that hold a person's work decide: someone who clears out another folder keeps his songs in sight.
bool holdsSongs(const QString& folder) {
    for (const QString& name : {QStringLiteral("/songs"), QStringLiteral("/projects")}) {
        const QFileInfo data(folder + name);
        if (!data.isDir() || !data.isWritable()) return false;
    }
    return true;
}

/// Installed files can be read-only, which a person's copies must not be. A second name of a folder stays one.
void copyTree(const std::filesystem::path& from, const std::filesystem::path& to) {
    namespace fs = std::filesystem;
    fs::create_directories(to);
    for (const auto& entry : fs::directory_iterator(from)) {
        const fs::path target = to / entry.path().filename();
        if (entry.is_symlink() && entry.is_directory()) {
            fs::copy_symlink(entry.path(), target);
        } else if (entry.is_directory()) {
            copyTree(entry.path(), target);
        } else if (entry.is_regular_file()) {
            fs::copy_file(entry.path(), target);
            fs::permissions(target, fs::perms::owner_write, fs::perm_options::add);
        }
    }
}

void fill(const QString& folder, const QString& installedData) {
    for (const QString& name : programFolders()) {
        const QString shipped = installedData + u'/' + name;
        const std::filesystem::path target = nativePath(folder + u'/' + name);
        std::filesystem::create_directories(target);
        if (QFileInfo(shipped).isDir()) copyTree(nativePath(shipped), target);
    }
}

/// Filled under another name first, so that a start that was cut off is made anew by the next one.
void makeUserFolder(const DataPlaces& places) {
    const std::filesystem::path unfinished = nativePath(places.userFolder + QStringLiteral(".new"));
    std::error_code ignored;
    std::filesystem::remove_all(unfinished, ignored);
    try {
        fill(places.userFolder + QStringLiteral(".new"), places.installedData);
        std::filesystem::rename(unfinished, nativePath(places.userFolder));
    } catch (const std::filesystem::filesystem_error&) {
        std::filesystem::remove_all(unfinished, ignored);
    }
}

DataPlaces placesOfThisProgram() {
    std::error_code none;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", none);
    const QString folder = QFile::decodeName(executable.parent_path().c_str());
    const QString shared = QDir::cleanPath(folder + QStringLiteral("/../share/lyrebrook"));
    const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {.executableFolder = folder,
            .installedData = QFileInfo(shared).isDir() ? shared : folder,
            .userFolder = userData + QStringLiteral("/lyrebrook")};
}

QString& currentPath() {
    static QString path;
    return path;
}

}  // namespace

QString dataFolder(const DataPlaces& places) {
    if (holdsSongs(places.executableFolder)) return places.executableFolder;
    if (!QFileInfo(places.userFolder).isDir()) makeUserFolder(places);
    return places.userFolder;
}

QString App::Path() {
    if (currentPath().isEmpty()) setPath(dataFolder(placesOfThisProgram()));
    return currentPath();
}

void App::setPath(const QString& path) {
    currentPath() = QDir::cleanPath(path);
}

}  // namespace lyrebrook
