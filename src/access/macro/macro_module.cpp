// The frame of such a module, its functions, and the blocks of conditions.
// See macro_module.h.
#include "access/macro/macro_module.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "access/macro/action_statement.h"
#include "access/macro/code_lines.h"
#include "access/macro/vb_expression.h"
#include "access/macro/vb_names.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::string_view kModulePrefix = "Converted Macro- ";
constexpr std::string_view kRule = "'------------------------------------------------------------";
constexpr std::string_view kAsAbove = "...";

struct CodeLine {
  int level;
  bool isComment;
  std::string text;
};

struct MacroFunction {
  std::string name;  // as the sheet has it
  std::vector<CodeLine> body;
  bool usesContext = false;
};

// Turns the rows of one macro into the body of its function.
class BodyWriter {
 public:
  BodyWriter(MacroFunction& function, UniqueNames& names) : function_(function), names_(names) {}

  // A row without condition and action changes nothing: its comment belongs to what comes next.
  void add(const MacroAction& row) {
    const std::string condition = Trim(row.condition);
    if (condition.empty() && Trim(row.action).empty()) {
      if (!row.comment.empty()) waiting_.push_back(row.comment);
      return;
    }
    if (condition != kAsAbove) {
      endBlock();
      writeWaiting();
      if (!condition.empty()) beginBlock(condition);
    } else {
      writeWaiting();
    }
    if (!row.comment.empty()) comment(row.comment);
    if (!Trim(row.action).empty()) action(row);
  }

  void end() {
    endBlock();
    writeWaiting();
  }

 private:
  int level() const { return inBlock_ ? 2 : 1; }
  void comment(std::string text) { function_.body.push_back({level(), true, std::move(text)}); }
  void writeWaiting() {
    for (std::string& text : waiting_) comment(std::move(text));
    waiting_.clear();
  }

  void beginBlock(const std::string& condition) {
    VbExpression expression = vbExpression(condition);
    function_.usesContext |= expression.usesContext;
    for (const std::string& name : expression.called) names_.reserve(name);
    function_.body.push_back({1, false, "If (" + expression.text + ") Then"});
    inBlock_ = true;
  }
  void endBlock() {
    if (std::exchange(inBlock_, false)) function_.body.push_back({1, false, "End If"});
  }

  void action(const MacroAction& row) {
    ActionCode code = actionCode(row);
    function_.usesContext |= code.usesContext;
    for (const std::string& name : code.called) names_.reserve(name);
    for (std::string& text : code.comments) comment(std::move(text));
    for (std::string& line : code.statements)
      function_.body.push_back({level(), false, std::move(line)});
  }

  MacroFunction& function_;
  UniqueNames& names_;
  bool inBlock_ = false;
  std::vector<std::string> waiting_;  // comments
};

// Whether the rows before the first macro name make a function: where there is none, they are all
// that the macro has.
bool hasContents(std::span<const MacroAction> rows) {
  return std::ranges::any_of(rows, [](const MacroAction& row) { return row != MacroAction(); });
}

std::vector<MacroFunction> functionsOf(std::string_view macro, std::span<const MacroAction> rows,
                                       UniqueNames& names) {
  std::vector<MacroFunction> functions;
  for (std::size_t at = 0; at < rows.size() || functions.empty();) {
    const auto isNamed = [](const MacroAction& row) { return !Trim(row.macroName).empty(); };
    const bool named = at < rows.size() && isNamed(rows[at]);
    const auto rest = rows.subspan(at);
    const auto next = std::find_if(rest.begin() + (named ? 1 : 0), rest.end(), isNamed);
    const auto own = rest.first(static_cast<std::size_t>(next - rest.begin()));
    at += own.size();
    if (!named && at < rows.size() && !hasContents(own)) continue;

    MacroFunction& function = functions.emplace_back();
    function.name = macro;
    if (named) function.name += "_" + Trim(own.front().macroName);
    BodyWriter writer(function, names);
    for (const MacroAction& row : own) writer.add(row);
    writer.end();
  }
  return functions;
}

void appendFunction(std::string& text, const MacroFunction& function, const std::string& name) {
  const auto line = [&text](std::string_view content) {
    text += content;
    text += kCrLf;
  };
  line("");
  line(kRule);
  line("' " + name);
  line("'");
  line(kRule);
  line("Function " + name + "()");
  line("On Error GoTo " + name + "_Err");
  line("");
  if (function.usesContext) appendStatement(text, 1, "With CodeContextObject");
  for (const CodeLine& code : function.body)
    (code.isComment ? appendComment : appendStatement)(
        text, code.level + (function.usesContext ? 1 : 0), code.text);
  if (function.usesContext) appendStatement(text, 1, "End With");
  line("");
  line("");
  line(name + "_Exit:");
  line("    Exit Function");
  line("");
  line(name + "_Err:");
  line("    MsgBox Error$");
  line("    Resume " + name + "_Exit");
  line("");
  line("End Function");
}

}  // namespace

std::string macroModuleName(std::string_view macro) {
  return std::string(kModulePrefix) + std::string(macro);
}

std::string macroModuleText(std::string_view macro, std::span<const MacroAction> rows) {
  UniqueNames names;
  const std::vector<MacroFunction> functions = functionsOf(macro, rows, names);
  std::string text = "Option Compare Database\r\nOption Explicit\r\n";
  for (const MacroFunction& function : functions)
    appendFunction(text, function, names.unique(vbIdentifier(function.name)));
  return text;
}

}  // namespace tarrowin
