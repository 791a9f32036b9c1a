#pragma once

#include <QString>
#include <chrono>
#include <functional>

#include "platform/sound/cards/VirtualCard.h"
#include "support/ScriptedDesktop.h"
#include "support/Sound.h"

namespace lyrebrook {

/// A whole program at a desk of its own: the program folder, a scripted desktop, and a virtual card turned by hand, so
/// that sound and timers go on only in `crank`, in step with each other. Makes the globals as they are at the start of
/// the program, and takes everything away at its end. One at a time.
class CrankedStudio {
  public:
    /// Uses `folder` as the program's folder, and makes the data folders in it.
    explicit CrankedStudio(const QString& folder);
    ~CrankedStudio();
    CrankedStudio(const CrankedStudio&) = delete;
    CrankedStudio& operator=(const CrankedStudio&) = delete;

    ScriptedDesktop& desk() { return desk_; }
    VirtualCard& card() { return *card_; }

    /// Full path of something in the program's folder.
    QString path(const QString& relative) const { return folder_ + u'/' + relative; }

    /// Lets card and timers run for that long, ten milliseconds at a time.
    void crank(std::chrono::milliseconds time);

    /// The same until `done`, at most for `limit`. False when that was not enough.
    bool crankUntil(const std::function<bool()>& done, std::chrono::milliseconds limit);

  private:
    QString folder_;
    ScriptedDesktop desk_;
    VirtualCard* card_;  // the sound system's
};

/// Frames of a wave file of ours: what lies behind its header of 44 bytes.
Sound framesOf(const QString& path);

}  // namespace lyrebrook
