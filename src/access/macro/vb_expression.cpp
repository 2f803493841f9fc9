// A parser of expressions that prints as it reads. Whatever it does not know ends it, so that only
// expressions which Visual Basic accepts come out.
// Grammar: value { operator value }; value = { Not | - | + } ( number | "text" | 'text' | #date# |
// "(" expression ")" | name ); name = part { ("!" | ".") part | "(" expressions ")" }; a part is a
// word or a text in brackets.
#include "access/macro/vb_expression.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "access/macro/vb_literal.h"
#include "access/macro/vb_names.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Deeper brackets than anyone writes; Visual Basic has a limit of its own near it.
constexpr int kMaximumDepth = 50;

struct Word {
  std::string_view access, visualBasic;
};

// "Is" and "Like" differ: "Is" compares objects in Visual Basic, and only Access has "Is Null".
constexpr Word kOperators[] = {{"and", "And"}, {"or", "Or"},   {"xor", "Xor"},  {"eqv", "Eqv"},
                               {"imp", "Imp"}, {"mod", "Mod"}, {"like", "Like"}};
constexpr Word kConstants[] = {{"true", "True"}, {"false", "False"}, {"yes", "True"},
                               {"no", "False"},  {"on", "True"},     {"off", "False"},
                               {"null", "Null"}};
// Functions that may stand without brackets.
constexpr Word kBareFunctions[] = {{"date", "Date"}, {"time", "Time"},
                                   {"now", "Now"},   {"timer", "Timer"},
                                   {"rnd", "Rnd"},   {"currentuser", "CurrentUser"}};
// Keywords that are functions too.
constexpr Word kKeywordFunctions[] = {
    {"abs", "Abs"},       {"array", "Array"},  {"cbool", "CBool"},     {"cbyte", "CByte"},
    {"ccur", "CCur"},     {"cdate", "CDate"},  {"cdbl", "CDbl"},       {"cdec", "CDec"},
    {"cint", "CInt"},     {"clng", "CLng"},    {"csng", "CSng"},       {"cstr", "CStr"},
    {"cvar", "CVar"},     {"cverr", "CVErr"},  {"date", "Date"},       {"error", "Error"},
    {"fix", "Fix"},       {"instr", "InStr"},  {"instrb", "InStrB"},   {"int", "Int"},
    {"lbound", "LBound"}, {"len", "Len"},      {"lenb", "LenB"},       {"mid", "Mid"},
    {"midb", "MidB"},     {"sgn", "Sgn"},      {"strcomp", "StrComp"}, {"string", "String"},
    {"time", "Time"},     {"ubound", "UBound"}};
// Objects that are known everywhere; all other names belong to the form or report at hand. Only one
// of them has a value of its own, so that a name in brackets may mean it.
constexpr std::string_view kMacroError = "MacroError";
constexpr Word kObjects[] = {{"application", "Application"},
                             {"codecontextobject", "CodeContextObject"},
                             {"codedb", "CodeDb"},
                             {"currentproject", "CurrentProject"},
                             {"dbengine", "DBEngine"},
                             {"docmd", "DoCmd"},
                             {"err", "Err"},
                             {"forms", "Forms"},
                             {"macroerror", kMacroError},
                             {"modules", "Modules"},
                             {"reports", "Reports"},
                             {"screen", "Screen"},
                             {"tempvars", "TempVars"}};

