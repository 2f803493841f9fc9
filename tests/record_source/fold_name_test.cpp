// Names in capital and small letters of the alphabets that Access databases are written in.
#include "access/record_source/fold_name.h"

#include <gtest/gtest.h>

namespace tarrowin {
namespace {

TEST(FoldName, AlphabetsOfTheCodePages) {
  EXPECT_EQ(foldName("ORDER Details_1"), "order details_1");
  EXPECT_EQ(foldName("ÀÉÖØÞŸ"), "àéöøþÿ");
  EXPECT_EQ(foldName("ĄČĘĹŁŃŇŐŞŮŹŽ"), "ąčęĺłńňőşůźž");
  EXPECT_EQ(foldName("ΑΒΩΆΈΏ"), "αβωάέώ");
  EXPECT_EQ(foldName("ЁЇАЯҐ"), "ёїаяґ");
}

TEST(FoldName, SmallLettersAndLettersWithoutPartnersStay) {
  const std::string small = "abz àßÿ÷× ąĸŉž αςω абя €漢";
  EXPECT_EQ(foldName(small), small);
}

TEST(FoldName, MalformedBytesStay) {
  const std::string bytes = "A\xC3";
  EXPECT_EQ(foldName(bytes), "a\xC3");
  EXPECT_EQ(foldName("\xC3(\x80\xFF"), "\xC3(\x80\xFF");
}

}  // namespace
}  // namespace tarrowin
