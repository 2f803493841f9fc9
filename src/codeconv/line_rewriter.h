// Turns one line of VBA, strCodeLine, into the lines of Visual Basic that its rule tells.
#pragma once

#include <functional>

#include "codeconv/code_rules.h"
#include "codeconv/code_text.h"
#include "codeconv/rule_finder.h"
#include "core/conversion_state.h"

namespace tarrowin {

// The headers of form code behind which generated statements belong.
enum class FormHeader { kOpen, kLoad };

class LineRewriter {
 public:
  // Called behind a header of form code, once it is printed.
  using AfterHeader = std::function<void(FormHeader)>;

  LineRewriter(CodeKind kind, ConversionState& state, PrintLine print,
               AfterHeader afterHeader = {});

  // Prints what becomes of strCodeLine, from no line to three. Raises 5, with nothing printed, for
  // a line from which the variable of "Set x = CurrentDb" cannot be cut.
  void rewrite();

  // Prints what becomes of strCodeLine under a rule; nullptr keeps it.
  void apply(const CodeRule* rule);

 private:
  void openDatabase(std::string_view ending);
  void printDotted();
  void dropDoubleClickArgument();
  void comment();

  CodeKind kind_;
  ConversionState& state_;
  PrintLine print_;
  AfterHeader afterHeader_;
  RuleFinder finder_;
};

}  // namespace tarrowin
