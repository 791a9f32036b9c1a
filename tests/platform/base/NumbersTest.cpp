#include "platform/base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/base/RuntimeError.h"

namespace lyrebrook {
namespace {

std::int32_t errorOf(auto conversion) {
    try {
        conversion();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Numbers, AHalfGoesToTheEvenNeighbourOnBothSidesOfZero) {
    const std::pair<double, std::int16_t> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},       {-0.5, 0},
                                                     {-1.5, -2}, {-2.5, -2}, {2.4999999, 2}, {-2.51, -3}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(toInt16(value), rounded) << value;
}

TEST(Numbers, WhatDoesNotFitIsAnOverflow) {
    EXPECT_EQ(toInt16(32767.49), 32767);
    EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    for (const double value : {32767.5, -32769.0, std::nan(""), 1e300}) {
        EXPECT_EQ(errorOf([=] { toInt16(value); }), 6) << value;
    }
    EXPECT_EQ(errorOf([] { toInt32(2147483648.0); }), 6);
}

TEST(Numbers, ATextIsANumberOnlyAsAWhole) {
    EXPECT_EQ(textToInt32("  +120 \r\n"), 120);
    EXPECT_EQ(textToInt32("1e3"), 1000);
    for (const char* text : {"", "  ", "12 34", "0x10", "inf", "ten", "+-3"}) {
        EXPECT_EQ(errorOf([=] { textToInt32(text); }), 13) << text;
    }
    EXPECT_EQ(errorOf([] { textToInt16("40000"); }), 6);
    EXPECT_EQ(errorOf([] { textToInt32("1e999"); }), 6);
}

}  // namespace
}  // namespace lyrebrook
