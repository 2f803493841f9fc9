// Fills the statements of the table of actions.
// See action_statement.h.
#include "access/macro/action_statement.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "access/macro/action_table.h"
#include "access/macro/vb_expression.h"
#include "access/macro/vb_literal.h"
#include "access/macro/vb_names.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// As designs hold it, and as the macro's sheet shows it.
bool isYes(std::string_view text) { return text == "-1" || UCase(text) == "YES"; }
bool isNo(std::string_view text) { return text == "0" || UCase(text) == "NO"; }

// The action's name and arguments, as far as they are filled in from position `from` on.
std::string told(const MacroAction& row, std::size_t from) {
  std::string line = row.action;
  for (std::size_t i = from; i < row.arguments.size(); ++i)
    line += (i == from ? " " : ", ") + vbLiteral(row.arguments[i]);
  return line;
}

class StatementWriter {
 public:
  StatementWriter(const MacroAction& row, const ActionRow& action) : row_(row), action_(action) {}

  // Nothing when an argument cannot be written.
  std::optional<ActionCode> write() {
    for (std::size_t i = 0; i < action_.argumentCount(); ++i) {
      auto argument = written(action_.arguments[i], given(i));
      if (!argument) return std::nullopt;
      arguments_.push_back(std::move(*argument));
    }
    std::string_view pattern = action_.statement;
    while (!pattern.empty()) {
      const std::size_t end = std::min(pattern.find('\n'), pattern.size());
      writeLine(pattern.substr(0, end));
      pattern.remove_prefix(std::min(end + 1, pattern.size()));
    }
    return std::move(code_);
  }

 private:
  std::string_view given(std::size_t argument) const {
    return argument < row_.arguments.size() ? std::string_view(row_.arguments[argument])
                                            : std::string_view();
  }

  std::optional<std::string> written(const ActionArgument& argument, std::string_view text) {
    switch (argument.kind) {
      case ArgumentKind::kNone:
        break;
      case ArgumentKind::kText:
        return textOrExpression(text);
      case ArgumentKind::kLaterText:
        return text.empty() ? std::string() : textOrExpression(text);
      case ArgumentKind::kExpression:
        if (Trim(text).empty()) return std::nullopt;
        return converted(vbExpression(text));
      case ArgumentKind::kTarget:
        return target(text);
      case ArgumentKind::kCall:
        return call(text);
      case ArgumentKind::kChoice:
        return chosen(argument.choices, text);
      case ArgumentKind::kYesNo:
        if (isYes(text)) return "True";
        if (isNo(text)) return "False";
        return number(text);
      case ArgumentKind::kNumber:
        return number(text);
    }
    return std::string();
  }

  std::string converted(VbExpression expression) {
    code_.usesContext |= expression.usesContext;
    std::ranges::move(expression.called, std::back_inserter(code_.called));
    return std::move(expression.text);
  }

  // A text that begins with "=" is calculated when the macro runs.
  std::string textOrExpression(std::string_view text) {
    if (!text.starts_with('=') || Trim(text.substr(1)).empty()) return vbLiteral(text);
    return converted(vbExpression(text));
  }

  std::optional<std::string> target(std::string_view text) {
    VbExpression expression = vbExpression(text);
    if (expression.form != VbExpression::Form::kTarget) return std::nullopt;
    return converted(std::move(expression));
  }

  // The brackets may be left out when nothing stands in them.
  std::optional<std::string> call(std::string_view text) {
    std::string name = Trim(text);
    if (name.starts_with('=')) name = Trim(name.substr(1));
    if (name.empty()) return std::nullopt;
    if (isVbIdentifier(name)) name += "()";
    VbExpression expression = vbExpression(name);
    if (expression.form == VbExpression::Form::kCall ||
        expression.form == VbExpression::Form::kEval)
      return converted(std::move(expression));
    return "Eval(" + vbLiteral(name) + ")";
  }

  std::string chosen(std::span<const ActionChoice> choices, std::string_view text) {
    const auto found = std::ranges::find_if(choices, [text](const ActionChoice& choice) {
      return std::to_string(choice.number) == text;
    });
    return found != choices.end() ? std::string(found->constant) : number(text);
  }

  std::string number(std::string_view text) {
    const std::string trimmed = Trim(text);
    if (trimmed.empty() || isPlainNumber(trimmed)) return trimmed;
    return textOrExpression(text);
  }

  void writeLine(std::string_view pattern) {
    constexpr std::string_view kIfSecondIsYes = "{2?}";
    if (pattern.starts_with(kIfSecondIsYes)) {
      if (!isYes(given(1))) return;
      pattern.remove_prefix(kIfSecondIsYes.size());
    }
    std::string line;
    while (!pattern.empty()) {
      const std::size_t end = pattern.starts_with('{') ? pattern.find('}') : 0;
      if (end == 0) {
        line += pattern.front();
        pattern.remove_prefix(1);
        continue;
      }
      line += pattern[1] == '*' ? allArguments()
                                : arguments_.at(static_cast<std::size_t>(pattern[1] - '1'));
      pattern.remove_prefix(end + 1);
    }
    code_.statements.push_back(RTrim(line));
  }

  // Those left out at the end take their commas with them.
  std::string allArguments() const {
    const auto isLeftOut = [](const std::string& argument) { return argument.empty(); };
    const auto last = std::find_if_not(arguments_.rbegin(), arguments_.rend(), isLeftOut).base();
    std::string all;
    for (auto argument = arguments_.begin(); argument != last; ++argument) {
      if (argument != arguments_.begin()) all += ", ";
      all += *argument;
    }
    return all;
  }

  const MacroAction& row_;
  const ActionRow& action_;
  std::vector<std::string> arguments_;
  ActionCode code_;
};

}  // namespace

ActionCode actionCode(const MacroAction& row) {
  const ActionRow* const action = findAction(Trim(row.action));
  auto code = action ? StatementWriter(row, *action).write() : std::nullopt;
  if (!code) {
    code.emplace();
    code->comments.push_back(told(row, 0));
    return *code;
  }
  const std::size_t known = std::min(action->argumentCount(), row.arguments.size());
  const auto more = std::span(row.arguments).subspan(known);
  if (std::ranges::any_of(more, [](const std::string& text) { return !text.empty(); }))
    code->comments.push_back(told(row, known));
  return std::move(*code);
}

}  // namespace tarrowin
