// The formats "##", "00" and "nn:ss".
#include "shared/vb_format.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

constexpr double kSecond = 1.0 / 86400;

TEST(FormatWhole, ZeroIsTheEmptyText) {
  EXPECT_EQ(formatWhole(0), "");
  EXPECT_EQ(formatWhole(0.49), "");
  EXPECT_EQ(formatWhole(-0.3), "");
}

TEST(FormatWhole, HalvesGoAwayFromZero) {
  EXPECT_EQ(formatWhole(0.5), "1");
  EXPECT_EQ(formatWhole(12.5), "13");
  EXPECT_EQ(formatWhole(-12.5), "-13");
}

TEST(FormatWhole, PercentagesOfABatch) {
  EXPECT_EQ(formatWhole(1 / 3.0 * 100), "33");
  EXPECT_EQ(formatWhole(2 / 3.0 * 100), "67");
  EXPECT_EQ(formatWhole(3 / 3.0 * 100), "100");
  EXPECT_EQ(formatWhole(1 / 500.0 * 100), "");
}

TEST(FormatWhole, FifteenDigitsDecideTheHalf) { EXPECT_EQ(formatWhole(23 / 40.0 * 100), "58"); }

TEST(FormatWhole, LargeNumbersHaveNoExponent) {
  EXPECT_EQ(formatWhole(1e20), "100000000000000000000");
}

TEST(FormatTwoDigits, AtLeastTwo) {
  EXPECT_EQ(formatTwoDigits(0), "00");
  EXPECT_EQ(formatTwoDigits(9), "09");
  EXPECT_EQ(formatTwoDigits(10), "10");
  EXPECT_EQ(formatTwoDigits(123), "123");
  EXPECT_EQ(formatTwoDigits(-5), "-05");
  EXPECT_EQ(formatTwoDigits(INT32_MIN), "-2147483648");
}

TEST(FormatMinutesSeconds, Differences) {
  EXPECT_EQ(formatMinutesSeconds(Date{0}), "00:00");
  EXPECT_EQ(formatMinutesSeconds(Date{61 * kSecond}), "01:01");
  EXPECT_EQ(formatMinutesSeconds(Date{3599 * kSecond}), "59:59");
}

TEST(FormatMinutesSeconds, HoursAreLeftOut) {
  EXPECT_EQ(formatMinutesSeconds(Date{3605 * kSecond}), "00:05");
}

TEST(FormatMinutesSeconds, DifferenceOfTwoClockTimesIsExactToTheSecond) {
  for (int start = 0; start < 86400; start += 977) {
    const double difference = (start + 61) * kSecond - start * kSecond;
    EXPECT_EQ(formatMinutesSeconds(Date{difference}), "01:01") << start;
  }
}

TEST(FormatMinutesSeconds, RoundsToTheSecond) {
  EXPECT_EQ(formatMinutesSeconds(Date{59.6 * kSecond}), "01:00");
  EXPECT_EQ(formatMinutesSeconds(Date{86399.7 * kSecond}), "00:00");
}

TEST(FormatMinutesSeconds, AcrossMidnightTheAbsoluteFractionShows) {
  const double start = 86390 * kSecond;  // 10 seconds before midnight
  const double end = 5 * kSecond;
  EXPECT_EQ(formatMinutesSeconds(Date{end - start}), "59:45");
}

}  // namespace
}  // namespace tarrowin
