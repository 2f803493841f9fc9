// The pass over the line. Every text of the table has three characters or more; a rule is a
// candidate when the first three of its text stand somewhere in the line.
#include "codeconv/rule_finder.h"

#include <bit>
#include <cstddef>

namespace tarrowin {

namespace {
std::size_t code(char character) { return static_cast<unsigned char>(character); }
}  // namespace

RuleFinder::RuleFinder(CodeKind kind) {
  RuleSet bit = 1;
  for (const CodeRule& rule : codeRules()) {
    if (rule.action(kind) == LineAction::kNotListed) {
      // Without a bit the rule is never a candidate.
    } else if (rule.test == LineTest::kEmpty) {
      forEmptyLine_ |= bit;
    } else {
      byCharacter_[code(rule.text.at(0))].first |= bit;
      byCharacter_[code(rule.text.at(1))].second |= bit;
      byCharacter_[code(rule.text.at(2))].third |= bit;
    }
    bit <<= 1;
  }
}

RuleFinder::RuleSet RuleFinder::candidates(std::string_view line) const {
  if (line.empty()) return forEmptyLine_;
  // The rules whose first one or two characters end at the character before.
  RuleSet one = 0, two = 0, three = 0;
  for (const char character : line) {
    const Places& places = byCharacter_[code(character)];
    three |= two & places.third;
    two = one & places.second;
    one = places.first;
  }
  return three;
}

const CodeRule* RuleFinder::find(std::string_view line) const {
  for (RuleSet left = candidates(line); left != 0; left &= left - 1) {
    const CodeRule& rule = codeRules()[static_cast<std::size_t>(std::countr_zero(left))];
    if (matches(rule, line)) return &rule;
  }
  return nullptr;
}

}  // namespace tarrowin
