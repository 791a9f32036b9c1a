#include <gtest/gtest.h>

#include <iostream>

#include "integration/support/Soak.h"

namespace lyrebrook {
namespace {

class SoakOnServers : public testing::TestWithParam<ServerKind> {};

TEST_P(SoakOnServers, MinutesOfPlayingAndRecordingNeitherDriftNorGrow) {
    Soak soak(GetParam());
    const SoakRound first = soak.round();
    SoakRound last;
    for (int minute = 2; minute <= 3; ++minute) last = soak.round();
    std::cout << "SOAK " << nameOf(GetParam()) << " " << last << ", underruns " << soak.underruns() << ", lost frames "
              << soak.lostInput() << '\n';
    EXPECT_NEAR(last.behindAtEnd, first.behindAtStart, 1.0);
    EXPECT_LT(last.residentKilobytes - first.residentKilobytes, 4096);
}

INSTANTIATE_TEST_SUITE_P(Servers, SoakOnServers, bothServers, serverName);

}  // namespace
}  // namespace lyrebrook
