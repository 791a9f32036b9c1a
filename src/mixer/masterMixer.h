#pragma once

namespace lyrebrook {

/// The ways into the mixer screen and out of it. Program's thread.

/// What a button that leads to the mixer does: brings the open screen to the front, or opens it.
void enterMasterMixer();

/// Opens the screen, modeless, and returns when it is unloaded: events go on meanwhile, and other screens stay live.
/// Returns at once when the mixer can't be opened.
void showMasterMixer();

/// Loads the screen, opens the mixer, makes a panel for each line and shows the screen. When the mixer can't be opened
/// it says so and leaves the screen loaded and hidden.
void openMasterMixer();

/// Closes what `openMasterMixer` opened.
void closeMasterMixer();

}  // namespace lyrebrook