std::optional<std::string_view> find(std::span<const Word> words, std::string_view access) {
  const std::string lower = LCase(access);
  const auto found = std::ranges::find(words, lower, &Word::access);
  return found == words.end() ? std::nullopt : std::optional(found->visualBasic);
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

// Nothing that would end the brackets, the line, or a text.
bool fitsBrackets(std::string_view name) {
  return !name.empty() && std::ranges::none_of(name, [](char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '[' || character == ']' ||
           character == '"' || character == '!';
  });
}

// A date as Access keeps it in expressions, month/day/year, and one that every year has.
bool isPlainDate(std::string_view date) {
  const auto number = [&date](std::size_t atLeast, std::size_t atMost) {
    std::size_t length = 0;
    int value = 0;
    for (; length < atMost && length < date.size() && isDigit(date[length]); ++length)
      value = value * 10 + (date[length] - '0');
    date.remove_prefix(length);
    return length < atLeast ? 0 : value;
  };
  const auto slash = [&date] {
    const bool found = date.starts_with('/');
    if (found) date.remove_prefix(1);
    return found;
  };
  constexpr int kLastDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const int month = number(1, 2);
  if (month < 1 || month > 12 || !slash()) return false;
  const int day = number(1, 2);
  if (day < 1 || day > kLastDays[month - 1] || !slash()) return false;
  return number(4, 4) >= 100 && date.empty();
}

class Parser {
 public:
  explicit Parser(std::string_view text) : rest_(text) {}

  bool run() {
    if (!expression()) return false;
    skipBlanks();
    return rest_.empty();
  }

  VbExpression take() {
    result_.form = values_ == 1 ? lastForm_ : VbExpression::Form::kValue;
    return std::move(result_);
  }

 private:
  using Form = VbExpression::Form;

  void print(std::string_view text) { result_.text += text; }
  void skipBlanks() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }
  bool accept(std::string_view token) {
    if (!rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }
  std::string_view takeWhile(bool (*holds)(char)) {
    const auto end = std::ranges::find_if_not(rest_, holds);
    const std::string_view taken(rest_.begin(), end);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  std::string_view peekWord() const {
    return {rest_.begin(), std::ranges::find_if_not(rest_, isVbNameCharacter)};
  }
  // What stands up to the closing character, which is taken with it.
  std::optional<std::string_view> takeUntil(char closing) {
    const std::size_t end = rest_.find(closing);
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view taken = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    return taken;
  }

  bool expression() {
    if (++depth_ > kMaximumDepth) return false;
    do {
      if (!value()) return false;
    } while (binaryOperator());
    --depth_;
    return true;
  }

  bool binaryOperator() {
    skipBlanks();
    for (const std::string_view sign :
         {"<>", "<=", ">=", "=", "<", ">", "+", "-", "*", "/", "\\", "^", "&"}) {
      if (!accept(sign)) continue;
      printOperator(sign);
      return true;
    }
    const std::string_view word = peekWord();
    const auto known = find(kOperators, word);
    if (!known) return false;
    rest_.remove_prefix(word.size());
    printOperator(*known);
    return true;
  }

  void printOperator(std::string_view sign) {
    print(" ");
    print(sign);
    print(" ");
  }

  bool value() {
    for (skipBlanks();; skipBlanks()) {
      if (accept("-")) {
        print("-");
      } else if (accept("+")) {
        print("+");
      } else if (LCase(peekWord()) == "not") {
        rest_.remove_prefix(3);
        print("Not ");
      } else {
        break;
      }
      ++values_;  // with a sign it is no mere name
    }
    ++values_;
    lastForm_ = Form::kValue;
    if (rest_.empty()) return false;
    const char first = rest_.front();
    if (first == '"' || first == '\'') return text(first);
    if (first == '#') return date();
    if (first == '(') return nested();
    if (isDigit(first) || first == '.') return number();
    return name();
  }

  bool nested() {
    accept("(");
    print("(");
    if (!expression()) return false;
    skipBlanks();
    if (!accept(")")) return false;
    print(")");
    lastForm_ = Form::kValue;
    ++values_;
    return true;
  }

  // A quote inside is doubled.
  bool text(char quote) {
    std::string content;
    do {
      rest_.remove_prefix(1);
      const auto part = takeUntil(quote);
      if (!part) return false;
      content += *part;
      if (rest_.starts_with(quote)) content += quote;
    } while (rest_.starts_with(quote));
    print(vbLiteral(content));
    return true;
  }

  bool date() {
    accept("#");
    const auto content = takeUntil('#');
    if (!content || !isPlainDate(*content)) return false;
    print("#");
    print(*content);
    print("#");
    return true;
  }

  bool number() {
    const std::string_view digits =
        takeWhile([](char character) { return isDigit(character) || character == '.'; });
    const bool wordFollows = !rest_.empty() && isVbNameCharacter(rest_.front());
    if (wordFollows || !isPlainNumber(digits)) return false;
    print(digits);
    return true;
  }

  // One part of a name; whether it stood in brackets.
  struct Part {
    std::string_view word;
    bool bracketed;
  };
  std::optional<Part> part() {
    if (accept("[")) {
      const auto word = takeUntil(']');
      if (!word || !fitsBrackets(*word)) return std::nullopt;
      return Part{*word, true};
    }
    const std::string_view word = takeWhile(isVbNameCharacter);
    if (word.empty() || !isVbLetter(word.front())) return std::nullopt;
    return Part{word, false};
  }

  void printMember(std::string_view word) {
    if (isVbIdentifier(word)) return print(word);
    print("[");
    print(word);
    print("]");
  }

  bool name() {
    const auto first = part();
    if (!first || !firstPart(*first)) return false;
    while (!rest_.empty()) {
      if (rest_.front() == '(') {
        if (!arguments()) return false;
      } else if (rest_.front() == '!' || rest_.front() == '.') {
        print(rest_.substr(0, 1));
        rest_.remove_prefix(1);
        const auto next = part();
        if (!next) return false;
        printMember(next->word);
        lastForm_ = Form::kTarget;
      } else {
        break;
      }
    }
    return true;
  }

  // What a name begins with decides what it means.
  bool firstPart(const Part& first) {
    const bool leads = rest_.starts_with('!') || rest_.starts_with('.');
    if (rest_.starts_with('(')) return calledFunction(first.word);
    const auto object = find(kObjects, first.word);
    if (object && (leads || !first.bracketed || *object == kMacroError)) {
      print(*object);
      return true;
    }
    if (!first.bracketed && !leads) {
      if (const auto constant = find(kConstants, first.word)) {
        print(*constant);
        return true;
      }
      if (const auto function = find(kBareFunctions, first.word)) {
        print(*function);
        return true;
      }
      const std::string lower = LCase(first.word);
      if (lower.starts_with("vb") || isVbReserved(lower)) {
        print(first.word);
        return !isVbReserved(lower);
      }
    }
    print(".");
    printMember(first.word);
    result_.usesContext = true;
    lastForm_ = Form::kTarget;
    return true;
  }

  bool calledFunction(std::string_view word) {
    if (const auto object = find(kObjects, word)) {
      print(*object);
      return true;
    }
    const auto keyword = find(kKeywordFunctions, word);
    if (!keyword && !isVbIdentifier(word)) return false;
    print(keyword.value_or(word));
    result_.called.emplace_back(word);
    if (!arguments()) return false;
    lastForm_ = Form::kCall;
    return true;
  }

  bool arguments() {
    const int valuesBefore = values_;
    accept("(");
    print("(");
    skipBlanks();
    for (bool more = !rest_.starts_with(')'); more;) {
      skipBlanks();
      const bool leftOut = rest_.starts_with(',') || rest_.starts_with(')');
      if (!leftOut && !expression()) return false;
      skipBlanks();
      more = accept(",");
      if (more) print(", ");
    }
    if (!accept(")")) return false;
    print(")");
    values_ = valuesBefore;
    lastForm_ = Form::kValue;
    return true;
  }

  std::string_view rest_;
  VbExpression result_;
  int depth_ = 0;
  int values_ = 0;  // more than one when it is no single name or call
  Form lastForm_ = Form::kValue;
};

}  // namespace

VbExpression vbExpression(std::string_view accessExpression) {
  std::string expression = Trim(accessExpression);
  if (expression.starts_with('=')) expression.erase(0, 1);
  Parser parser(expression);
  if (parser.run()) return parser.take();
  VbExpression evaluated;
  evaluated.text = "Eval(" + vbLiteral(expression) + ")";
  evaluated.form = VbExpression::Form::kEval;
  return evaluated;
}

}  // namespace tarrowin
