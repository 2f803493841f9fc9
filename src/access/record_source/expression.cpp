// A recursive-descent reader, one function a level of precedence, from Or down to a single value.
#include "access/record_source/expression.h"

#include <algorithm>
#include <initializer_list>
#include <unordered_set>
#include <utility>

#include "access/record_source/nesting.h"
#include "access/record_source/value_type.h"

namespace tarrowin {
namespace {

// What SQLite is to see of an expression, each part once.
class SqliteParts {
 public:
  void add(const std::string& part) {
    if (part.empty() || !known_.insert(part).second) return;
    text_ += '+';
    text_ += part;
  }
  std::string text() const { return "NULL" + text_; }

 private:
  std::unordered_set<std::string> known_;
  std::string text_;
};

// Words that are no name without brackets, so that a missing operand is seen.
bool isReserved(const Token& token) {
  static constexpr std::string_view kWords[] = {
      "AND",  "OR",     "NOT",  "XOR",    "EQV",   "IMP",  "LIKE", "ALIKE",    "IN",
      "IS",   "MOD",    "FROM", "SELECT", "WHERE", "JOIN", "AS",   "BETWEEN",  "UNION",
      "INTO", "HAVING", "WITH", "EXISTS", "ASC",   "DESC", "BY",   "DISTINCT", "TRANSFORM"};
  return std::any_of(std::begin(kWords), std::end(kWords),
                     [&](std::string_view word) { return token.isWord(word); });
}

class ExpressionReader {
 public:
  ExpressionReader(const std::vector<Token>& tokens, TokenRange range, ExpressionScope& scope)
      : tokens_(tokens), range_(range), pos_(range.begin), scope_(scope) {}

  ExpressionValue read() {
    if (const std::optional<NameChain> name = loneName(tokens_, range_)) {
      if (isReserved(tokens_[range_.begin])) throw Unresolvable();
      ExpressionValue value = scope_.resolve(*name);
      if (value.sql.empty()) value.sql = "NULL";
      return value;
    }
    const int type = logical();
    if (pos_ != range_.end) throw Unresolvable();
    return {loneInteger() ? tokens_[range_.begin].text : parts_->text(), type};
  }

 private:
  bool loneInteger() const {
    const std::string& text = tokens_[range_.begin].text;
    return range_.end - range_.begin == 1 && tokens_[range_.begin].kind == TokenKind::Number &&
           text.find_first_not_of("0123456789") == std::string::npos;
  }

  const Token& peek(std::size_t ahead = 0) const {
    static const Token kEnd;
    return pos_ + ahead < range_.end ? tokens_[pos_ + ahead] : kEnd;
  }
  bool takeSymbol(std::string_view symbol) {
    if (!peek().isSymbol(symbol)) return false;
    ++pos_;
    return true;
  }
  bool takeWord(std::string_view word) {
    if (!peek().isWord(word)) return false;
    ++pos_;
    return true;
  }
  bool takeAnySymbol(std::initializer_list<std::string_view> symbols) {
    return std::any_of(symbols.begin(), symbols.end(),
                       [this](std::string_view symbol) { return takeSymbol(symbol); });
  }
  bool takeAnyWord(std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [this](std::string_view word) { return takeWord(word); });
  }
  void expectSymbol(std::string_view symbol) {
    if (!takeSymbol(symbol)) throw Unresolvable();
  }

  int logical() {
    const NestingGuard guard(scope_.nesting());
    int type = negation();
    while (takeAnyWord({"AND", "OR", "XOR", "EQV", "IMP"})) {
      negation();
      type = kTypeBoolean;
    }
    return type;
  }

  int negation() {
    bool negated = false;
    while (takeWord("NOT")) negated = true;
    const int type = comparison();
    return negated ? kTypeBoolean : type;
  }

  int comparison() {
    int type = concatenation();
    while (restOfComparison()) type = kTypeBoolean;
    return type;
  }

  // An operator of comparison with what stands to its right.
  bool restOfComparison() {
    if (takeAnySymbol({"=", "<>", "<", ">", "<=", ">=", "=<", "=>"})) {
      if (peek(1).isSymbol("(") && startsQuery(peek(2))) takeAnyWord({"ANY", "ALL", "SOME"});
      while (takeWord("NOT")) continue;
      concatenation();
      return true;
    }
    if (takeWord("IS")) {
      takeWord("NOT");
      if (!takeWord("NULL")) throw Unresolvable();
      return true;
    }
    const bool negated =
        peek().isWord("NOT") && (peek(1).isWord("LIKE") || peek(1).isWord("IN") ||
                                 peek(1).isWord("ALIKE") || peek(1).isWord("BETWEEN"));
    if (negated) ++pos_;
    if (takeAnyWord({"LIKE", "ALIKE"})) {
      concatenation();
      return true;
    }
    if (takeWord("BETWEEN")) {
      concatenation();
      if (!takeWord("AND")) throw Unresolvable();
      concatenation();
      return true;
    }
    if (takeWord("IN")) {
      membership();
      return true;
    }
    return false;
  }

  void membership() {
    expectSymbol("(");
    if (startsQuery(peek())) {
      subquery();
    } else {
      do {
        logical();
      } while (takeSymbol(","));
    }
    expectSymbol(")");
  }

  int concatenation() {
    int type = sum();
    while (takeSymbol("&")) {
      const int right = sum();
      type = type == kTypeMemo || right == kTypeMemo ? kTypeMemo : kTypeText;
    }
    return type;
  }

