// The scans of SQL text and the questions to DAO.
#include "query/sql_analysis.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/main_object.h"
#include "core/statement.h"
#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrItemNotFound = 3265;

// A procedure that reports every error in a box and goes on at the next statement.
Procedure::Handler boxAndGoOn(MainObject& main, std::string_view name) {
  return [&main, name](const VbError& error) {
    main.errorBox(name, error);
    return Resume::kNext;
  };
}

// The number of the error that a statement raised, 0 without one.
template <class Statement>
std::int32_t errorOf(Statement&& statement) {
  try {
    statement();
    return 0;
  } catch (const VbError& error) {
    return error.number();
  }
}

void replaceAll(std::string& text, const std::string& find, const std::string& replacement) {
  std::size_t at = 0;
  std::string result;
  for (;;) {
    const std::size_t found = text.find(find, at);
    if (found == std::string::npos) break;
    result.append(text, at, found - at).append(replacement);
    at = found + find.size();
  }
  text = result.append(text, at, std::string::npos);
}

// gstrSourceTables as the analysis fills it: by an index from 0 on, two empty elements behind.
class SourceTables {
 public:
  explicit SourceTables(std::vector<std::string>& tables) : tables_(tables) {
    tables_.assign(2, "");
  }
  void setCurrent(std::string name) { tables_[index_] = std::move(name); }
  void grow() {
    tables_.emplace_back();
    ++index_;
  }
  // Upper bound less 1.
  std::int32_t count() const { return static_cast<std::int32_t>(tables_.size()) - 2; }

 private:
  std::vector<std::string>& tables_;
  std::size_t index_ = 0;
};

// The scan for names behind FROM and JOIN. A cut that fails with its position not beyond the start
// of the name ends it.
class NameScan {
 public:
  NameScan(MainObject& main, std::string_view text)
      : procedure_(boxAndGoOn(main, "GetSQLRecordsetInfo")),
        text_(text),
        tables_(main.state.gstrSourceTables) {}

  std::int32_t run() {
    procedure_.run([this] {
      if (text_.empty()) return;
      scanFrom();
      scanJoin();
    });
    return tables_.count();
  }

 private:
  // Distance from the start of either keyword to the name behind it and a blank.
  static constexpr std::int32_t kKeywordLength = 5;

  // A missing keyword gives 5, which lies before any position but the first.
  std::int32_t startBehind(std::string_view keyword) const {
    return InStr(position_, text_, keyword) + kKeywordLength;
  }
  // Cuts the name between start and the position into the target; true when it could be cut.
  bool cut(std::int32_t start, std::string& target) {
    return procedure_.statement([&] { target = Mid(text_, start, position_ - start); });
  }

  void scanFrom() {
    for (;;) {
      const std::int32_t start = startBehind("FROM");
      if (start <= position_) return;
      position_ = InStr(start, text_, " ");
      std::string name;
      const bool done = cut(start, name);
      tables_.setCurrent(name);
      tables_.grow();
      if (!done && position_ <= start) procedure_.leave();
    }
  }

  void scanJoin() {
    std::string name;
    while (position_ <= static_cast<std::int32_t>(text_.size())) {
      const std::int32_t start = startBehind("JOIN");
      if (start <= position_) return;
      position_ = InStr(start, text_, " ");
      bool done = cut(start, name);
      std::replace(name.begin(), name.end(), '(', ' ');
      name = Trim(name);
      if (name.starts_with('[')) {
        position_ = InStr(start, text_, "]") + 1;
        done = cut(start, name);
      }
      if (name.starts_with('[')) {
        procedure_.statement(
            [&] { name = Mid(name, 2, static_cast<std::int32_t>(name.size()) - 2); });
      }
      tables_.setCurrent(name);
      tables_.grow();
      if (!done && position_ <= start) procedure_.leave();
    }
  }

  Procedure procedure_;
  std::string_view text_;
  SourceTables tables_;
  std::int32_t position_ = 1;
};

// The names in a PARAMETERS clause; a name that cannot be cut is empty.
std::vector<std::string> parameterNames(Procedure& procedure, const std::string& clause) {
  // The character behind "PARAMETERS ".
  constexpr std::int32_t kFirstName = 12;
  std::vector<std::string> names;
  // Cuts the name that starts at the position, in brackets or up to a blank; gives where it ends.
  const auto cutName = [&](std::int32_t start) {
    const bool bracketed = Mid(clause, start, 1) == "[";
    const std::int32_t from = bracketed ? start + 1 : start;
    const std::int32_t end = InStr(from, clause, bracketed ? "]" : " ");
    names.emplace_back();
    procedure.statement([&] { names.back() = Mid(clause, from, end - from); });
    return end;
  };
  const std::int32_t end = cutName(kFirstName);
  std::vector<std::int32_t> commas;
  for (std::int32_t at = InStr(std::max(end, 1), clause, ","); at > 0;
       at = InStr(at + 1, clause, ",")) {
    commas.push_back(at);
  }
  // A name follows its comma after exactly one blank.
  for (const std::int32_t comma : commas) cutName(comma + 2);
  return names;
}

