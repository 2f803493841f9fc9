// Access SQL cut into tokens: names with and without brackets, literals and symbols.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

enum class TokenKind {
  Name,       // Orders, SELECT, Left$: keywords are names too
  Bracketed,  // [Order Details]; text without the brackets
  Text,       // "a ""quoted"" text" or 'one'; its content
  Number,     // 12, .5, 1E-3, &H1F; the text as written
  Date,       // #1/31/1999#; text is what stands between
  Guid,       // {guid {...}}; without text
  Symbol,     // an operator or a separator, one or two characters
  End,        // behind the last token
};

struct Token {
  TokenKind kind = TokenKind::End;
  std::string text;

  bool isSymbol(std::string_view symbol) const {
    return kind == TokenKind::Symbol && text == symbol;
  }
  // Whether it is this keyword, in any case. Position decides whether it is meant as one.
  bool isWord(std::string_view upperCaseWord) const;
  bool isName() const { return kind == TokenKind::Name || kind == TokenKind::Bracketed; }
};

// SQL that cannot be read or resolved. The name is that of the unknown table or query; it is empty
// when the text itself is at fault.
class Unresolvable : public std::runtime_error {
 public:
  explicit Unresolvable(std::string name = {})
      : std::runtime_error("record source cannot be resolved"), name_(std::move(name)) {}
  const std::string& name() const { return name_; }

 private:
  std::string name_;
};

// The engine itself takes about 64,000 characters; UTF-8 may need twice the bytes.
inline constexpr std::size_t kMaxSqlLength = 128000;
// How deep parentheses, subqueries and saved queries on queries may be nested, all together; the
// engine's own limit is 50 for queries alone.
inline constexpr int kMaxNesting = 100;

// The tokens of the text, ended by one of kind End. The old form of a subquery, [SELECT ...]. with
// a dot behind it, comes out as (SELECT ...). Throws Unresolvable for a text longer than
// kMaxSqlLength, an unclosed bracket, quote or brace, and a character that no SQL has.
std::vector<Token> tokenize(std::string_view sql);

}  // namespace tarrowin
