// Indenting and breaking lines.
// See code_lines.h.
#include "access/macro/code_lines.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::size_t kBlanksPerLevel = 4;
constexpr std::size_t kMaximumLine = 1023;
constexpr std::size_t kMaximumLines = 25;
constexpr std::string_view kGoesOn = " _";
constexpr std::string_view kTextGoesOn = "\" & _";

std::string indent(int level) {
  return std::string(kBlanksPerLevel * static_cast<std::size_t>(level), ' ');
}

// Where a line may end: `length` characters of it stay, and inside a text quotes are needed.
struct Break {
  std::size_t length = 0;
  bool insideText = false;
};

// The last place for a break in the first `room` characters: before a blank outside of texts and
// brackets, else inside a text, not between the two halves of a doubled quote.
std::optional<Break> findBreak(std::string_view statement, std::size_t room) {
  std::optional<Break> outside, inside;
  bool quoted = false, bracketed = false;
  for (std::size_t at = 0; at < room && at < statement.size(); ++at) {
    const char character = statement[at];
    if (quoted && character == '"' && statement.substr(at + 1).starts_with('"')) {
      ++at;
    } else if (character == '"' && !bracketed) {
      quoted = !quoted;
    } else if (quoted) {
      inside = Break{at, true};
    } else if (character == '[' || character == ']') {
      bracketed = character == '[';
    } else if (character == ' ' && !bracketed && at > 0) {
      outside = Break{at, false};
    }
  }
  return outside ? outside : inside;
}

}  // namespace

void appendComment(std::string& text, int level, std::string_view comment) {
  constexpr std::string_view kStart = "' ";
  const std::string margin = indent(level);
  const std::size_t room = kMaximumLine - margin.size() - kStart.size() - 1;
  while (!comment.empty()) {
    const std::size_t end = std::min({comment.find_first_of("\r\n"), comment.size(), room});
    std::string line(comment.substr(0, end));
    for (char& character : line)
      if (static_cast<unsigned char>(character) < ' ') character = ' ';
    line = RTrim(std::string(kStart) + line);
    // This would draw the next line into the comment.
    if (line.ends_with(kGoesOn)) line += '\'';
    text += margin;
    text += line;
    text += kCrLf;
    comment.remove_prefix(end);
    if (comment.starts_with(kCrLf)) {
      comment.remove_prefix(kCrLf.size());
    } else if (comment.starts_with('\r') || comment.starts_with('\n')) {
      comment.remove_prefix(1);
    }
  }
}

void appendStatement(std::string& text, int level, std::string_view statement) {
  std::string lines;
  std::string margin = indent(level);
  std::string rest(statement);
  for (std::size_t count = 1; margin.size() + rest.size() > kMaximumLine; ++count) {
    const std::size_t room = kMaximumLine - margin.size() - kTextGoesOn.size();
    const auto end = count < kMaximumLines ? findBreak(rest, room) : std::nullopt;
    if (!end) return appendComment(text, level, statement);
    lines += margin;
    lines.append(rest, 0, end->length);
    lines += end->insideText ? kTextGoesOn : kGoesOn;
    lines += kCrLf;
    rest.replace(0, end->insideText ? end->length : end->length + 1, end->insideText ? "\"" : "");
    if (count == 1) margin += indent(1);
  }
  text += lines;
  text += margin;
  text += rest;
  text += kCrLf;
}

}  // namespace tarrowin
