// Rounding half to even, and overflow of 16- and 32-bit numbers.
#include "shared/vb_number.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "shared/expect_error.h"

namespace tarrowin {
namespace {

TEST(RoundHalfEven, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(roundHalfEven(0.5), 0);
  EXPECT_EQ(roundHalfEven(1.5), 2);
  EXPECT_EQ(roundHalfEven(2.5), 2);
  EXPECT_EQ(roundHalfEven(-0.5), 0);
  EXPECT_EQ(roundHalfEven(-1.5), -2);
  EXPECT_EQ(roundHalfEven(-2.5), -2);
  EXPECT_EQ(roundHalfEven(32766.5), 32766);
}

TEST(RoundHalfEven, OthersGoToTheNearest) {
  EXPECT_EQ(roundHalfEven(0.49999999999999994), 0);
  EXPECT_EQ(roundHalfEven(2.500001), 3);
  EXPECT_EQ(roundHalfEven(-2.500001), -3);
  EXPECT_EQ(roundHalfEven(9007199254740993.0), 9007199254740992.0);
}

TEST(RoundHalfEven, AgreesWithTheProcessorOnManyValues) {
  for (int eighths = -4000; eighths <= 4000; ++eighths) {
    const double value = eighths / 8.0;
    EXPECT_EQ(roundHalfEven(value), std::nearbyint(value)) << value;
  }
}

TEST(ToInt16, RoundsBeforeTheRangeIsTested) {
  EXPECT_EQ(toInt16(32767.49), 32767);
  EXPECT_EQ(toInt16(-32768.5), -32768);
  EXPECT_RAISES(6, toInt16(32767.5));
  EXPECT_RAISES(6, toInt16(-32768.51));
}

TEST(ToInt16, SecondsEstimateOverflowsBeyond2820Queries) {
  EXPECT_EQ(toInt16(2820 * 0.11618 * 100.0), 32763);
  EXPECT_RAISES(6, toInt16(2821 * 0.11618 * 100.0));
}

TEST(ToInt32, LimitsAndNoNumbers) {
  EXPECT_EQ(toInt32(2147483647.4), 2147483647);
  EXPECT_EQ(toInt32(-2147483648.0), INT32_MIN);
  EXPECT_RAISES(6, toInt32(2147483647.5));
  EXPECT_RAISES(6, toInt32(std::numeric_limits<double>::infinity()));
  EXPECT_RAISES(6, toInt32(std::numeric_limits<double>::quiet_NaN()));
}

TEST(Int16Arithmetic, RaisesInsteadOfWrapping) {
  EXPECT_EQ(addInt16(32766, 1), 32767);
  EXPECT_RAISES(6, addInt16(32767, 1));
  EXPECT_EQ(subtractInt16(-32767, 1), -32768);
  EXPECT_RAISES(6, subtractInt16(-32768, 1));
  EXPECT_EQ(multiplyInt16(-256, 128), -32768);
  EXPECT_RAISES(6, multiplyInt16(256, 128));
  EXPECT_RAISES(6, multiplyInt16(-32768, -1));
}

TEST(Int32Arithmetic, RaisesInsteadOfWrapping) {
  EXPECT_EQ(addInt32(2147483646, 1), 2147483647);
  EXPECT_RAISES(6, addInt32(2147483647, 1));
  EXPECT_RAISES(6, subtractInt32(INT32_MIN, 1));
  EXPECT_EQ(multiplyInt32(-65536, 32768), INT32_MIN);
  EXPECT_RAISES(6, multiplyInt32(65536, 32768));
}

}  // namespace
}  // namespace tarrowin
