// One line through the rules, for tests.
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "codeconv/line_rewriter.h"

namespace tarrowin::test {

using Lines = std::vector<std::string>;

// What a line becomes in a database at C:\d\x.mdb.
inline Lines rewritten(CodeKind kind, std::string_view line) {
  ConversionState state;
  state.mstrDbFullName = "C:\\d\\x.mdb";
  state.strCodeLine = line;
  Lines lines;
  LineRewriter rewriter(
      kind, state, [&](std::string_view text) { lines.emplace_back(text); }, [](FormHeader) {});
  rewriter.rewrite();
  return lines;
}

inline Lines inModule(std::string_view line) { return rewritten(CodeKind::kModule, line); }
inline Lines inForm(std::string_view line) { return rewritten(CodeKind::kForm, line); }

inline const Lines kGone = {};

// A line with what it becomes in either kind of code.
struct RuleCase {
  std::string line;
  Lines module;
  Lines form;
};

inline void PrintTo(const RuleCase& c, std::ostream* out) { *out << c.line; }

inline void expectRewritten(const RuleCase& c) {
  EXPECT_EQ(inModule(c.line), c.module);
  EXPECT_EQ(inForm(c.line), c.form);
}

}  // namespace tarrowin::test
