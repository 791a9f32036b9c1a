#pragma once

#include "composer/Arrangement.h"

namespace lyrebrook {

/// The song that ships with the program: "Demo 1", in D major, a minute for a singer to try. The vibraphone answers
/// where a singer would breathe.
Arrangement demoSong();

}  // namespace lyrebrook
