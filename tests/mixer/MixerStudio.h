#pragma once

#include <gmock/gmock.h>

#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "mixer/modMixer.h"
#include "support/Studio.h"

namespace lyrebrook {

/// A desk at which the mixer screen is opened; opening it waits until it goes.
class MixerStudio : public Studio {
  protected:
    /// Opens the screen, does `work` while it waits, and unloads it.
    void whileOpen(const std::function<void()>& work) {
        desk().whileWaiting([work] {
            work();
            frmVolumeMixer.Unload();
        });
        showMasterMixer();
        EXPECT_FALSE(gMixerOpen);
    }

    /// Lets the change messages come.
    void hearMessages() { desk().DoEvents(); }

    static std::vector<std::string> captions(const LineRow& row) {
        std::vector<std::string> texts;
        for (int i = 0; i < row.panels.Count(); ++i) {
            if (row.panels[i].Visible()) texts.push_back(row.panels[i].Caption().toStdString());
        }
        return texts;
    }
};

}  // namespace lyrebrook
