// The rows of the file, the recordsets with their groups and relations, the error table.
#include "reports/data_environment.h"

#include <cstddef>
#include <span>
#include <string>

#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "reports/group_levels.h"
#include "reports/report_procedure.h"
#include "reports/report_source.h"
#include "reports/report_values.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;

constexpr ReportErrorTable kErrors = {"GetDesignerReportProps", kReportDataSilent, true};

// The most that the designer's window is wide, in twips, and how much it is larger than the report.
constexpr std::int32_t kWidestClient = 11520, kWidestExtent = 15360;
constexpr std::int64_t kExtent = 840;

void extentX(const PrintedControl& report, std::string_view property, std::string& line) {
  const Value width = report.ctl.get(property);
  line +=
      isAbove(width, kWidestExtent) ? std::to_string(kWidestExtent) : joined(sum(width, kExtent));
}

void extentY(const PrintedControl& report, std::string_view, std::string& line) {
  line += std::to_string(report.state().lngReportHeight + kExtent);
}

void databasePath(const PrintedControl& report, std::string_view, std::string& line) {
  line += report.state().mstrDbFullName + '"';
}

// clang-format off
constexpr PrinterRow kHeaderRows[] = {
    {"VERSION 5.00"},
    {"Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} de", baseName},
    {"   ClientHeight     = ",   reportHeight},
    {"   ClientLeft       = 0"},
    {"   ClientTop        = 0"},
    {"   ClientWidth      = ",   atMost<kWidestClient>,  "Width"},
    {"   _ExtentX         = ",   extentX,      "Width"},
    {"   _ExtentY         = ",   extentY},
    {"   FolderFlags      = 7"},
    {"   TypeInfoCookie   = 0"},
    {"   Version          = 4"},
    {"   NumConnections   = 1"},
    {"   BeginProperty Connection1"},
    {"      ConnectionName   = \"Connection1\""},
    {"      ConnDispID       = 1001"},
};
// Behind "SourceOfData".
constexpr PrinterRow kConnectionRows[] = {
    {"      ConnectionSource = \"Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=", databasePath},
    {"      Expanded         = -1   'True"},
    {"      QuoteChar        = 96"},
    {"      SeparatorChar    = 46"},
    {"   EndProperty   ' Connection1"},
};

constexpr PrinterRow kExpansionRows[] = {
    {"      Expanded        = -1   'True"},
    {"      SummaryExpanded = -1   'True"},
    {"      DetailExpanded  = -1   'True"},
    {"      IsRSReturning   = -1   'True"},
};

// Behind "BeginProperty Field", for a field of the recordset.
constexpr PrinterRow kFieldRows[] = {
    {"         Precision    = 0"},
    {"         Size         = ",  raw,    "Size"},
    {"         Scale        = 0"},
    {"         Type         = ",  raw,    "Type"},
    {"         Name         = ",  quoted, "Name"},
    {"         Caption      = ",  quoted, "Name"},
};

// Behind "BeginProperty Grouping", before its names.
constexpr PrinterRow kGroupingRows[] = {
    {"         Precision    = 0"},
    {"         Size         = 0"},
    {"         Scale        = 0"},
    {"         Type         = 200"},
};
// clang-format on

class DataEnvironment {
 public:
  explicit DataEnvironment(MainObject& main)
      : main_(main), state_(main.state), procedure_(main, kErrors) {}

  void write();

 private:
  void printHeader();
  void printRecordset(std::int32_t i);
  void printCommand(std::int32_t i);
  void printGrouping();
  void printParent(std::int32_t i);
  void printContent(std::int32_t i);
  void printFields();
  void printGroups();
  void printRelations(std::int32_t i);
  std::int32_t relationCount();
  void printJoin();
  void printRelationBlocks(std::int32_t most);
  template <class ParentField, class ChildField>
  void printRelation(std::int32_t number, ParentField parentField, ChildField childField);

  // The database's relations one by one, until the visitor says false.
  template <class Visit>
  void forEachRelation(Visit visit);
  // Whether the relation concerns the source in hand.
  bool matches(const Relation& relation) const {
    return holds([&] {
      const std::string table = relation.Table();
      return source_.strSourceName == table || InStr(relation.Name(), table) > 0;
    });
  }

