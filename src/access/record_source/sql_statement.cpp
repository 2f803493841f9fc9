// The clause parser: recursive only where parentheses nest, and that to kMaxNesting.
#include "access/record_source/sql_statement.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

#include "access/record_source/fold_name.h"
#include "access/record_source/nesting.h"

namespace tarrowin {
namespace {

constexpr std::string_view kJoinDirections[] = {"INNER", "LEFT", "RIGHT", "FULL"};
// Words that end a source, so that they are no alias of it.
constexpr std::string_view kBehindSource[] = {"INNER", "LEFT",  "RIGHT", "FULL", "JOIN",
                                              "ON",    "WHERE", "GROUP", "IN",   "HAVING",
                                              "ORDER", "UNION", "WITH",  "PIVOT"};

class StatementParser {
 public:
  StatementParser(const std::vector<Token>& tokens, std::size_t pos) : tokens_(tokens), pos_(pos) {}

  std::size_t pos() const { return pos_; }

  Statement statement() {
    Statement statement;
    refuseActionQuery();
    if (takeWord("PARAMETERS")) {
      statement.parameters = parameters();
      refuseActionQuery();
    }
    statement.query = query();
    if (takeWord("WITH")) {
      expectWord("OWNERACCESS");
      expectWord("OPTION");
    }
    while (takeSymbol(";")) continue;
    if (peek().kind != TokenKind::End) throw Unresolvable();
    return statement;
  }

  QueryTree query() {
    const NestingGuard guard(nesting_);
    QueryTree tree;
    if (takeWord("TRANSFORM")) {
      Pivot pivot;
      pivot.value = expression([this] { return isWord("SELECT") || isWord("AS"); });
      if (takeWord("AS")) alias();  // names the values in the query's design only
      tree.branches.push_back(select());
      expectWord("PIVOT");
      readPivot(pivot);
      tree.pivot = std::move(pivot);
      return tree;
    }
    tree = branch();
    while (takeUnion()) {
      takeWord("ALL");
      QueryTree next = branch();
      if (next.pivot) throw Unresolvable();
      std::move(next.branches.begin(), next.branches.end(), std::back_inserter(tree.branches));
    }
    if (tree.branches.size() > 1) tree.orderBy = std::exchange(tree.branches.back().orderBy, {});
    return tree;
  }

  NameChain nameChain() {
    NameChain chain;
    for (;;) {
      const Token& token = peek();
      if (!token.isName() || trimmed(token.text).empty()) throw Unresolvable();
      chain.parts.emplace_back(trimmed(token.text));
      chain.written += token.kind == TokenKind::Bracketed ? "[" + token.text + "]" : token.text;
      ++pos_;
      const bool goesOn = (isSymbol(".") || isSymbol("!")) && peek(1).isName();
      if (!goesOn) return chain;
      chain.written += peek().text;
      ++pos_;
    }
  }

 private:
  const Token& peek(std::size_t ahead = 0) const {
    return tokens_[std::min(pos_ + ahead, tokens_.size() - 1)];
  }
  bool isSymbol(std::string_view symbol) const { return peek().isSymbol(symbol); }
  // Whether the keyword stands at pos_; a field named like it follows a dot or an exclamation mark.
  bool isWord(std::string_view word) const {
    if (!peek().isWord(word)) return false;
    return pos_ == 0 || !(tokens_[pos_ - 1].isSymbol(".") || tokens_[pos_ - 1].isSymbol("!"));
  }
  bool isWords(std::string_view first, std::string_view second) const {
    return isWord(first) && peek(1).isWord(second);
  }
  bool takeWord(std::string_view word) {
    if (!isWord(word)) return false;
    ++pos_;
    return true;
  }
  bool takeSymbol(std::string_view symbol) {
    if (!isSymbol(symbol)) return false;
    ++pos_;
    return true;
  }
  void expectWord(std::string_view word) {
    if (!takeWord(word)) throw Unresolvable();
  }
  void expectSymbol(std::string_view symbol) {
    if (!takeSymbol(symbol)) throw Unresolvable();
  }
  bool isAnyWord(std::initializer_list<std::string_view> words) const {
    return std::any_of(words.begin(), words.end(),
                       [this](std::string_view word) { return isWord(word); });
  }

