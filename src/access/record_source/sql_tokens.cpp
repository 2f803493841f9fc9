// The tokenizer of Access SQL: one pass over the bytes; bytes from 128 up are letters of names.
#include "access/record_source/sql_tokens.h"

#include <cctype>

#include "access/record_source/fold_name.h"

namespace tarrowin {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isNameStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         static_cast<unsigned char>(c) >= 128;
}
bool isNamePart(char c) { return isNameStart(c) || isDigit(c); }

class Tokenizer {
 public:
  Tokenizer(std::string_view sql, std::vector<Token>& tokens, int nesting)
      : sql_(sql), tokens_(tokens), nesting_(nesting) {
    if (nesting > kMaxNesting) throw Unresolvable();
  }

  void run() {
    while (skipBlanks()) readToken();
  }

 private:
  char at(std::size_t i) const { return i < sql_.size() ? sql_[i] : '\0'; }

  bool skipBlanks() {
    while (pos_ < sql_.size() && isBlank(sql_[pos_])) ++pos_;
    return pos_ < sql_.size();
  }

  void add(TokenKind kind, std::string_view text = {}) {
    tokens_.push_back({kind, std::string(text)});
  }

  void readToken() {
    const char c = sql_[pos_];
    if (c == '[') return readBracketed();
    if (c == '"' || c == '\'') return readText(c);
    if (c == '#') return readDate();
    if (c == '{') return readGuid();
    if (isNameStart(c)) return readName();
    if (isDigit(c) || (c == '.' && isDigit(at(pos_ + 1)) && !followsOperand())) return readNumber();
    if (c == '&' && readHexNumber()) return;
    readSymbol();
  }

  // Whether the token before ends an operand, so that an operator is due.
  bool followsOperand() const {
    if (tokens_.empty()) return false;
    const Token& last = tokens_.back();
    static constexpr std::string_view kBeforeOperand[] = {
        "SELECT", "ALL", "DISTINCT", "DISTINCTROW", "WHERE", "HAVING", "BY",  "ON", "AND",
        "OR",     "NOT", "XOR",      "EQV",         "IMP",   "LIKE",   "MOD", "IN", "BETWEEN"};
    for (std::string_view word : kBeforeOperand) {
      if (last.isWord(word)) return false;
    }
    return last.kind != TokenKind::Symbol || last.text == ")";
  }

  void readBracketed() {
    const std::string_view rest = sql_.substr(pos_ + 1);
    if (startsWithSelect(rest) && readBracketedSelect()) return;
    const std::size_t end = rest.find(']');
    if (end == std::string_view::npos) throw Unresolvable();
    add(TokenKind::Bracketed, rest.substr(0, end));
    pos_ += end + 2;
  }

  static bool startsWithSelect(std::string_view text) {
    text = trimmed(text);
    return text.size() > 6 && equalsWord(text.substr(0, 6), "SELECT") && isBlank(text[6]);
  }

  // [SELECT ...]. at pos_, whose own names may have brackets in turn. False, with nothing read,
  // when no dot follows: then it is a name that begins so.
  bool readBracketedSelect() {
    int depth = 0;
    std::size_t end = pos_;
    for (; end < sql_.size(); ++end) {
      if (sql_[end] == '[') ++depth;
      if (sql_[end] == ']' && --depth == 0) break;
    }
    if (at(end + 1) != '.') return false;
    add(TokenKind::Symbol, "(");
    Tokenizer(sql_.substr(pos_ + 1, end - pos_ - 1), tokens_, nesting_ + 1).run();
    add(TokenKind::Symbol, ")");
    pos_ = end + 2;
    return true;
  }

  void readText(char quote) {
    std::size_t end = pos_ + 1;
    while (end < sql_.size() && (sql_[end] != quote || at(end + 1) == quote)) {
      end += sql_[end] == quote ? 2 : 1;
    }
    if (end >= sql_.size()) throw Unresolvable();
    std::string text;
    for (std::size_t i = pos_ + 1; i < end; ++i) {
      text += sql_[i];
      if (sql_[i] == quote) ++i;
    }
    add(TokenKind::Text, text);
    pos_ = end + 1;
  }

  void readDate() {
    const std::size_t end = sql_.find('#', pos_ + 1);
    if (end == std::string_view::npos) throw Unresolvable();
    add(TokenKind::Date, sql_.substr(pos_ + 1, end - pos_ - 1));
    pos_ = end + 1;
  }

  void readGuid() {
    int depth = 0;
    std::size_t end = pos_;
    for (; end < sql_.size(); ++end) {
      if (sql_[end] == '{') ++depth;
      if (sql_[end] == '}' && --depth == 0) break;
    }
    if (end == sql_.size()) throw Unresolvable();
    add(TokenKind::Guid);
    pos_ = end + 1;
  }

  void readName() {
    std::size_t end = pos_;
    while (isNamePart(at(end))) ++end;
    if (at(end) == '$') ++end;  // Left$ is Left
    add(TokenKind::Name, sql_.substr(pos_, end - pos_));
    pos_ = end;
  }

  void readNumber() {
    std::size_t end = pos_;
    while (isDigit(at(end))) ++end;
    if (at(end) == '.' && !isNameStart(at(end + 1))) {
      ++end;
      while (isDigit(at(end))) ++end;
    }
    end = behindExponent(end);
    if (isNameStart(at(end))) return readName();  // 2ndQuarter
    add(TokenKind::Number, sql_.substr(pos_, end - pos_));
    pos_ = end;
  }

  std::size_t behindExponent(std::size_t end) const {
    if (at(end) != 'e' && at(end) != 'E') return end;
    std::size_t digits = end + 1;
    if (at(digits) == '+' || at(digits) == '-') ++digits;
    if (!isDigit(at(digits))) return end;
    while (isDigit(at(digits))) ++digits;
    return digits;
  }

  // &H1F where a value is due; elsewhere & joins texts and H1F is a name.
  bool readHexNumber() {
    if (followsOperand() || (at(pos_ + 1) != 'H' && at(pos_ + 1) != 'h')) return false;
    std::size_t end = pos_ + 2;
    while (std::isxdigit(static_cast<unsigned char>(at(end))) != 0) ++end;
    if (end == pos_ + 2 || isNamePart(at(end))) return false;
    if (at(end) == '&') ++end;  // the suffix of a Long
    add(TokenKind::Number, sql_.substr(pos_, end - pos_));
    pos_ = end;
    return true;
  }

  void readSymbol() {
    constexpr std::string_view kPairs[] = {"<>", "<=", ">=", "=<", "=>"};
    const std::string_view pair = sql_.substr(pos_, 2);
    for (std::string_view known : kPairs) {
      if (pair != known) continue;
      add(TokenKind::Symbol, pair);
      pos_ += 2;
      return;
    }
    constexpr std::string_view kSingles = "<>=+-*/\\^&(),.!;";
    if (kSingles.find(sql_[pos_]) == std::string_view::npos) throw Unresolvable();
    add(TokenKind::Symbol, sql_.substr(pos_, 1));
    ++pos_;
  }

  std::string_view sql_;
  std::vector<Token>& tokens_;
  int nesting_;
  std::size_t pos_ = 0;
};

}  // namespace

bool Token::isWord(std::string_view upperCaseWord) const {
  return kind == TokenKind::Name && equalsWord(text, upperCaseWord);
}

std::vector<Token> tokenize(std::string_view sql) {
  if (sql.size() > kMaxSqlLength) throw Unresolvable();
  std::vector<Token> tokens;
  Tokenizer(sql, tokens, 0).run();
  tokens.push_back({});
  return tokens;
}

}  // namespace tarrowin
