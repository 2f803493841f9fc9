// The rows of the data controls, and where their sources come from.
#include "forms/data_controls.h"

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "core/statement.h"
#include "forms/design_in_hand.h"
#include "query/sql_analysis.h"
#include "shared/text_procedures.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Twips.
constexpr std::int32_t kHeight = 330;
constexpr std::int32_t kWidth = 1440;
constexpr std::int32_t kTabMargin = 60;       // Left at the edge of a tab page
constexpr std::int32_t kRiseOnTabPage = 300;  // above the foot of the client area

constexpr std::string_view kIndent = "   ";
const char* const kProvider =
    "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=";

// Upper case only: a source that begins otherwise counts as a name.
bool isSql(std::string_view source) {
  return source.starts_with("SELECT") || source.starts_with("TRANSF");
}

std::string cleanedSql(std::string sql) {
  return DoubleToSingleQuotes(RemoveLineBreaks(std::move(sql)));
}

// The writing of one data control. Each statement that fails has a box with the procedure's name.
class DataControl {
 public:
  DataControl(MainObject& main, std::string_view procedure, std::string_view indent)
      : main_(main),
        procedure_([&main, procedure](const VbError& error) {
          main.errorBox(procedure, error);
          return Resume::kNext;
        }),
        indent_(indent) {}

  template <class Statement>
  void statement(Statement&& statement) {
    procedure_.statement(std::forward<Statement>(statement));
  }

  // Lines; one whose value is yet to be read is one statement with the reading.
  void line(std::string_view literal, std::string_view value = {}) {
    statement([&] { print(literal, value); });
  }
  void number(std::string_view literal, std::int32_t value) {
    line(literal, std::to_string(value));
  }
  void quoted(std::string_view literal, std::string_view value) {
    quoted(literal, [value] { return std::string(value); });
  }
  template <std::invocable Read>
  void quoted(std::string_view literal, Read&& read) {
    statement([&] { print(literal, '"' + read() + '"'); });
  }

  // Left side by side with the data controls before this one; at the edge when the form or the tab
  // control is too narrow for that.
  std::int32_t left(const LateBound& frm) {
    const ConversionState& state = main_.state;
    const std::int32_t right = (state.intDataCtlNum + state.intAdoCtlNum) * kWidth;
    if (state.blnInTab) return right > state.intTabWidth ? kTabMargin : right - kWidth;
    bool tooNarrow = false;
    statement([&] { tooNarrow = isBelow(frm.get("Width"), right); });
    return tooNarrow ? 0 : right - kWidth;
  }

  // Top at the foot of the client area.
  std::int32_t top() const {
    const ConversionState& state = main_.state;
    return state.intClientHeight - (state.blnInTab ? kRiseOnTabPage : kHeight);
  }

 private:
  void print(std::string_view literal, std::string_view value) const {
    main_.files.Print(kOutputFile, indent_ + std::string(literal) + std::string(value));
  }

  MainObject& main_;
  Procedure procedure_;
  std::string indent_;
};

// The RecordSource of a form for a VB.Data control. The text quoting of an SQL text's literals is
// lost with the double quotes.
std::string sourceText(const LateBound& frm) {
  std::string source = Trim(frm.text("RecordSource"));
  return isSql(source) ? cleanedSql(std::move(source)) : source;
}

std::string nextVbDataName(ConversionState& state) {
  ++state.intDataCtlNum;
  state.blnDataCtl = true;
  return "Data" + LTrimStr(state.intDataCtlNum);
}

// All but the closing line.
void printVbData(DataControl& data, const ConversionState& state, std::string_view name,
                 const LateBound& frm, std::int32_t left, std::int32_t top) {
  // clang-format off
  data.line  ("   Begin VB.Data ",           name);
  data.quoted("      Caption           = ", name);
  data.quoted("      Connect           = ", state.mblnAccess97 ? "Access" : "Access 2000;");
  data.quoted("      DatabaseName      = ", state.mstrDbName);
  data.line  ("      DefaultCursorType = 0   ' DefaultCursor");
  data.line  ("      DefaultType       = 2   ' Use Jet DB engine");
  data.line  ("      Exclusive         = 0   ' False");
  data.number("      Height            = ", kHeight);
  data.number("      Left              = ", left);
  data.line  ("      Options           = 0");
  data.line  ("      ReadOnly          = 0   ' False");
  data.line  ("      RecordsetType     = 1   ' Dynaset");
  data.quoted("      RecordSource      = ", [&frm] { return sourceText(frm); });
  data.number("      Top               = ", top);
  data.line  ("      Visible           = 0   ' False");
  data.number("      Width             = ", kWidth);
  // clang-format on
}