  // Access also takes a semicolon before UNION.
  bool takeUnion() {
    if (isSymbol(";") && peek(1).isWord("UNION")) ++pos_;
    return takeWord("UNION");
  }

  void refuseActionQuery() const {
    if (isAnyWord({"INSERT", "UPDATE", "DELETE", "CREATE", "ALTER", "DROP", "EXECUTE", "EXEC",
                   "GRANT", "REVOKE"})) {
      throw ActionQuery();
    }
  }

  // LEFT and RIGHT are functions as well, so the next word decides.
  bool isJoin() const {
    if (isWord("JOIN")) return true;
    const bool direction = std::any_of(std::begin(kJoinDirections), std::end(kJoinDirections),
                                       [this](std::string_view word) { return isWord(word); });
    return direction && (peek(1).isWord("JOIN") || peek(1).isWord("OUTER"));
  }
  bool takeJoin() {
    if (!isJoin()) return false;
    while (!takeWord("JOIN")) {
      ++pos_;
      if (!isWord("JOIN") && !isWord("OUTER")) throw Unresolvable();
    }
    return true;
  }

  // Whether the SELECT at hand ends here or one of its clauses begins.
  bool isClauseEnd() const {
    return peek().kind == TokenKind::End || isSymbol(";") || isSymbol(")") ||
           isAnyWord({"FROM", "WHERE", "HAVING", "UNION", "PIVOT", "INTO"}) ||
           isWords("GROUP", "BY") || isWords("ORDER", "BY") || isWords("WITH", "OWNERACCESS");
  }

  // The tokens up to a clause's end, or up to where stop says so, outside parentheses. There has to
  // be one at least.
  template <typename Stop>
  TokenRange expression(Stop stop) {
    const TokenRange range{pos_, skipExpression(stop)};
    if (range.empty()) throw Unresolvable();
    return range;
  }
  template <typename Stop>
  std::size_t skipExpression(Stop stop) {
    int depth = 0;
    while (peek().kind != TokenKind::End && (depth > 0 || (!isClauseEnd() && !stop()))) {
      if (isSymbol("(")) ++depth;
      if (isSymbol(")")) --depth;
      ++pos_;
    }
    return pos_;
  }

  std::vector<TokenRange> expressionList() {
    std::vector<TokenRange> list;
    do {
      list.push_back(expression([this] { return isSymbol(","); }));
    } while (takeSymbol(","));
    return list;
  }

  std::vector<TokenRange> orderTerms() {
    std::vector<TokenRange> terms = expressionList();
    for (TokenRange& term : terms) {
      const Token& last = tokens_[term.end - 1];
      if (last.isWord("ASC") || last.isWord("DESC")) --term.end;
      if (term.empty()) throw Unresolvable();
    }
    return terms;
  }

  QueryTree branch() {
    QueryTree tree;
    if (takeSymbol("(")) {
      tree = query();
      expectSymbol(")");
      if (isWords("ORDER", "BY")) {
        pos_ += 2;
        tree.branches.back().orderBy = orderTerms();
      }
    } else if (takeWord("TABLE")) {
      tree.branches.push_back(wholeTable());
    } else {
      tree.branches.push_back(select());
    }
    return tree;
  }

  // TABLE Orders is SELECT * FROM Orders.
  SelectTree wholeTable() {
    SelectTree tree;
    tree.items.emplace_back().isStar = true;
    tree.sources.emplace_back().name = nameChain();
    return tree;
  }

