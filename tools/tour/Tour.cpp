#include "Tour.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>
#include <cmath>
#include <stdexcept>

#include "pictures.h"

namespace lyrebrook {
namespace {

int peakOf(std::span<const StereoFrame> frames) {
    int peak = 0;
    for (const StereoFrame& frame : frames) peak = std::max({peak, std::abs(frame.left), std::abs(frame.right)});
    return peak;
}

}  // namespace

Tour::Tour(const QString& folder)
    : folder_(QFileInfo(folder).absoluteFilePath()),
      screens_(folder_ + QStringLiteral("/screens/")),
      studio_(folder_ + QStringLiteral("/Lyrebrook")),
      report_(folder_ + QStringLiteral("/report.txt")) {
    require(report_.open(QIODevice::WriteOnly), QStringLiteral("the report can be written"));
}

QString Tour::nextPicture(const QString& name) {
    return QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QChar(u'0')).arg(name);
}

void Tour::picture(Form& form, const QString& name) {
    require(savePicture(form, screens_, nextPicture(name)), QStringLiteral("a picture of ") + name);
}

void Tour::picture(const QByteArray& png, const QString& name) {
    QFile file(screens_ + nextPicture(name));
    require(file.open(QIODevice::WriteOnly) && file.write(png) == png.size(), QStringLiteral("a picture of ") + name);
}

void Tour::say(const QString& line) {
    report_.write(line.toUtf8() + '\n');
    report_.flush();
    QTextStream(stdout) << line << Qt::endl;
}

void Tour::sayWave(const QString& path) {
    const auto frames = framesOf(path);
    const int peak = peakOf(frames);
    require(peak > 0, relative(path) + QStringLiteral(" is there and not silent"));
    say(QStringLiteral("  %1: %2 s, %3 bytes, peak %4 dB")
            .arg(relative(path))
            .arg(static_cast<double>(frames.size()) / framesPerSecond, 0, 'f', 3)
            .arg(QFileInfo(path).size())
            .arg(20 * std::log10(peak / 32768.0), 0, 'f', 1));
}

void Tour::require(bool holds, const QString& expectation) {
    if (!holds) throw std::runtime_error("expected: " + expectation.toStdString());
}

QString Tour::relative(const QString& path) const {
    return QDir(folder_).relativeFilePath(path);
}

}  // namespace lyrebrook
