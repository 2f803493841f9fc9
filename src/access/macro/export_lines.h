// The lines of a text that Access's SaveAsText writes, and the small parts that its grammar has in
// all kinds of objects: properties, texts in quotes, blocks of hexadecimal digits.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "shared/code_page.h"
#include "shared/value.h"

namespace tarrowin {

// A text that is no such export, or a damaged one.
class ExportTextError : public std::runtime_error {
 public:
  ExportTextError(std::size_t line, const std::string& problem)
      : std::runtime_error("line " + std::to_string(line) + ": " + problem), line_(line) {}

  std::size_t line() const { return line_; }  // from 1

 private:
  std::size_t line_;
};

// Walks the lines of a text, which has to outlive it. Lines end in CR LF or LF; empty ones are
// passed over, blanks around the others don't count.
class ExportLines {
 public:
  // The text is in the code page.
  ExportLines(std::string_view text, const CodePage& codePage) : rest_(text), codePage_(codePage) {}

  // To the next line; false when there is none left. Before the first call there is none.
  bool next();
  std::string_view line() const { return line_; }
  std::size_t number() const { return number_; }  // of the line, from 1
  // The untrimmed text behind the line.
  std::string_view rest() const { return rest_; }

  // `keyword =value` with what stands behind the "=", a blank included; `dbText "Name" =value` has
  // the name for its keyword.
  struct Property {
    std::string_view type;  // "dbText"; empty without one
    std::string_view keyword, value;
  };
  // The line as a property. Throws for any other.
  Property property() const;

  // Appends the text that begins with the quote in the value, and its pieces in the lines below,
  // and goes to the line behind them: as next(), false when there is none.
  bool readText(std::string_view value, std::string& text);

  // From the first line of a block of hexadecimal digits to its "End", which becomes the line. The
  // block may be empty; it began in the line of that number.
  Bytes readHex(std::size_t start);

  [[noreturn]] void fail(const std::string& problem) const;

 private:
  void appendPiece(std::string_view piece, std::string& text) const;
  void appendEscaped(std::string_view& piece, std::string& text) const;
  void appendHex(std::string_view digits, Bytes& bytes) const;

  std::string_view rest_, line_;
  CodePage codePage_;
  std::size_t number_ = 0;
};

}  // namespace tarrowin
