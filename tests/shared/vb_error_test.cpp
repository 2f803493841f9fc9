// The standard error texts and the raising of errors.
#include "shared/vb_error.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "shared/error_texts.h"

namespace tarrowin {
namespace {

TEST(ErrorTexts, TableIsSortedWithoutDoubles) {
  const auto table = errorTexts();
  for (std::size_t index = 1; index < table.size(); ++index) {
    EXPECT_LT(table[index - 1].number, table[index].number);
  }
}

TEST(ErrorTexts, VisualBasicNumbers) {
  EXPECT_EQ(standardErrorText(5), "Invalid procedure call or argument");
  EXPECT_EQ(standardErrorText(6), "Overflow");
  EXPECT_EQ(standardErrorText(52), "Bad file name or number");
  EXPECT_EQ(standardErrorText(76), "Path not found");
  EXPECT_EQ(standardErrorText(429), "ActiveX component can't create object");
  EXPECT_EQ(standardErrorText(481), "Invalid picture");
}

TEST(ErrorTexts, NameReplacesThePlaceholder) {
  EXPECT_EQ(standardErrorText(2102, "frmMain"),
            "The form name 'frmMain' is misspelled or refers to a form that doesn't exist.");
}

TEST(ErrorTexts, WithoutNameTheQuotesStayEmpty) {
  EXPECT_EQ(standardErrorText(2102),
            "The form name '' is misspelled or refers to a form that doesn't exist.");
}

TEST(ErrorTexts, NameWithPlaceholderCharacterIsNotReplacedAgain) {
  EXPECT_EQ(standardErrorText(2489, "a|b"), "The object 'a|b' isn't open.");
}

TEST(ErrorTexts, DaoTextKeepsItsDoubleBlank) {
  EXPECT_EQ(
      standardErrorText(3078, "T"),
      "The Microsoft Jet database engine cannot find the input table or query 'T'.  Make sure "
      "it exists and that its name is spelled correctly.");
}

TEST(ErrorTexts, HresultsAreSigned) {
  EXPECT_EQ(standardErrorText(kErrAutomationFail), "Unspecified error");
  EXPECT_EQ(standardErrorText(-2147467259), "Unspecified error");
  EXPECT_EQ(standardErrorText(-2147023174), "The RPC server is unavailable.");
  EXPECT_EQ(standardErrorText(-2147417848),
            "The object invoked has disconnected from its clients.");
}

TEST(ErrorTexts, UnknownNumbersOnBothSidesOfTheTable) {
  const std::string unknown = "Application-defined or object-defined error";
  EXPECT_EQ(standardErrorText(INT32_MIN), unknown);
  EXPECT_EQ(standardErrorText(0), unknown);
  EXPECT_EQ(standardErrorText(1000), unknown);
  EXPECT_EQ(standardErrorText(INT32_MAX, "x"), unknown);
}

TEST(Raise, ThrowsNumberAndText) {
  try {
    raise(2601, "Orders");
    FAIL() << "nothing raised";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 2601);
    EXPECT_EQ(error.description(), "You don't have permission to read 'Orders'.");
    EXPECT_STREQ(error.what(), error.description().c_str());
  }
}

}  // namespace
}  // namespace tarrowin
