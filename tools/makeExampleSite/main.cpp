// Makes a site from a workset file, as the wizard does in the program folder PROGRAM: makeExampleSite WORKSET PROGRAM
// TEMPLATES SITE. The folder SITE must exist.
#include <QDir>
#include <QFile>
#include <cstdio>

#include "democd/MediaFolder.h"
#include "democd/SiteGenerator.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"

namespace lyrebrook {
namespace {

QString folderText(const char* argument) {
    return QDir(QFile::decodeName(argument)).absolutePath() + u'/';
}

/// Whether everything could be read and written.
bool makeSite(const QString& worksetPath, const QString& templates, const QString& site) {
    const Workset workset = readWorkset(worksetPath);
    bool whole = true;
    const SiteGenerator generator(templates, site, [&](const QString& message) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
        whole = false;
    });
    generator.createSite(workset, htmlOf(workset));
    rebuildMediaFolder(site, workset, {});
    return whole;
}

}  // namespace
}  // namespace lyrebrook

int main(int argumentCount, char** arguments) {
    using namespace lyrebrook;
    if (argumentCount != 5) {
        std::fputs("usage: makeExampleSite WORKSET PROGRAM TEMPLATES SITE\n", stderr);
        return 2;
    }
    App::setPath(folderText(arguments[2]));
    try {
        return makeSite(QFile::decodeName(arguments[1]), folderText(arguments[3]), folderText(arguments[4])) ? 0 : 1;
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "%s: %s\n", arguments[4], error.what());
        return 1;
    }
}