  SelectTree select() {
    expectWord("SELECT");
    if (!takeWord("ALL") && !takeWord("DISTINCTROW")) takeWord("DISTINCT");
    if (isWord("TOP") && peek(1).kind == TokenKind::Number) {
      pos_ += 2;
      takeWord("PERCENT");
    }
    SelectTree tree;
    do {
      tree.items.push_back(item());
    } while (takeSymbol(","));
    if (isWord("INTO")) throw ActionQuery();
    if (takeWord("FROM")) {
      do {
        joinedSources(tree);
      } while (takeSymbol(","));
    }
    if (takeWord("WHERE")) tree.conditions.push_back(expression([] { return false; }));
    if (isWords("GROUP", "BY")) {
      pos_ += 2;
      tree.groupBy = expressionList();
    }
    if (takeWord("HAVING")) tree.having = expression([] { return false; });
    if (isWords("ORDER", "BY")) {
      pos_ += 2;
      tree.orderBy = orderTerms();
    }
    return tree;
  }

  SelectItem item() {
    SelectItem item;
    if (takeSymbol("*")) {
      item.isStar = true;
      return item;
    }
    if (std::optional<NameChain> source = starOf()) {
      item.isStar = true;
      item.starOf = std::move(*source);
      return item;
    }
    item.expression = expression([this] { return isSymbol(",") || isWord("AS"); });
    if (takeWord("AS")) item.alias = alias();
    return item;
  }

  // Takes t.* or a.b.*; nothing when the item is something else.
  std::optional<NameChain> starOf() {
    if (!peek().isName()) return std::nullopt;
    const std::size_t start = pos_;
    NameChain chain = nameChain();
    if (takeSymbol(".") && takeSymbol("*")) return chain;
    pos_ = start;
    return std::nullopt;
  }

  std::string alias() {
    if (!peek().isName()) throw Unresolvable();
    const std::string_view name = trimmed(tokens_[pos_++].text);
    if (name.empty()) throw Unresolvable();
    return std::string(name);
  }

  // One entry of FROM: a source, or sources joined in any nesting. A join's condition may stand
  // behind later joins, so conditions are counted instead of matched.
  void joinedSources(SelectTree& tree) {
    const NestingGuard guard(nesting_);
    source(tree);
    int conditionsDue = 0;
    for (;;) {
      if (takeJoin()) {
        source(tree);
        ++conditionsDue;
      } else if (conditionsDue > 0 && takeWord("ON")) {
        tree.conditions.push_back(
            expression([this] { return isSymbol(",") || isWord("ON") || isJoin(); }));
        --conditionsDue;
      } else {
        break;
      }
    }
    if (conditionsDue > 0) throw Unresolvable();
  }

  void source(SelectTree& tree) {
    FromSource source;
    if (takeSymbol("(")) {
      if (!startsQuery(peek())) {
        joinedSources(tree);
        expectSymbol(")");
        return;
      }
      source.subquery = std::make_shared<const QueryTree>(query());
      takeSymbol(";");
      expectSymbol(")");
    } else {
      source.name = nameChain();
    }
    if (takeWord("AS") || isSourceAlias()) source.alias = alias();
    takeOtherDatabase();
    tree.sources.push_back(std::move(source));
  }

  bool isSourceAlias() const {
    const bool keyword = std::any_of(std::begin(kBehindSource), std::end(kBehindSource),
                                     [this](std::string_view word) { return isWord(word); });
    return peek().isName() && !keyword;
  }

  // IN 'path' or IN '' [type;DATABASE=path]
  void takeOtherDatabase() {
    const bool names = peek(1).kind == TokenKind::Text || peek(1).kind == TokenKind::Bracketed;
    if (!isWord("IN") || !names) return;
    pos_ += 2;
    if (peek().kind == TokenKind::Text || peek().kind == TokenKind::Bracketed) ++pos_;
  }

