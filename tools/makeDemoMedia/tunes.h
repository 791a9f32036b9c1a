#pragma once

#include "composer/Arrangement.h"

namespace lyrebrook {

/// The songs of the example site, some half a minute each.
Arrangement lanternStreet();     // a waltz for guitar and flute
Arrangement harbourInTheRain();  // a slow one for piano and clarinet
Arrangement morningTrain();      // a quick one for steel strings and harmonica

}  // namespace lyrebrook