  int sum() {
    int type = modulus();
    for (;;) {
      const std::string op = peek().text;
      if (!takeAnySymbol({"+", "-"})) return type;
      type = arithmeticType(op, type, modulus());
    }
  }

  int modulus() {
    int type = product();
    while (takeWord("MOD")) type = arithmeticType("MOD", type, product());
    return type;
  }

  int product() {
    int type = sign();
    for (;;) {
      const std::string op = peek().text;
      if (!takeAnySymbol({"*", "/", "\\"})) return type;
      type = arithmeticType(op, type, sign());
    }
  }

  int sign() {
    bool negative = false;
    for (;;) {
      if (takeSymbol("-")) {
        negative = true;
      } else if (!takeSymbol("+")) {
        break;
      }
    }
    const int type = power();
    return negative ? arithmeticType("*", kTypeInteger, type) : type;
  }

  int power() {
    int type = value();
    while (takeSymbol("^")) {
      while (takeAnySymbol({"-", "+"})) continue;
      value();
      type = kTypeDouble;
    }
    return type;
  }

  int value() {
    const Token& token = peek();
    switch (token.kind) {
      case TokenKind::Text:
        ++pos_;
        return kTypeText;
      case TokenKind::Date:
        ++pos_;
        return kTypeDate;
      case TokenKind::Guid:
        ++pos_;
        return kTypeGuid;
      case TokenKind::Number:
        ++pos_;
        return numberType(token.text);
      case TokenKind::Symbol:
        return parenthesised();
      case TokenKind::Name:
      case TokenKind::Bracketed:
        return named();
      case TokenKind::End:
        break;
    }
    throw Unresolvable();
  }

  // A whole number is an Integer within 16 bits and a Long within 32, as in Visual Basic.
  static int numberType(const std::string& text) {
    if (text.front() == '&') return kTypeLong;
    const bool whole = text.find_first_of(".eE") == std::string::npos;
    if (!whole || text.size() > 10) return kTypeDouble;
    const long long number = std::stoll(text);
    if (number <= 32767) return kTypeInteger;
    return number <= 2147483647 ? kTypeLong : kTypeDouble;
  }

  int parenthesised() {
    expectSymbol("(");
    const int type = startsQuery(peek()) ? subquery() : logical();
    expectSymbol(")");
    return type;
  }

  int subquery() {
    const QueryTree query = parseQuery(tokens_, pos_);
    takeSymbol(";");
    return scope_.subqueryType(query);
  }

  int named() {
    if (takeWord("NULL")) return kTypeUnknown;
    if (peek().isWord("EXISTS") && peek(1).isSymbol("(") && startsQuery(peek(2))) {
      pos_ += 2;
      subquery();
      expectSymbol(")");
      return kTypeBoolean;
    }
    if (isReserved(peek())) throw Unresolvable();
    const NameChain name = parseNameChain(tokens_, pos_);
    if (pos_ > range_.end) throw Unresolvable();
    if (peek().isSymbol("(")) return call(name);
    const ExpressionValue value = scope_.resolve(name);
    parts_->add(value.sql);
    return value.type;
  }

  int call(const NameChain& name) {
    const std::string& function = name.parts.back();
    const int type =
        isAggregate(function) ? aggregate(function) : functionType(function, arguments());
    return memberOfResult() ? kTypeUnknown : type;
  }

  // Forms("frmMain")!txtFrom: only the program's own functions know what this is.
  bool memberOfResult() {
    bool any = false;
    while ((peek().isSymbol("!") || peek().isSymbol(".")) && peek(1).isName()) {
      ++pos_;
      parseNameChain(tokens_, pos_);
      if (peek().isSymbol("(")) arguments();
      any = true;
    }
    return any;
  }

  std::vector<int> arguments() {
    std::vector<int> types;
    expectSymbol("(");
    if (takeSymbol(")")) return types;
    do {
      const bool missing = peek().isSymbol(",") || peek().isSymbol(")");
      types.push_back(missing ? kTypeUnknown : logical());
    } while (takeSymbol(","));
    expectSymbol(")");
    return types;
  }

  // SQLite sees every aggregate as max() of the columns in its argument.
  int aggregate(const std::string& function) {
    if (peek(1).isSymbol("*") && peek(2).isSymbol(")")) {
      pos_ += 3;
      parts_->add("count(*)");
      return functionType(function, {});
    }
    SqliteParts inner;
    SqliteParts* const outer = std::exchange(parts_, &inner);
    const std::vector<int> types = arguments();
    parts_ = outer;
    if (types.size() != 1) throw Unresolvable();
    parts_->add("max(" + inner.text() + ")");
    return functionType(function, types);
  }

  const std::vector<Token>& tokens_;
  TokenRange range_;
  std::size_t pos_;
  ExpressionScope& scope_;
  SqliteParts own_;
  SqliteParts* parts_ = &own_;
};

}  // namespace

std::optional<NameChain> loneName(const std::vector<Token>& tokens, TokenRange range) {
  if (range.empty() || !tokens[range.begin].isName() || tokens[range.begin].isWord("NULL")) {
    return std::nullopt;
  }
  std::size_t pos = range.begin;
  NameChain name = parseNameChain(tokens, pos);
  if (pos != range.end) return std::nullopt;
  return name;
}

ExpressionValue readExpression(const std::vector<Token>& tokens, TokenRange range,
                               ExpressionScope& scope) {
  return ExpressionReader(tokens, range, scope).read();
}

}  // namespace tarrowin
