// The calls of DoCmd that have an equivalent in Visual Basic, as a table; all others become
// comments.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "codeconv/code_text.h"

namespace tarrowin {

// On which lines with its method a row applies.
enum class DoCmdCondition {
  kAlways,
  kCommented,  // the line without its indent begins with an apostrophe
  kNamed,      // it holds a first quoted text that is not empty
  kUnnamed,    // it holds none, or an empty one
  kHoldsTrue,  // it contains "True"
};

// In the lines to write {L} stands for the source line, untouched, and {M} for its first quoted
// text as Visual Basic name.
struct DoCmdRow {
  std::string_view method;
  DoCmdCondition condition;
  std::string_view moduleLine;
  std::string_view formLine;
  std::string_view secondModuleLine;
  std::string_view secondFormLine;
};

// Written for a line that is not there.
inline constexpr std::string_view kNoLine{};
// The method of the last row, which takes any.
inline constexpr std::string_view kAnyMethod = "*";

// The rows in order of testing; only the first that applies is used.
std::span<const DoCmdRow> doCmdRows();

// The word between "DoCmd." and the first blank of a line without its indent: "OpenForm" of
// DoCmd.OpenForm "frmA". The whole text when a blank stands before the "DoCmd.", or no blank at
// all; the empty text without a "DoCmd.".
std::string ExtractDoCmdMethod(std::string_view text);

// Writes what becomes of a line that holds "DoCmd."; its method is left in strDoCmdMethod.
void convertDoCmdLine(CodeKind kind, std::string_view line, std::string& strDoCmdMethod,
                      const PrintLine& print);

}  // namespace tarrowin