  void readPivot(Pivot& pivot) {
    pivot.heading = expression([this] { return isWord("IN"); });
    if (!takeWord("IN")) return;
    expectSymbol("(");
    do {
      pivot.headings.push_back(pivotHeading());
    } while (takeSymbol(","));
    expectSymbol(")");
  }

  // A field name holds no dot: the engine puts an underscore in its place. Null heads "<>".
  std::string pivotHeading() {
    std::string heading;
    while (peek().kind != TokenKind::End && !isSymbol(",") && !isSymbol(")")) {
      heading += isWord("NULL") ? "<>" : peek().text;
      ++pos_;
    }
    if (heading.empty()) throw Unresolvable();
    std::replace(heading.begin(), heading.end(), '.', '_');
    return heading;
  }

  std::vector<SourceParameter> parameters() {
    std::vector<SourceParameter> list;
    do {
      const NameChain chain = nameChain();
      SourceParameter parameter;
      parameter.name = chain.parts.size() == 1 ? chain.parts.front() : chain.written;
      parameter.type = parameterType(peek().text);
      while (peek().kind == TokenKind::Name) ++pos_;
      if (takeSymbol("(")) {
        while (peek().kind == TokenKind::Number || isSymbol(",")) ++pos_;
        expectSymbol(")");
      }
      list.push_back(std::move(parameter));
    } while (takeSymbol(","));
    expectSymbol(";");
    return list;
  }

  const std::vector<Token>& tokens_;
  std::size_t pos_;
  int nesting_ = 0;
};

}  // namespace

std::string NameChain::joined(std::size_t first) const {
  std::string text;
  for (std::size_t i = first; i < parts.size(); ++i) {
    if (i > first) text += '.';
    text += parts[i];
  }
  return text;
}

Statement parseStatement(const std::vector<Token>& tokens) {
  return StatementParser(tokens, 0).statement();
}

QueryTree parseQuery(const std::vector<Token>& tokens, std::size_t& pos) {
  StatementParser parser(tokens, pos);
  QueryTree tree = parser.query();
  pos = parser.pos();
  return tree;
}

bool startsQuery(const Token& token) { return token.isWord("SELECT") || token.isWord("TRANSFORM"); }

NameChain parseNameChain(const std::vector<Token>& tokens, std::size_t& pos) {
  StatementParser parser(tokens, pos);
  NameChain chain = parser.nameChain();
  pos = parser.pos();
  return chain;
}

int parameterType(std::string_view name) {
  struct TypeName {
    std::string_view word;
    int type;
  };
  static constexpr TypeName kTypes[] = {
      {"BIT", 1},       {"BOOLEAN", 1},     {"LOGICAL", 1},  {"YESNO", 1},      {"BYTE", 2},
      {"INTEGER1", 2},  {"SHORT", 3},       {"SMALLINT", 3}, {"INTEGER2", 3},   {"LONG", 4},
      {"INTEGER", 4},   {"INT", 4},         {"INTEGER4", 4}, {"COUNTER", 4},    {"CURRENCY", 5},
      {"MONEY", 5},     {"SINGLE", 6},      {"REAL", 6},     {"IEEESINGLE", 6}, {"FLOAT4", 6},
      {"DOUBLE", 7},    {"IEEEDOUBLE", 7},  {"FLOAT", 7},    {"FLOAT8", 7},     {"NUMBER", 7},
      {"NUMERIC", 7},   {"DATETIME", 8},    {"DATE", 8},     {"TIME", 8},       {"BINARY", 9},
      {"VARBINARY", 9}, {"LONGBINARY", 11}, {"GENERAL", 11}, {"OLEOBJECT", 11}, {"MEMO", 12},
      {"LONGTEXT", 12}, {"LONGCHAR", 12},   {"NOTE", 12},    {"GUID", 15},      {"DECIMAL", 20}};
  for (const TypeName& known : kTypes) {
    if (equalsWord(name, known.word)) return known.type;
  }
  return 10;
}

}  // namespace tarrowin