// The data control of a whole form or report, at the top level.
void printMainData(MainObject& main, std::string_view procedure, const LateBound& design) {
  ConversionState& state = main.state;
  DataControl data(main, procedure, "");
  const std::string name = nextVbDataName(state);
  const std::int32_t left = state.blnInTab ? kTabMargin : 0;
  printVbData(data, state, name, design, left, state.intClientHeight - kHeight);
  data.line("   End");
}

// What an ADO data control is bound to.
class AdoSource {
 public:
  // Values of CommandType.
  static constexpr std::int32_t kText = 1, kTable = 2, kUnknown = 8;

  AdoSource(MainObject& main, DataControl& data, const LateBound& frm)
      : main_(main), data_(data), frm_(frm) {
    data_.statement([this] { recordSource_ = frm_.text("RecordSource"); });
    find();
  }

  std::int32_t commandType() const { return type_; }

  // The text of the RecordSource line, with the form's order.
  std::string text() {
    if (isSql(recordSource_)) {
      text_ = cleanedSql(recordSource_);
    } else if (main_.state.mblnDataRepeater && !text_.empty()) {
      text_ = "SELECT * FROM " + text_;
    }
    data_.statement([this] {
      const std::string order = frm_.text("OrderBy");
      if (order.empty() || InStr(text_, "ORDER BY") != 0) return;
      text_ += " ORDER BY " + order;
    });
    return text_;
  }

 private:
  void find() {
    const ConversionState& state = main_.state;
    if (isSql(recordSource_)) {
      type_ = kText;
    } else if (recordSource_.empty()) {
      type_ = kUnknown;
    } else {
      type_ = state.mblnDataRepeater && !state.blnInTab ? kText : kTable;
      if (!Trim(recordSource_).empty()) findByName();
    }
  }

  void findByName() {
    bool isTable = false;
    data_.statement([&] { isTable = TableOrQuery(main_, recordSource_) != 0; });
    if (isTable) {
      text_ = recordSource_;
      return;
    }
    type_ = kText;
    data_.statement([this] { text_ = ExtractSQL(main_, recordSource_); });
  }

  MainObject& main_;
  DataControl& data_;
  const LateBound& frm_;
  std::string recordSource_;
  std::int32_t type_ = kUnknown;
  std::string text_;
};

}  // namespace

void GetVbDataCtlProps(MainObject& main) {
  printMainData(main, "GetVbDataCtlProps", designInHand(main.state));
}

void GetVbReportDataCtlProps(MainObject& main) {
  printMainData(main, "GetVbReportDataCtlProps", main.state.mrptCurr);
}

void GetSubFormDataCtlProps(MainObject& main) {
  ConversionState& state = main.state;
  state.strIndent = kIndent;
  DataControl data(main, "GetSubFormDataCtlProps", kIndent);
  const std::string name = nextVbDataName(state);
  printVbData(data, state, name, state.frmSubCurr, data.left(designInHand(state)), data.top());
  data.line("   End   '", name);
}

void CreateAdoDataCtl(MainObject& main, const LateBound& frm) {
  ConversionState& state = main.state;
  state.strIndent = kIndent;
  DataControl data(main, "CreateAdoDataCtl", kIndent);
  ++state.intAdoCtlNum;
  const std::string name = "Adodc" + LTrimStr(state.intAdoCtlNum);
  AdoSource source(main, data, frm);
  // clang-format off
  data.line  ("   Begin MSAdodcLib.Adodc ", name);
  data.quoted("      Caption           = ", name);
  data.number("      CommandType       = ", source.commandType());
  data.quoted("      Connect           = ", kProvider + state.mstrDbFullName);
  data.number("      Height            = ", kHeight);
  data.number("      Left              = ", data.left(frm));
  data.quoted("    RecordSource      = ",   source.text());
  data.number("      Top               = ", data.top());
  data.line  ("      Visible           = 0   ' False");
  data.number("      Width             = ", kWidth);
  data.line  ("   End   '",                 name);
  // clang-format on
}

}  // namespace tarrowin
