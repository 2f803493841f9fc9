// The fast search for a line's rule against the plain walk over the table.
#include "codeconv/rule_finder.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace tarrowin::test {
namespace {

const CodeRule* firstInTable(CodeKind kind, std::string_view line) {
  for (const CodeRule& rule : codeRules()) {
    if (rule.action(kind) != LineAction::kNotListed && matches(rule, line)) return &rule;
  }
  return nullptr;
}

// Lines put together of the texts of the table, whole, cut short or with a wrong character, of
// blanks, and of single characters of any code.
class RandomLines {
 public:
  std::string next() {
    std::string line;
    for (int pieces = below(6); pieces > 0; --pieces) line += piece();
    return line;
  }

 private:
  int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  std::string piece() {
    const CodeRule& rule =
        codeRules()[static_cast<std::size_t>(below(static_cast<int>(codeRules().size())))];
    std::string text(below(4) == 0 && !rule.butNot.empty() ? rule.butNot : rule.text);
    switch (below(8)) {
      case 0:
        return std::string(static_cast<std::size_t>(below(4)), ' ');
      case 1:
        return std::string(1, static_cast<char>(below(256)));
      case 2:
        return text.substr(0, static_cast<std::size_t>(below(static_cast<int>(text.size()) + 1)));
      case 3:
        return text.substr(static_cast<std::size_t>(below(static_cast<int>(text.size()) + 1)));
      case 4:
        if (!text.empty())
          text[static_cast<std::size_t>(below(static_cast<int>(text.size())))] ^= 0x20;
        return text;
      default:
        return text;
    }
  }

  std::mt19937 random_{20031};
};

TEST(RuleFinder, AgreesWithTheTableOnRandomLines) {
  const RuleFinder modules(CodeKind::kModule), forms(CodeKind::kForm);
  RandomLines lines;
  std::vector<int> hits(codeRules().size());
  int kept = 0;
  for (int i = 0; i < 300000; ++i) {
    const std::string line = lines.next();
    const CodeRule* inModules = firstInTable(CodeKind::kModule, line);
    const CodeRule* inForms = firstInTable(CodeKind::kForm, line);
    ASSERT_EQ(modules.find(line), inModules) << line;
    ASSERT_EQ(forms.find(line), inForms) << line;
    if (inForms == nullptr) ++kept;
    for (const CodeRule* rule : {inModules, inForms}) {
      if (rule != nullptr) ++hits[static_cast<std::size_t>(rule - codeRules().data())];
    }
  }
  // Every rule was met, and so was a line without one.
  for (std::size_t i = 0; i < hits.size(); ++i) EXPECT_GT(hits[i], 0) << codeRules()[i].text;
  EXPECT_GT(kept, 1000);
}

TEST(RuleFinder, TheTableFitsItsSets) {
  EXPECT_LE(codeRules().size(), 32u);
  for (const CodeRule& rule : codeRules()) {
    EXPECT_TRUE(rule.test == LineTest::kEmpty || rule.text.size() >= 3) << rule.text;
  }
}

TEST(RuleFinder, FindsATextAtTheVeryEndOfAMegabyte) {
  const RuleFinder finder(CodeKind::kForm);
  std::string line(1 << 20, 'D');
  EXPECT_EQ(finder.find(line), nullptr);
  line += "Delete";
  ASSERT_NE(finder.find(line), nullptr);
  EXPECT_EQ(finder.find(line)->text, "Delete");
}

}  // namespace
}  // namespace tarrowin::test
