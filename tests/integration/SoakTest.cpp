#include <gtest/gtest.h>

#include <iostream>

#include "integration/support/Soak.h"

namespace lyrebrook {
namespace {

TEST(Soak, MinutesOfPlayingAndRecordingNeitherDriftNorGrow) {
    Soak soak(ServerKind::pulseAudio);
    const SoakRound first = soak.round();
    SoakRound last;
    for (int minute = 2; minute <= 3; ++minute) last = soak.round();
    std::cout << "SOAK " << last << ", underruns " << soak.underruns() << '\n';
    EXPECT_NEAR(last.behindAtEnd, first.behindAtStart, 1.0);
    EXPECT_LT(last.residentKilobytes - first.residentKilobytes, 4096);
}

}  // namespace
}  // namespace lyrebrook
