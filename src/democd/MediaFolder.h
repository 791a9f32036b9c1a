#pragma once

#include <QString>
#include <functional>

#include "democd/Workset.h"

namespace lyrebrook {

/// Folder of the site's songs and photographs, inside the site's own, which ends in a separator.
QString mediaFolderPath(const QString& siteFolder);

/// Makes the media folder anew and copies the workset's files into it, each under its bare name; a file that isn't
/// there is left out. Nothing outside is touched: a media folder that is a link is taken away and not followed, and a
/// bare name that leads elsewhere is refused. The pages spell the folder "demo1", so where the disk tells that from the
/// folder's own name, a link of that name stands beside it.
///
/// RuntimeErrors as those of FileSystemObject, and `badFileName`. The files before the failing one stay, and no half of
/// one. `betweenPieces` runs every few megabytes, and what it changes in the workset's origin is too late.
void rebuildMediaFolder(const QString& siteFolder, const Workset& workset, const std::function<void()>& betweenPieces);

}  // namespace lyrebrook
