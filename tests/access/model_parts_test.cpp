// The small parts of the tree: folded names, interned names, property lists, lazy values.
#include <gtest/gtest.h>

#include "access/model/database_model.h"

namespace tarrowin {
namespace {

TEST(CaseFoldingTest, FoldsTheLettersOfTheCodePage) {
  const CaseFolding western{CodePage(1252)};
  EXPECT_TRUE(
      western.equal("STRASSE \xC4\xD6\xDC \x8A\x8E\x9F", "strasse \xE4\xF6\xFC \x9A\x9E\xFF"));
  EXPECT_FALSE(western.equal("\xD7", "\xF7"));  // the signs of multiplication and division
  const CaseFolding cyrillic{CodePage(1251)};
  EXPECT_TRUE(cyrillic.equal("\xC0\xDF\xA8", "\xE0\xFF\xB8"));
  const CaseFolding greek{CodePage(1253)};
  EXPECT_TRUE(greek.equal("\xC1\xA2", "\xE1\xDC"));
  const CaseFolding utf8{CodePage(CodePage::kUtf8)};
  EXPECT_TRUE(utf8.equal("Abc", "aBC"));
  EXPECT_FALSE(utf8.equal("\xC3\x84", "\xC3\xA4"));
}

TEST(CaseFoldingTest, StartsWith) {
  const CaseFolding folding{CodePage()};
  EXPECT_TRUE(folding.startsWith("FORM.x", "Form."));
  EXPECT_FALSE(folding.startsWith("For", "Form."));
  EXPECT_FALSE(folding.equal("Form", "Form."));
}

TEST(NameTableTest, SpellingsOfOneNameShareTheirKey) {
  NameTable names{CaseFolding(CodePage())};
  const NameId first = names.intern("BackColor"), second = names.intern("BACKCOLOR");
  EXPECT_NE(first, second);
  EXPECT_EQ(names.intern("BackColor"), first);
  EXPECT_EQ(names.keyOf(second), first);
  EXPECT_EQ(names.spelling(second), "BACKCOLOR");
  EXPECT_EQ(names.find("backcolor"), first);
  EXPECT_EQ(names.find("BackColors"), kNoName);
}

TEST(NameTableTest, MembersHaveTheirNumbers) {
  EXPECT_EQ(memberNames().find(""), static_cast<NameId>(Member::kDefault));
  EXPECT_EQ(memberNames().find("eof"), static_cast<NameId>(Member::kEOF));
  EXPECT_EQ(memberNames().find("SENDMESSAGEA"), static_cast<NameId>(Member::kSendMessageA));
}

TEST(NameTableTest, GrowsWithoutLosingNames) {
  NameTable names{CaseFolding(CodePage())};
  std::vector<NameId> ids;
  for (int i = 0; i < 5000; ++i) ids.push_back(names.intern("Name" + std::to_string(i)));
  for (int i = 0; i < 5000; ++i)
    EXPECT_EQ(names.find("NAME" + std::to_string(i)), ids[static_cast<std::size_t>(i)]);
}

TEST(PropertyBagTest, KeepsItsOrderBelowAndBeyondTheScanLimit) {
  NameTable names{CaseFolding(CodePage())};
  PropertyBag bag;
  for (std::int32_t i = 0; i < 300; ++i)
    bag.set(names, names.intern("P" + std::to_string(i)), Value(i));
  bag.set(names, names.intern("p7"), Value("replaced"));
  ASSERT_EQ(bag.size(), 300u);
  EXPECT_EQ(bag.valueAt(7).read(""), Value("replaced"));
  EXPECT_EQ(names.spelling(bag.nameAt(7)), "P7");
  for (std::int32_t i = 8; i < 300; ++i)
    EXPECT_EQ(bag.valueOf(names.find("P" + std::to_string(i)))->read(""), Value(i));
  EXPECT_EQ(bag.valueOf(names.intern("Other")), nullptr);
  EXPECT_EQ(bag.find(kNoName), PropertyBag::kNotFound);
}

TEST(LazyTest, LoadsOnceAndAsksAgainAfterAFailure) {
  int calls = 0;
  const Lazy<int> lazy(std::function<int()>([&calls] {
    if (++calls == 1) raise(3049);
    return 42;
  }));
  EXPECT_THROW(lazy.get(), VbError);
  EXPECT_EQ(lazy.get(), 42);
  EXPECT_EQ(lazy.get(), 42);
  EXPECT_EQ(calls, 2);
}

TEST(CountLinesTest, EndsAreCrLfOrLf) {
  EXPECT_EQ(countLines(""), 0);
  EXPECT_EQ(countLines("a"), 1);
  EXPECT_EQ(countLines("a\r\n"), 1);
  EXPECT_EQ(countLines("a\nb\r\nc"), 3);
  EXPECT_EQ(countLines("\r\n\r\n"), 2);
}

}  // namespace
}  // namespace tarrowin
