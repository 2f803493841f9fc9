// Reads the text export of a saved query: lines "Name =value" in blocks "Begin Kind" ... "End".
// A value is a number, or quoted texts one below the other.
#include "query_text/query_export.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

#include "query_text/row_builder.h"

namespace tarrowin::mdb {
namespace {

std::string trimmed(const std::string& line) {
  const auto begin = line.find_first_not_of(" \t\r");
  return begin == std::string::npos
             ? ""
             : line.substr(begin, line.find_last_not_of(" \t\r") + 1 - begin);
}

// The text inside the quotes; \" and \\ and three octal digits are characters.
std::string unquoted(const std::string& quoted) {
  std::string text;
  for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
    if (quoted[i] != '\\') {
      text += quoted[i];
    } else if (i + 3 < quoted.size() && quoted[i + 1] >= '0' && quoted[i + 1] <= '7') {
      text += static_cast<char>(std::stoi(quoted.substr(i + 1, 3), nullptr, 8));
      i += 3;
    } else {
      text += quoted[++i];
    }
  }
  return text;
}

struct Line {
  std::string name;  // "Begin InputTables" and "End" stand whole
  std::string value;
};

std::vector<Line> linesOf(const std::string& file) {
  std::vector<Line> lines;
  std::istringstream stream(file);
  for (std::string raw; std::getline(stream, raw);) {
    const std::string line = trimmed(raw);
    const auto equals = line.find('=');
    if (line.starts_with('"') && !lines.empty()) {
      lines.back().value += unquoted(line);
    } else if (line.starts_with("Begin") || equals == std::string::npos) {
      lines.push_back({line, ""});
    } else {
      const std::string value = line.substr(equals + 1);
      lines.push_back({trimmed(line.substr(0, equals)),
                       value.starts_with('"') ? unquoted(value) : trimmed(value)});
    }
  }
  return lines;
}

// The design as rows, made line by line: some names come before the line that ends their row,
// others behind it.
class DesignRows {
 public:
  void take(const std::string& block, const Line& line) {
    if (block.empty()) {
      takeTop(line);
    } else if (block == "Begin InputTables") {
      if (line.name == "Name") rows_.source(line.value);
      if (line.name == "Alias") last().name2 = line.value;
    } else if (block == "Begin OutputColumns") {
      if (line.name == "Alias") alias_ = line.value;
      if (line.name == "Name") field_ = line.value;
      if (line.name == "GroupLevel") last().flag = std::stoi(line.value);
      if (line.name == "Expression") {
        rows_.add(6, std::exchange(alias_, {}), std::exchange(field_, {}), line.value, 0);
      }
    } else if (block == "Begin Joins") {
      if (line.name == "LeftTable") rows_.join(line.value, "", "");
      if (line.name == "RightTable") last().name2 = line.value;
      if (line.name == "Expression") last().expression = line.value;
      if (line.name == "Flag") last().flag = std::stoi(line.value);
    } else if (block == "Begin OrderBy") {
      if (line.name == "Expression") rows_.orderBy(line.value);
      if (line.name == "Flag" && line.value == "1") last().name1 = "D";
    } else if (block == "Begin Groups") {
      if (line.name == "Expression") rows_.groupBy(line.value);
      if (line.name == "GroupLevel") last().flag = std::stoi(line.value);
    } else if (block == "Begin Parameters") {
      if (line.name == "Name") rows_.parameter(line.value, 0);
      if (line.name == "Flag") last().flag = std::stoi(line.value);
    }
  }

  std::vector<QueryRow> finish() {
    rows_.kind(operation_, target_, database_).options(options_, top_);
    return rows_.rows();
  }

 private:
  void takeTop(const Line& line) {
    if (line.name == "Operation") operation_ = std::stoi(line.value);
    if (line.name == "Option") options_ = std::stoi(line.value);
    if (line.name == "RowCount") top_ = line.value;
    if (line.name == "Name") target_ = line.value;
    if (line.name == "Database") database_ = line.value;
    if (line.name == "Where") rows_.where(line.value);
    if (line.name == "Having") rows_.having(line.value);
  }

  QueryRow& last() { return rows_.rows().back(); }

  RowBuilder rows_;
  std::string alias_, field_, target_, database_, top_;
  int operation_ = 1;
  int options_ = 0;
};

}  // namespace

QueryExport readQueryExport(const std::filesystem::path& file) {
  QueryExport result;
  DesignRows design;
  std::string block;
  bool hasDesign = false;
  for (const Line& line : linesOf(readFile(file))) {
    if (line.name == "Begin") break;  // the properties of the result's fields follow
    if (line.name == "End") {
      block.clear();
    } else if (line.name.starts_with("Begin") || line.value == "Begin") {
      block = line.name;
    } else if (line.name == "dbMemo \"SQL\"") {
      result.sql = line.value;
    } else {
      hasDesign = hasDesign || line.name == "Operation";
      design.take(block, line);
    }
  }
  if (hasDesign) result.rows = design.finish();
  return result;
}

std::string readFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::string text(std::istreambuf_iterator<char>(stream), {});
  return text.starts_with("\xEF\xBB\xBF") ? text.substr(3) : text;
}

std::filesystem::path samplesFolder() {
  const char* named = std::getenv("TARROWIN_SAMPLES");
  const std::filesystem::path folder =
      named ? std::filesystem::path(named)
            : std::filesystem::path(TARROWIN_SOURCE_DIR) / ".." / "shared" / "samples";
  return std::filesystem::is_directory(folder) ? folder : std::filesystem::path();
}

std::vector<std::filesystem::path> exportedQueries(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const bool isQuery =
        entry.path().parent_path().filename() == "queries" || entry.path().extension() == ".qry";
    if (isQuery && entry.path().extension() != ".sql") files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace tarrowin::mdb
