#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {

/// Number of the run-time error that `action` ends with, 0 when it ends well.
std::int32_t errorOf(auto action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

/// A folder of its own for each test.
class FilesTest : public testing::Test {
  protected:
    QString path(const QString& name) const { return folder_.filePath(name); }
    QStringList names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QString holding(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return path(name);
    }
    QByteArray bytesOf(const QString& name) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

  private:
    QTemporaryDir folder_;
};

}  // namespace lyrebrook
