#include "platform/forms/DriveListBox.h"

#include <QComboBox>
#include <QDir>
#include <QStorageInfo>

#include "platform/base/RuntimeError.h"
#include "platform/forms/Boundary.h"

namespace lyrebrook {
namespace {

bool isMountedForUser(const QString& root) {
    return root.startsWith(u"/media/") || root.startsWith(u"/run/media/") || root.startsWith(u"/mnt/");
}

QStringList drives() {
    QStringList result{QDir::rootPath(), QDir::homePath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (isMountedForUser(volume.rootPath())) result << volume.rootPath();
    result.removeDuplicates();
    return result;
}

}  // namespace

DriveListBox::DriveListBox(QWidget* container) : Control(new QComboBox(container)) {
    combo().addItems(drives());
    QObject::connect(&combo(), &QComboBox::activated, [this] { fromQt([this] { Change.fire(); }); });
}

QComboBox& DriveListBox::combo() const {
    return as<QComboBox>();
}

QString DriveListBox::Drive() const {
    return combo().currentText();
}

void DriveListBox::setDrive(const QString& drive) {
    const int index = combo().findText(drive);
    if (index < 0) throw RuntimeError(RuntimeErrorNumber::diskNotReady, "Disk not ready");
    if (index == combo().currentIndex()) return;
    combo().setCurrentIndex(index);
    Change.fire();
}

}  // namespace lyrebrook
