#include "platform/forms/DirListBox.h"

#include <QDir>
#include <QStyle>

#include "platform/forms/Folder.h"
#include "platform/forms/ListView.h"

namespace lyrebrook {

DirListBox::DirListBox(QWidget* container) : Control(new ListView(container)) {
    list().enterOpens = true;
    list().setIconSize(QSize(16, 16));
    list().opened = [this] { setPath(list().currentItem()->data(Qt::UserRole).toString()); };
}

ListView& DirListBox::list() const {
    return as<ListView>();
}

void DirListBox::setPath(const QString& path) {
    const QDir folder = readableFolder(path);
    if (folder.path() == path_) return;
    path_ = folder.path();
    fill(folder);
    Change.fire();
}

void DirListBox::fill(const QDir& folder) {
    list().clear();
    QDir above = folder;
    QList<QDir> chain{folder};
    while (above.cdUp()) chain.prepend(above);
    int depth = 0;
    for (const QDir& open : chain) add(open.path(), depth++);
    list().setCurrentRow(depth - 1);
    const auto closed = folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& entry : closed) add(entry.absoluteFilePath(), depth);
}

void DirListBox::add(const QString& path, int depth) {
    const QFileInfo folder(path);
    const QString name = folder.isRoot() ? path : folder.fileName();
    constexpr qsizetype blanksALevel = 3;
    auto* line = new QListWidgetItem(QString(depth * blanksALevel, u' ') + name, &list());
    const bool open = path_ == path || path_.startsWith(path + u'/') || folder.isRoot();
    line->setIcon(list().style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon));
    line->setData(Qt::UserRole, path);
    if (!folder.isReadable() || !folder.isExecutable()) line->setFlags(Qt::NoItemFlags);
}

}  // namespace lyrebrook