Value valueForType(std::int32_t daoType, Date now) {
  switch (daoType) {
    case 8:
      return Date{std::floor(now.days)};
    case 20:
    case 7:
    case 21:
    case 15:
    case 3:
    case 16:
    case 4:
    case 9:
    case 11:
    case 19:
    case 6:
    case 5:
    case 1:
    case 17:
      return std::int32_t{0};
    case 10:
    case 18:
    case 2:
    case 12:
      return "";
    case 22:
    case 23:
      return now;
    default:
      return {};
  }
}

}  // namespace

std::int32_t TableOrQuery(MainObject& main, std::string_view strName) {
  const Database& database = main.state.mdbCurr;
  const std::int32_t error = errorOf([&] { database.TableDefs()(strName).Name(); });
  return error != kErrItemNotFound ? 1 : 0;
}

std::string ExtractSQL(MainObject& main, std::string_view strQueryName) {
  std::string strSQL;
  Procedure procedure([&](const VbError& error) {
    if (error.number() != 2601 && error.number() != 3258) main.errorBox("ExtractSQL", error);
    return Resume::kLeave;
  });
  procedure.run([&] {
    procedure.statement([&] {
      const Collection<QueryDef> queryDefs = main.state.mdbCurr.QueryDefs();
      const std::int32_t count = queryDefs.Count();
      for (std::int32_t i = 0; i < count; ++i) {
        const QueryDef query = queryDefs(i);
        if (query.Name() != strQueryName) continue;
        if (!strQueryName.starts_with('~')) strSQL = query.SQL();
        return;
      }
    });
    RemoveLineBreaks(strSQL);
    DoubleToSingleQuotes(strSQL);
  });
  return strSQL;
}

std::string ExtractSQLParams(MainObject& main, std::string& strSQL) {
  if (!strSQL.starts_with("PARAMETERS")) return "";
  Procedure procedure(boxAndGoOn(main, "ExtractSQLParams"));
  const std::int32_t semicolon = InStr(strSQL, ";");
  std::string clause;
  procedure.statement([&] { clause = Left(strSQL, semicolon - 1); });
  std::string body = Mid(strSQL, semicolon + 1);
  for (const std::string& name : parameterNames(procedure, clause)) {
    // A name without a blank ends the repair, also for the names behind it.
    const std::size_t blank = name.find(' ');
    if (blank == std::string::npos) break;
    std::string newName = name;
    newName[blank] = '_';
    const std::string bracketed = "[" + name + "]";
    replaceAll(clause, bracketed, newName);
    replaceAll(body, bracketed, newName);
  }
  strSQL = body;
  return clause + ";" + body;
}

std::int32_t GetRecordsetSourceTables(MainObject& main, std::string& strSourceTable) {
  SourceTables tables(main.state.gstrSourceTables);
  ignoringErrors([&] {
    const Recordset recordset =
        main.state.mdbCurr.OpenRecordset(strSourceTable, access_constants::dbOpenDynaset);
    const Collection<Field> fields = recordset.Fields();
    const std::int32_t count = fields.Count();
    for (std::int32_t i = 0; i < count; ++i) {
      ignoringErrors([&] {
        const std::string table = fields(i).SourceTable();
        if (table == strSourceTable) return;
        strSourceTable = table;
        tables.setCurrent(table.empty() ? "QUERY" : table);
        tables.grow();
      });
    }
    recordset.Close();
  });
  return tables.count();
}

std::int32_t GetSQLRecordsetInfo(MainObject& main, std::string_view strSQL) {
  return NameScan(main, strSQL).run();
}

void GetQueryParams(MainObject& main, const QueryDef& queryDef) {
  Procedure procedure(boxAndGoOn(main, "GetQueryParams"));
  std::int32_t count = 0;
  procedure.statement([&] { count = queryDef.Parameters().Count(); });
  for (std::int32_t i = 0; i < count; ++i) {
    procedure.statement([&] {
      const Parameter parameter = queryDef.Parameters()(i);
      const Value value = valueForType(parameter.Type(), main.Now());
      if (!value.isEmpty()) parameter.setValue(value);
    });
  }
}

}  // namespace tarrowin
