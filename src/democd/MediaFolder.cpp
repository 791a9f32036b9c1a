#include "democd/MediaFolder.h"

#include <QFileInfo>
#include <filesystem>

#include "platform/base/FileErrors.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileSystemObject.h"

namespace lyrebrook {
namespace {

const QString folderName = QStringLiteral("Demo1");
const QString nameInPages = QStringLiteral("demo1");

bool isLink(const QString& path) {
    return QFileInfo(path).isSymLink();
}

/// On a disk that doesn't tell case apart, the name in the pages finds the folder itself, which is no link and stays. A
/// disk without links can do no better; anything else of that name is the person's own.
void linkNameInPages(const QString& siteFolder) {
    const QString link = siteFolder + nameInPages;
    if (isLink(link)) FileSystemObject().DeleteFile(link);
    if (QFileInfo::exists(link)) return;
    std::error_code error;
    std::filesystem::create_directory_symlink(nativePath(folderName), nativePath(link), error);
    const bool disksWithoutLinks = error == std::errc::operation_not_permitted || error == std::errc::not_supported ||
                                   error == std::errc::function_not_supported;
    if (error && !disksWithoutLinks) throw fileErrorOf(error.value());
}

/// A workset may come from elsewhere. On some of the machines that a CD is put into, "\" separates too.
void refuseToLeaveFolder(const QString& name) {
    const bool leaves = name.contains(u'/') || name.contains(u'\\') || name == u"." || name == u"..";
    if (leaves) throw RuntimeError(RuntimeErrorNumber::badFileName, "Bad file name: " + name.toStdString());
}

}  // namespace

QString mediaFolderPath(const QString& siteFolder) {
    return siteFolder + folderName;
}

void rebuildMediaFolder(const QString& siteFolder, const Workset& workset, const std::function<void()>& betweenPieces) {
    const FileSystemObject fso;
    const QString folder = mediaFolderPath(siteFolder);
    if (fso.FolderExists(folder) || isLink(folder)) fso.DeleteFolder(folder, false);
    if (!fso.FolderExists(folder)) fso.CreateFolder(folder);
    linkNameInPages(siteFolder);

    const auto copy = [&](const MediaFile& file) {
        if (!fso.FileExists(file.path)) return;
        refuseToLeaveFolder(file.name);
        fso.CopyFile(file.path, folder + u'/' + file.name, betweenPieces);
    };
    for (std::size_t i = 0; i < workset.songs.size(); ++i) {
        copy(workset.songs[i].file);
        copy(workset.photos[i].file);
    }
}

}  // namespace lyrebrook
