// Finds the rule for a line: one pass over the line leaves the few rules whose text may occur in
// it, and only those are tested, in order.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "codeconv/code_rules.h"

namespace tarrowin {

class RuleFinder {
 public:
  explicit RuleFinder(CodeKind kind);

  // The first rule of the list that the line matches; nullptr when the line is to be kept.
  const CodeRule* find(std::string_view line) const;

 private:
  // Bit i stands for rule i of the table.
  using RuleSet = std::uint32_t;

  // The rules whose text has a character as its first, second and third.
  struct Places {
    RuleSet first = 0, second = 0, third = 0;
  };

  RuleSet candidates(std::string_view line) const;

  RuleSet forEmptyLine_ = 0;
  std::array<Places, 256> byCharacter_{};
};

}  // namespace tarrowin
