// All SQL of real exported databases: first with no table known, then with every name a table.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/record_source/fold_name.h"
#include "access/record_source/record_source.h"
#include "access/record_source/sql_tokens.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

std::filesystem::path exportsFolder() {
  if (const char* samples = std::getenv("TARROWIN_SAMPLES")) {
    return std::filesystem::path(samples) / "exports";
  }
  return std::filesystem::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples" / "exports";
}

// The file in UTF-8 without zero bytes, so that UTF-16 with Latin letters reads as well.
std::string textOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(stream), {}};
  std::erase(text, '\0');
  return text;
}

// The value of a property in a text export from its opening quote on: quoted pieces, one a line,
// with \" and \\ and octal codes.
std::string quotedValue(const std::string& text, std::size_t pos) {
  std::string value;
  while (pos < text.size() && text[pos] == '"') {
    for (++pos; pos < text.size() && text[pos] != '"'; ++pos) {
      const bool octal = text[pos] == '\\' && pos + 3 < text.size() && text[pos + 1] == '0';
      if (octal) {
        value += static_cast<char>(std::stoi(text.substr(pos + 1, 3), nullptr, 8));
        pos += 3;
      } else {
        if (text[pos] == '\\') ++pos;
        value += text[pos];
      }
    }
    ++pos;
    pos = std::min(text.find_first_not_of(" \r\n", pos), text.size());
  }
  return value;
}

std::set<std::string> exportedSql() {
  std::set<std::string> all;
  const std::filesystem::path folder = exportsFolder();
  if (!std::filesystem::is_directory(folder)) return all;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const std::string text = textOf(entry.path());
    if (entry.path().extension() == ".sql") all.insert(text);
    for (std::string_view property : {"dbMemo \"SQL\" =", "RecordSource =", "RowSource ="}) {
      for (std::size_t at = text.find(property); at != std::string::npos;
           at = text.find(property, at + 1)) {
        const std::string value = quotedValue(text, at + property.size());
        if (value.find(' ') != std::string::npos) all.insert(value);
      }
    }
  }
  return all;
}

// Knows no table.
class NoTables : public Schema {
 public:
  std::optional<SchemaTable> findTable(std::string_view) const override { return std::nullopt; }
  std::optional<SchemaQuery> findQuery(std::string_view) const override { return std::nullopt; }
};

// Takes every name for a table, with the fields that one text mentions behind it and a dot.
class AnyTable : public Schema {
 public:
  explicit AnyTable(const std::vector<Token>& tokens) : tokens_(tokens) {}

  std::optional<SchemaTable> findTable(std::string_view name) const override {
    if (name.find_first_of(" \r\n") != std::string_view::npos && tokens_.size() > 3 &&
        name.size() > 40) {
      return std::nullopt;  // the text itself
    }
    SchemaTable table{std::string(name), {}};
    std::set<std::string> known;
    for (std::size_t i = 0; i + 2 < tokens_.size(); ++i) {
      const bool field = foldName(tokens_[i].text) == foldName(name) &&
                         (tokens_[i + 1].isSymbol(".") || tokens_[i + 1].isSymbol("!")) &&
                         tokens_[i + 2].isName();
      if (field && known.insert(foldName(tokens_[i + 2].text)).second) {
        table.fields.push_back({tokens_[i + 2].text, 4, 4, "", ""});
      }
    }
    table.fields.push_back({"a field of " + table.name, 4, 4, "", ""});
    return table;
  }
  std::optional<SchemaQuery> findQuery(std::string_view) const override { return std::nullopt; }

 private:
  const std::vector<Token>& tokens_;
};

int errorNumber(const Schema& schema, const std::string& sql) {
  try {
    RecordSourceAnalyzer(schema).fieldsOf(sql);
    return 0;
  } catch (const VbError& error) {
    return error.number();
  }
}

TEST(ExportedSql, WithoutTablesNothingIsResolved) {
  const std::set<std::string> all = exportedSql();
  if (all.empty()) GTEST_SKIP() << "no folder of exported databases";
  const NoTables schema;
  for (const std::string& sql : all) {
    const bool hasSource = sql.find("FROM") != std::string::npos;
    const int number = errorNumber(schema, sql);
    if (hasSource) {
      EXPECT_THAT(number, testing::AnyOf(3078, 3219)) << sql;
    }
  }
}

TEST(ExportedSql, WithTablesEverySelectIsUnderstood) {
  const std::set<std::string> all = exportedSql();
  if (all.empty()) GTEST_SKIP() << "no folder of exported databases";
  int selects = 0;
  for (const std::string& sql : all) {
    const std::string start = foldName(trimmed(sql).substr(0, 7));
    if (start != "select " && start != "select\r" && !start.starts_with("transfo")) continue;
    ++selects;
    const std::vector<Token> tokens = tokenize(sql);
    EXPECT_THAT(errorNumber(AnyTable(tokens), sql), testing::AnyOf(0, 3061, 3219)) << sql;
  }
  EXPECT_GT(selects, 0);
}

}  // namespace
}  // namespace tarrowin
