// Takes a FROM list as Access prints it apart: names, joins of two sides with a condition, sides in
// parentheses, commas between.
#include "query_text/from_text.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace tarrowin::mdb {
namespace {

constexpr std::array<std::pair<const char*, JoinKind>, 3> kWords = {{
    {" INNER JOIN ", JoinKind::kInner},
    {" LEFT JOIN ", JoinKind::kLeft},
    {" RIGHT JOIN ", JoinKind::kRight},
}};

class Parser {
 public:
  explicit Parser(const std::string& text) : text_(text) {}

  FromRows all() {
    item();
    while (take(", ")) item();
    if (position_ != text_.size())
      throw std::runtime_error("left over: " + text_.substr(position_));
    return rows_;
  }

 private:
  // Answers a source inside.
  std::string item() {
    const std::string left = side();
    for (const auto& [word, kind] : kWords) {
      if (!take(word)) continue;
      const std::string right = side();
      if (!take(" ON ")) throw std::runtime_error("no ON");
      conditions(left, right, kind);
    }
    return left;
  }

  std::string side() {
    if (take("(")) {
      std::string inside = item();
      if (!take(")")) throw std::runtime_error("no parenthesis");
      return inside;
    }
    const std::string name =
        text_.substr(position_, text_.find_first_of(" ,)", position_) - position_);
    position_ += name.size();
    rows_.sources.push_back({name, name});
    return name;
  }

  // One plain condition, or several in parentheses, of which the last is the first row.
  void conditions(const std::string& left, const std::string& right, JoinKind kind) {
    std::vector<std::string> found;
    const bool several = text_[position_] == '(';
    do {
      if (several && !take("(")) throw std::runtime_error("no condition");
      found.push_back(plainText());
      if (several && !take(")")) throw std::runtime_error("no end of condition");
    } while (several && take(" AND "));
    for (auto it = found.rbegin(); it != found.rend(); ++it) {
      rows_.joins.push_back({left, right, *it, kind});
    }
  }

  std::string plainText() {
    const auto begin = position_;
    for (int depth = 0; position_ < text_.size(); ++position_) {
      const char c = text_[position_];
      if (depth == 0 && (c == ',' || c == ')')) break;
      depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    }
    return text_.substr(begin, position_ - begin);
  }

  bool take(const std::string& word) {
    if (text_.compare(position_, word.size(), word) != 0) return false;
    position_ += word.size();
    return true;
  }

  const std::string& text_;
  std::size_t position_ = 0;
  FromRows rows_;
};

}  // namespace

FromRows takeFromApart(const std::string& text) { return Parser(text).all(); }

}  // namespace tarrowin::mdb
