#pragma once

#include "platform/forms/Label.h"
#include "recorder/SoundNotice.h"

namespace lyrebrook {

class DirectSoundCaptureBuffer8;

/// Makes a label the line of a notice: it keeps its place while it says nothing, and no screen grows with its words.
void makeNoticeLine(Label& label);

/// Has the notice look at the installed card and at the capture of a recording that runs, or null, and shows what it
/// tells.
void showNotice(SoundNotice& notice, const DirectSoundCaptureBuffer8* recording, Label& label);

}  // namespace lyrebrook
