// The rules that turn lines of VBA into lines of Visual Basic, as one table for both kinds of code.
#pragma once

#include <span>
#include <string_view>

#include "codeconv/code_text.h"

namespace tarrowin {

// How a rule looks at a line. All tests are case-sensitive, on the physical line as it stands, and
// know nothing of strings or comments.
enum class LineTest {
  kEmpty,
  kStartsWith,
  kIs,         // the whole line
  kTrimmedIs,  // the whole line without the blanks at its ends
  kContains,
};

// What becomes of a line that matches.
enum class LineAction {
  kNotListed,             // the rule is not in this list: the line goes on to the next one
  kDrop,                  // nothing is written
  kKeep,                  // the line as it is
  kKeepAndBlank,          // the line, then an empty line
  kComment,               // "' " and the line
  kCommentTwice,          // the same, two times
  kOpenDatabase3Blanks,   // Set x = OpenDatabase("...")   '
  kOpenDatabase1Blank,    // Set x = OpenDatabase("...") '
  kKeepAndDotted,         // the line, then the line with its first "!" as "."
  kKeepDottedAndComment,  // the same, and the last line once more as comment
  kDoCmd,                 // by method
  kFormLoad,              // the line, then the generated statements
  kFormOpen,              // a header of Form_Initialize, then the generated statements
  kDoubleClick,           // a header without the argument
};

struct CodeRule {
  LineTest test;
  std::string_view text;
  std::string_view butNot;  // a line that contains this too goes on to the next rule; may be empty
  LineAction module;
  LineAction form;

  LineAction action(CodeKind kind) const { return kind == CodeKind::kModule ? module : form; }
};

// The rules in order of testing; only the first that matches is applied. A line that matches none
// is kept.
std::span<const CodeRule> codeRules();

// Whether the rule's test holds for the line, whatever the kind of code.
bool matches(const CodeRule& rule, std::string_view line);

}  // namespace tarrowin
