#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/sound/WaveFile.h"
#include "support/CrankedStudio.h"

namespace lyrebrook {

/// A test at a desk of its own, in a folder of its own.
class Studio : public testing::Test {
  protected:
    Studio() : studio_(folder_.path()) {}

    ScriptedDesktop& desk() { return studio_.desk(); }
    VirtualCard& card() { return studio_.card(); }
    QString path(const QString& relative) const { return studio_.path(relative); }
    void crank(std::chrono::milliseconds time) { studio_.crank(time); }
    bool crankUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
        return studio_.crankUntil(done, limit);
    }

    /// Puts a wave in the songs folder.
    void giveWave(const QString& name, std::span<const StereoFrame> frames) {
        writeWaveFile(path(QStringLiteral("songs/") + name).toStdString(), frames);
    }

  private:
    QTemporaryDir folder_;
    CrankedStudio studio_;
};

}  // namespace lyrebrook
