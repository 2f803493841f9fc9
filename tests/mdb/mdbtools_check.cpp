// Runs mdb-tables, mdb-schema and mdb-export and reads their answers.
// Control characters part the fields and rows of the export, so that any text comes through.
#include "mdb/mdbtools_check.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "mdb/sample_files.h"

namespace tarrowin::mdb {
namespace fs = std::filesystem;
namespace {

constexpr const char* kFieldEnd = "\x1f";
constexpr const char* kRowEnd = "\x1e";
constexpr const char* kNullMark = "\x1d";

std::vector<std::string> split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t at; (at = text.find(separator, start)) != std::string::npos;) {
    parts.push_back(text.substr(start, at - start));
    start = at + separator.size();
  }
  parts.push_back(text.substr(start));
  return parts;
}

std::string hexText(const Bytes& bytes) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (std::uint8_t byte : bytes) {
    text.push_back(kDigits[byte >> 4]);
    text.push_back(kDigits[byte & 15]);
  }
  return text;
}

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

// "2004-02-29 13:45:10" as days since 1899-12-30; years before 1900 are not to be expected.
double daysOf(const std::string& text) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
  if (std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute,
                  &second) != 6) {
    ADD_FAILURE() << "no date: " << text;
    return 0;
  }
  int y = month <= 2 ? year - 1 : year;
  int m = (month + 9) % 12;
  double days = 365.0 * y + y / 4 - y / 100 + y / 400 + (153 * m + 2) / 5 + day - 1 - 693899;
  return days + (hour * 3600 + minute * 60 + second) / 86400.0;
}

bool closeTo(double ours, double theirs, double relative) {
  return ours == theirs || std::fabs(ours - theirs) <= relative * std::fabs(ours);
}

// They cut a Binary at its first zero byte.
bool agreesUpToZero(const Bytes& ours, const std::string& theirs) {
  std::string hex = lowerCase(theirs);
  if (hex.size() % 2 != 0 || !hexText(ours).starts_with(hex)) return false;
  return hex.empty() || hex.size() / 2 == ours.size() || ours[hex.size() / 2] == 0;
}

Bytes withoutLastDash(std::string text) {
  text.erase(text.rfind('-'), 1);
  return Bytes(text.begin(), text.end());
}

// Whether the program's text says the same as our value.
bool agrees(const Value& ours, const std::string& theirs, int type) {
  if (type == kDaoBinary && ours.bytes() != nullptr) {
    return agreesUpToZero(*ours.bytes(), theirs == kNullMark ? "" : theirs);
  }
  // They take a text without characters for Null.
  if (ours.text() != nullptr && ours.text()->empty() && theirs == kNullMark) return true;
  if (ours.isNull()) return theirs == kNullMark;
  if (theirs == kNullMark) return false;
  if (ours.boolean() != nullptr) return theirs == (*ours.boolean() ? "1" : "0");
  if (ours.longInteger() != nullptr) return theirs == std::to_string(*ours.longInteger());
  if (ours.doubleNumber() != nullptr) {
    // Single and Currency are printed with fewer digits than a Double has.
    double relative = type == kDaoSingle ? 1e-6 : 1e-14;
    return closeTo(*ours.doubleNumber(), std::strtod(theirs.c_str(), nullptr), relative);
  }
  if (ours.date() != nullptr) {
    // They cut to whole seconds.
    return std::fabs(ours.date()->days - daysOf(theirs)) < 1.5 / 86400;
  }
  // They print nothing of a fixed binary, and types of newer files as numbers.
  if (type > kDaoGuid) return true;
  if (ours.bytes() != nullptr) return lowerCase(theirs) == hexText(*ours.bytes());
  // They take a GUID's text for binary, and leave out its last dash.
  if (type == kDaoGuid) return lowerCase(theirs) == hexText(withoutLastDash(*ours.text()));
  // They end a text at a zero character.
  return ours.text()->substr(0, ours.text()->find('\0')) == theirs;
}

std::string show(const Value& value) {
  if (value.isNull()) return "Null";
  if (value.bytes() != nullptr) {
    return std::to_string(value.bytes()->size()) + " bytes " +
           hexText(*value.bytes()).substr(0, 80);
  }
  if (value.text() != nullptr) return "\"" + *value.text() + "\"";
  if (value.date() != nullptr) return "date " + std::to_string(value.date()->days);
  return toText(value);
}

std::string show(const std::vector<Value>& values) {
  std::string text;
  for (const Value& value : values) text += " " + show(value) + ";";
  return text;
}

struct SchemaColumn {
  std::string type;
  int size = 0;
};

// "\t[Name]\t\t\tText (50) NOT NULL, "
std::pair<std::string, SchemaColumn> readSchemaLine(const std::string& line) {
  std::size_t nameEnd = line.find("]\t");
  std::string name = line.substr(2, nameEnd - 2);
  std::string type = line.substr(line.find_first_not_of("\t", nameEnd + 1));
  type.erase(type.find_last_not_of(", ") + 1);
  if (type.ends_with(" NOT NULL")) type.erase(type.size() - 9);
  SchemaColumn column;
  std::size_t parenthesis = type.find(" (");
  if (parenthesis != std::string::npos) column.size = std::atoi(type.c_str() + parenthesis + 2);
  column.type = type.substr(0, parenthesis);
  return {name, column};
}