  template <class Text>
  void line(Text&& text) {
    procedure_.statement([&] { main_.files.Print(kOutputFile, text()); });
  }
  void print(std::string_view text) {
    line([&] { return text; });
  }
  void rows(const LateBound& object, std::span<const PrinterRow> rows) {
    const PrintedControl printed{main_, object};
    for (const PrinterRow& row : rows) {
      procedure_.statement([&] { printRow(printed, row, ""); });
    }
  }

  MainObject& main_;
  ConversionState& state_;
  ReportProcedure procedure_;
  ReportSource source_;
  Recordset recordset_;
  std::int32_t groups_ = 0;  // G
  std::string strCommandName_, strParentCommand_;
};

void DataEnvironment::write() {
  state_.blnParamQuery = false;
  state_.blnJoinSQL = false;
  state_.strCommandNames.assign(1, "");
  readReportHeights(procedure_, state_.mrptCurr, state_);
  source_ = classifyReportSource(main_, procedure_);
  const std::int32_t count = countRecordsets(main_, source_);
  printHeader();
  print("   NumRecordsets   = " + std::to_string(count));
  for (std::int32_t i = 0; i < count; ++i) printRecordset(i);
  print("End  ' Report Designer de" + state_.mstrBaseName);
  procedure_.statement([&] { main_.files.Close(kOutputFile); });
}

void DataEnvironment::printHeader() {
  rows(state_.mrptCurr, kHeaderRows);
  print("      SourceOfData     = " + std::to_string(source_.intSourceOfData));
  rows(state_.mrptCurr, kConnectionRows);
}

void DataEnvironment::printRecordset(std::int32_t i) {
  const std::string number = std::to_string(i + 1);
  if (source_.blnSQLSource) {
    source_.strSourceName = state_.gstrSourceTables[static_cast<std::size_t>(i)];
    strCommandName_ = "Command1";
  } else {
    strCommandName_ = MakeVBName(std::string(source_.text));
  }
  state_.strCommandNames.back() = strCommandName_;
  state_.strCommandNames.emplace_back();
  print("   BeginProperty Recordset" + number);
  printCommand(i);
  if (!source_.strSourceName.empty()) printContent(i);
  print("   EndProperty  'Recordset" + number);
}

void DataEnvironment::printCommand(std::int32_t i) {
  constexpr std::int32_t kText = 1, kTableOrQuery = 2;
  print("      CommandName     = " + inQuotes(strCommandName_));
  print("      CommDispId      = 1002");
  print("      RsDispId        = 1003");
  print("      CommandText     = " + inQuotes(source_.strCommandText));
  print("      ActiveConnectionName= \"Connection1\"");
  print("      CommandType     = " +
        std::to_string(source_.isCommand(state_) ? kText : kTableOrQuery));
  print("      dbObjectType    = " + std::string(source_.blnIsTable ? "1" : "2"));
  if (i == 0) {
    printGrouping();
  } else {
    printParent(i);
  }
  rows(state_.mrptCurr, kExpansionRows);
}

void DataEnvironment::printGrouping() {
  groups_ = GetNumGroupLevels(state_.mrptCurr);
  if (groups_ == 0) {
    print("      Grouping        = 0   'False");
    return;
  }
  print("      Grouping        = -1   'True");
  GetGroupLevelFields(state_.mrptCurr, state_);
  state_.strDataMember = MakeVBName(std::string(state_.strGroupFields.front())) + "_Grouping";
  print("      GroupingName    = " + inQuotes(state_.strDataMember));
}

// The second recordset hangs on the first; a later one on the table that a relation leads to.
void DataEnvironment::printParent(std::int32_t i) {
  print("      RelateToParent  = -1  'True");
  const std::string& first = state_.strCommandNames.front();
  if (i == 1) {
    strParentCommand_ = first;
  } else {
    source_.strSourceName = state_.strCommandNames[static_cast<std::size_t>(i)];
    forEachRelation([&](const Relation& relation) {
      if (!matches(relation)) return true;
      procedure_.statement([&] { strParentCommand_ = relation.ForeignTable(); });
      return false;
    });
    if (strParentCommand_.empty() || strParentCommand_ == source_.strSourceName)
      strParentCommand_ = first;
  }
  print("      ParentCommandName= " + inQuotes(strParentCommand_));
}

