// The Variant and its conversions.
#include "shared/value.h"

#include <gtest/gtest.h>

#include "shared/expect_error.h"

namespace tarrowin {
namespace {

const Value kNothing{ObjectRef{}};

TEST(ValueToText, EveryKind) {
  EXPECT_EQ(toText(Value()), "");
  EXPECT_EQ(toText(true), "True");
  EXPECT_EQ(toText(false), "False");
  EXPECT_EQ(toText(-12), "-12");
  EXPECT_EQ(toText(1e20), "1E+20");
  EXPECT_EQ(toText("a b"), "a b");
}

TEST(ValueToText, NullBytesAndObjects) {
  EXPECT_RAISES(94, toText(Value::Null{}));
  EXPECT_RAISES(13, toText(Bytes{1, 2}));
  EXPECT_RAISES(91, toText(kNothing));
}

TEST(DateText, ZeroPartsAreLeftOut) {
  EXPECT_EQ(toText(Date{0}), "12:00:00 AM");
  EXPECT_EQ(toText(Date{0.5}), "12:00:00 PM");
  EXPECT_EQ(toText(Date{1}), "12/31/1899");
  EXPECT_EQ(toText(Date{36526}), "1/1/2000");
  EXPECT_EQ(toText(Date{36526.25}), "1/1/2000 6:00:00 AM");
  EXPECT_EQ(toText(Date{36526 + 13.0 / 24 + 5.0 / 1440 + 9.0 / 86400}), "1/1/2000 1:05:09 PM");
}

TEST(DateText, LeapDays) {
  EXPECT_EQ(toText(Date{36585}), "2/29/2000");
  EXPECT_EQ(toText(Date{36586}), "3/1/2000");
  EXPECT_EQ(toText(Date{61}), "3/1/1900");  // 1900 had no leap day
  EXPECT_EQ(toText(Date{60}), "2/28/1900");
}

TEST(DateText, NegativeDatesCountTimeForward) {
  EXPECT_EQ(toText(Date{-1}), "12/29/1899");
  EXPECT_EQ(toText(Date{-1.25}), "12/29/1899 6:00:00 AM");
  EXPECT_EQ(toText(Date{-0.25}), "6:00:00 AM");
}

TEST(DateText, RoundingUpReachesTheNextDay) { EXPECT_EQ(toText(Date{36526.999999}), "1/2/2000"); }

TEST(DateText, EndsOfTheCalendar) {
  EXPECT_EQ(toText(Date{-657434}), "1/1/100");
  EXPECT_EQ(toText(Date{2958465}), "12/31/9999");
  EXPECT_RAISES(6, toText(Date{2958466}));
  EXPECT_RAISES(6, toText(Date{-657435}));
}

TEST(ValueToNumber, EveryKind) {
  EXPECT_EQ(toLong(Value()), 0);
  EXPECT_EQ(toLong(true), -1);
  EXPECT_EQ(toLong(2.5), 2);
  EXPECT_EQ(toLong(" 17 "), 17);
  EXPECT_EQ(toLong(Date{36526.6}), 36527);
  EXPECT_EQ(toDouble("1e3"), 1000);
  EXPECT_EQ(toDouble(Date{0.25}), 0.25);
  EXPECT_EQ(toInteger("&HFFFF"), -1);
  EXPECT_EQ(toLong("&HFFFF"), 65535);
}

TEST(ValueToNumber, Failures) {
  EXPECT_RAISES(94, toLong(Value::Null{}));
  EXPECT_RAISES(94, toInteger(Value::Null{}));
  EXPECT_RAISES(94, toDouble(Value::Null{}));
  EXPECT_RAISES(13, toLong(""));
  EXPECT_RAISES(13, toLong("x"));
  EXPECT_RAISES(13, toDouble(Bytes{1}));
  EXPECT_RAISES(91, toLong(kNothing));
  EXPECT_RAISES(6, toInteger(32768));
  EXPECT_RAISES(6, toLong(3e9));
}

TEST(ValueToBoolean, NumbersAndWords) {
  EXPECT_TRUE(toBoolean(0.1));
  EXPECT_TRUE(toBoolean(-1));
  EXPECT_FALSE(toBoolean(0));
  EXPECT_FALSE(toBoolean(Value()));
  EXPECT_TRUE(toBoolean("TRUE"));
  EXPECT_FALSE(toBoolean("False"));
  EXPECT_TRUE(toBoolean("2"));
  EXPECT_RAISES(13, toBoolean("yes"));
  EXPECT_RAISES(94, toBoolean(Value::Null{}));
}

TEST(ValueToObject, OtherKindsAndNothing) {
  EXPECT_RAISES(424, toObject(5));
  EXPECT_RAISES(424, toObject(Value()));
  EXPECT_RAISES(91, toObject(kNothing));
}

TEST(Joined, NullIsNothing) {
  EXPECT_EQ(joined(Value::Null{}), "");
  EXPECT_EQ(joined(3), "3");
  EXPECT_RAISES(13, joined(Bytes{1}));
}

TEST(ValueEquality, SameKindAndContent) {
  EXPECT_EQ(Value(3), Value(3));
  EXPECT_FALSE(Value(3) == Value(3.0));
  EXPECT_FALSE(Value() == Value(Value::Null{}));
  EXPECT_EQ(Value(Bytes{1, 2}), Value(Bytes{1, 2}));
  EXPECT_FALSE(Value(Bytes{1, 2}) == Value(Bytes{1, 3}));
  EXPECT_EQ(kNothing, Value(ObjectRef{}));
  EXPECT_FALSE(kNothing == Value(Bytes{}));
}

}  // namespace
}  // namespace tarrowin
