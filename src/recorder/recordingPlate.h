#pragma once

#include "platform/forms/Label.h"

namespace lyrebrook {

/// Makes a label the plate that tells a recording's state: light, so that red and black words are readable on it, not
/// seen at first, and keeping its place while it blinks.
void makeRecordingPlate(Label& label);

}  // namespace lyrebrook
