#include "pictures.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QPixmap>

namespace lyrebrook {
namespace {

/// As a desktop at 200 percent shows it.
QPixmap doubled(QMainWindow& window) {
    constexpr int scale = 2;
    QPixmap picture(window.size() * scale);
    picture.setDevicePixelRatio(scale);
    window.render(&picture);
    return picture;
}

}  // namespace

bool savePicture(Form& form, const QString& folder, const QString& file) {
    QCoreApplication::processEvents();
    QMainWindow& window = form.window();
    return window.grab().save(folder + u'/' + file) && doubled(window).save(folder + QStringLiteral("/200/") + file);
}

}  // namespace lyrebrook