template <class Visit>
void DataEnvironment::forEachRelation(Visit visit) {
  Collection<Relation> relations;
  std::int32_t count = 0;
  procedure_.statement([&] {
    relations = state_.mdbCurr.Relations();
    count = relations.Count();
  });
  bool goOn = true;
  for (std::int32_t i = 0; i < count && goOn; ++i) {
    procedure_.statement([&] { goOn = visit(relations(i)); });
  }
}

void DataEnvironment::printContent(std::int32_t i) {
  if (source_.blnSQLSource) source_.strSourceName = source_.text;
  recordset_ = openReportSource(main_, procedure_, source_);
  printFields();
  const bool grouped = i == 0;
  print("      NumGroups       = " + std::to_string(grouped ? groups_ : 0));
  if (grouped) printGroups();
  print("      ParamCount      = 0");
  printRelations(i);
  print("      AggregateCount  = 0");
  procedure_.statement([&] { recordset_.Close(); });
}

void DataEnvironment::printFields() {
  Collection<Field> fields;
  std::int32_t count = 0;
  line([&] {
    fields = recordset_.Fields();
    count = fields.Count();
    return "      NumFields       = " + std::to_string(count);
  });
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string number = std::to_string(i + 1);
    Field field;
    procedure_.statement([&] { field = fields(i); });
    print("      BeginProperty Field" + number);
    rows(field, kFieldRows);
    print("      EndProperty   ' Field" + number);
  }
}

void DataEnvironment::printGroups() {
  for (std::int32_t g = 1; g <= groups_; ++g) {
    std::string field;
    procedure_.statement([&] {
      if (static_cast<std::size_t>(g) > state_.strGroupFields.size()) raise(kErrSubscript);
      field = state_.strGroupFields[static_cast<std::size_t>(g - 1)];
    });
    // An expression without brackets is printed whole.
    if (field.starts_with('=')) procedure_.statement([&] { field = betweenBrackets(field); });
    const std::string number = std::to_string(g);
    print("      BeginProperty Grouping" + number);
    rows(state_.mrptCurr, kGroupingRows);
    print("         Name         = " + inQuotes(field));
    print("         Caption      = " + inQuotes(field));
    print("      EndProperty   ' Grouping" + number);
  }
}

void DataEnvironment::printRelations(std::int32_t i) {
  const std::int32_t count = i > 0 ? relationCount() : 0;
  print("      CommandParent   = " + inQuotes(i > 0 ? strParentCommand_ : std::string()));
  print("      RelationCount   = " + std::to_string(count));
  if (count == 0) return;
  if (state_.blnJoinSQL) {
    printJoin();
  } else {
    printRelationBlocks(count);
  }
}

// The number of fields of the database's first relation.
std::int32_t DataEnvironment::relationCount() {
  std::int32_t count = 0;
  procedure_.statement([&] { count = state_.mdbCurr.Relations()(0).Fields().Count(); });
  return count;
}

void DataEnvironment::printJoin() {
  const auto firstField = [&] { return recordset_.Fields()(0).Name(); };
  printRelation(1, firstField, firstField);
}

void DataEnvironment::printRelationBlocks(std::int32_t most) {
  std::int32_t number = 1;
  forEachRelation([&](const Relation& relation) {
    if (matches(relation)) {
      printRelation(
          number, [&] { return relation.Fields()(0).Name(); },
          [&] { return relation.Fields()(0).ForeignName(); });
    } else {
      const auto firstField = [&] { return recordset_.Fields()(0).Name(); };
      printRelation(number, firstField, firstField);
    }
    return ++number <= most;
  });
}

template <class ParentField, class ChildField>
void DataEnvironment::printRelation(std::int32_t number, ParentField parentField,
                                    ChildField childField) {
  const std::string place = std::to_string(number);
  print("      BeginProperty Relation" + place);
  line([&] { return "         ParentField  = " + inQuotes(parentField()); });
  line([&] { return "         ChildField   = " + inQuotes(childField()); });
  print("         ParentType   = 0");
  print("         ChildType    = 0");
  print("      EndProperty   ' Relation" + place);
}

}  // namespace

void GetDesignerReportProps(MainObject& main, bool& result) {
  DataEnvironment(main).write();
  result = true;
}

}  // namespace tarrowin
