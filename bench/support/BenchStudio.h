#pragma once

#include <QString>
#include <QTemporaryDir>

#include "support/CrankedStudio.h"

namespace lyrebrook {

/// A program's folder for a benchmark, on the file system of the folder that it is started in, and the program at it.
/// Holds a song. Screens can be shown as soon as there is a QApplication.
class BenchStudio {
  public:
    BenchStudio();

    CrankedStudio& studio() { return studio_; }
    VirtualCard& card() { return studio_.card(); }

    /// Gives the song's track that much sound, a chord under noise, and returns its file.
    std::string giveTrack(int track, std::chrono::seconds length);

  private:
    QTemporaryDir folder_;
    CrankedStudio studio_;
};

}  // namespace lyrebrook
