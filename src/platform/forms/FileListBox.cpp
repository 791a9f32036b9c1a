#include "platform/forms/FileListBox.h"

#include "platform/forms/Folder.h"

namespace lyrebrook {

FileListBox::FileListBox(QWidget* container) : ListBox(container) {}

void FileListBox::setPath(const QString& path) {
    const QDir folder = readableFolder(path);
    path_ = folder.path();
    fill();
}

void FileListBox::setPattern(const QString& pattern) {
    pattern_ = pattern;
    fill();
}

void FileListBox::fill() {
    Clear();
    if (path_.isEmpty()) return;
    const QStringList patterns = pattern_.split(u';', Qt::SkipEmptyParts);
    for (const QString& name : QDir(path_).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase))
        if (QDir::match(patterns, name)) AddItem(name);
}

}  // namespace lyrebrook