const char* schemaType(int type) {
  switch (type) {
    case kDaoBoolean:
      return "Boolean";
    case kDaoByte:
      return "Byte";
    case kDaoInteger:
      return "Integer";
    case kDaoLong:
      return "Long Integer";
    case kDaoCurrency:
      return "Currency";
    case kDaoSingle:
      return "Single";
    case kDaoDouble:
      return "Double";
    case kDaoDate:
      return "DateTime";
    case kDaoBinary:
      return "Binary";
    case kDaoText:
      return "Text";
    case kDaoLongBinary:
      return "OLE";
    case kDaoMemo:
      return "Memo/Hyperlink";
    case kDaoGuid:
      return "Replication ID";
    case kDaoDecimal:
      return "Numeric";
    default:
      return "?";
  }
}

}  // namespace

void expectSameTables(const Database& database, const fs::path& file) {
  std::set<std::string> theirs;
  ProgramResult result = runProgram({"mdb-tables", "-S", "-1", file});
  ASSERT_EQ(result.status, 0);
  for (const std::string& name : split(result.output, "\n")) {
    // They also list what is left of deleted tables.
    if (!name.empty() && !name.starts_with("~TMP")) theirs.insert(name);
  }
  std::set<std::string> ours;
  for (const CatalogObject& table : database.objects(ObjectKind::kTable)) ours.insert(table.name);
  EXPECT_EQ(ours, theirs);
  EXPECT_GE(ours.size(), 4u);
}

void expectSameColumns(const Database& database, const CatalogObject& table, const fs::path& file) {
  ProgramResult result = runProgram({"mdb-schema", "-T", table.name, file});
  ASSERT_EQ(result.status, 0);
  std::map<std::string, SchemaColumn> theirs;
  for (const std::string& line : split(result.output, "\n")) {
    if (line.starts_with("\t[")) theirs.insert(readSchemaLine(line));
  }
  const std::vector<Column>& columns = database.columns(table);
  EXPECT_EQ(columns.size(), theirs.size()) << result.output;
  for (const Column& column : columns) {
    auto found = theirs.find(column.name);
    if (found == theirs.end()) {
      ADD_FAILURE() << "only we have column " << column.name << "\n" << result.output;
      continue;
    }
    // They have no words for fixed binary and the types that only newer files have.
    if (!found->second.type.starts_with("Unknown")) {
      std::string expected = schemaType(column.type);
      EXPECT_EQ(found->second.type, expected) << column.name;
    }
    if (column.type == kDaoText) {
      EXPECT_EQ(column.size, found->second.size) << column.name;
    }
  }
}

void expectSameRows(const Database& database, const CatalogObject& table, const fs::path& file) {
  ProgramResult result = runProgram({"mdb-export", "-Q", "-b", "hex", "-T", "%Y-%m-%d %H:%M:%S",
                                     "-D", "%Y-%m-%d %H:%M:%S", "-0", kNullMark, "-d", kFieldEnd,
                                     "-R", kRowEnd, file, table.name});
  ASSERT_EQ(result.status, 0);
  std::vector<std::string> lines = split(result.output, kRowEnd);
  ASSERT_FALSE(lines.empty());
  lines.pop_back();  // behind the last row's end
  ASSERT_FALSE(lines.empty()) << "no heading";
  std::vector<std::string> names = split(lines[0], kFieldEnd);
  std::vector<std::vector<std::string>> theirs;
  for (std::size_t line = 1; line < lines.size(); ++line) {
    theirs.push_back(split(lines[line], kFieldEnd));
  }
  const std::vector<Column>& columns = database.columns(table);
  std::vector<std::size_t> places;
  for (const Column& column : columns) {
    auto place = std::find(names.begin(), names.end(), column.name);
    ASSERT_NE(place, names.end()) << column.name;
    places.push_back(static_cast<std::size_t>(place - names.begin()));
  }
  Rows rows = database.rows(table);
  for (std::size_t number = 0; rows.next(); ++number) {
    std::vector<Value> ours = rows.values();
    auto same = [&](const std::vector<std::string>& fields) {
      for (std::size_t i = 0; i < columns.size(); ++i) {
        // They leave out this one column, which is 2 in all rows by the text export beside the
        // file.
        if (columns[i].name == "DateOrder" && table.name == "MSysIMEXSpecs") {
          if (ours[i] != Value(2)) return false;
          continue;
        }
        if (places[i] >= fields.size() || !agrees(ours[i], fields[places[i]], columns[i].type)) {
          return false;
        }
      }
      return true;
    };
    // A row that has moved stands at its first place for us, at its last for them.
    auto found = std::find_if(theirs.begin(), theirs.end(), same);
    if (found == theirs.end()) {
      ADD_FAILURE() << "only we have row " << number << ":" << show(ours);
    } else {
      theirs.erase(found);
    }
  }
  for (const auto& fields : theirs) ADD_FAILURE() << "only they have a row: " << fields[0];
}

}  // namespace tarrowin::mdb
