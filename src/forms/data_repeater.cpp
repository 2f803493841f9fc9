// The rows of the DataRepeater and of its bindings.
#include "forms/data_repeater.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>

#include "core/statement.h"
#include "forms/control_types.h"
#include "forms/printer_rows.h"
#include "forms/value_rules.h"
#include "shared/value_tests.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using namespace value_rule;
using namespace control_type;

constexpr std::int32_t kErrInvalidReference = 2455;

// Controls that a record can be bound to.
constexpr std::int32_t kBindable[] = {kBoundObjectFrame, kCheckBox, kComboBox,
                                      kActiveX,          kListBox,  kOptionButton,
                                      kOptionGroup,      kTextBox,  kToggleButton};

// What the repeater is smaller than the client area: twips.
constexpr std::int32_t kMargin = 120;

void clientHeight(const PrintedControl& form, std::string_view, std::string& line) {
  line += std::to_string(form.state().intClientHeight - kMargin);
}
void clientWidth(const PrintedControl& form, std::string_view property, std::string& line) {
  line += joined(sum(form.ctl.get(property), -kMargin));
}

std::string repeatedControl(const LateBound& form) {
  const std::string name = form.text("Name");
  return "\"prj" + name + ".ctl " + name + "\"";
}
void repeatedName(const PrintedControl& form, std::string_view, std::string& line) {
  line += repeatedControl(form.ctl);
}
void repeatedSubName(const PrintedControl& control, std::string_view, std::string& line) {
  line += repeatedControl(control.state().frmSubCurr);
}
bool unlessNested(const PrintedControl& control) { return !control.state().blnNestedSubForm; }

// The property of the user control, named after the field; nothing for a calculated control.
void boundProperty(const PrintedControl& control, std::string_view, std::string& line) {
  const std::string source = joined(control.ctl.get("ControlSource"));
  std::string property;
  if (!source.starts_with('=')) {
    const bool check = equals(control.ctl.get("ControlType"), kCheckBox);
    property = (check && !source.starts_with("chk") ? "chk" : "txt") + source;
  }
  line += '"' + property + '"';
}

// clang-format off
constexpr PrinterRow kRepeaterRows[] = {
    {"   Begin MSDataRepeaterLib.DataRepeater DataRepeater1"},
    {"      Bindings          = \"\""},
    {"      Caption           = ", quotedText,  " DataRepeater1 "},
    {"      DataSource        = ", quotedText,  "Adodc1"},
    {"      Height            = ", clientHeight},
    {"      Left              = 120"},
    {"      Public            = -1   ' True"},
    {"      Top               = 120"},
    {"      Visible           = -1   ' True"},
    {"      Width             = ", clientWidth, "Width"},
    {"      BeginProperty RepeatedControlName"},
    {"         Name = ",           repeatedName},
    {"      EndProperty"},
};

constexpr PrinterRow kSubRepeaterRows[] = {
    {"   Begin MSDataRepeaterLib.DataRepeater DataRepeater1"},
    {"      Bindings          = \"\""},
    {"      Caption           = ", quotedText,  " DataRepeater1 "},
    {"      DataSource        = ", quotedText,  "Adodc1"},
    {"      Height            = ", subFormHeight},
    {"      Top               = ", top},
    {"      Public            = -1   ' True"},
    {"      Left              = ", left},
    {"      Visible           = -1   ' True"},
    {"      Width             = ", subFormWidth},
    {"      BeginProperty RepeatedControlName"},
    {"         Name = ",           repeatedSubName, "", unlessNested},
    {"      EndProperty"},
};

constexpr PrinterRow kFormatRows[] = {
    {"         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}"},
    {"            Type            =   0"},
    {"            Format = ",            quoted, "Format"},
    {"            HaveTrueFalseNull = 0"},
    {"            FirstDayOfWeek = 0"},
    {"            FirstWeekOfYear = 0"},
    {"            LCID = 1033"},
    {"            SubFormatType = 0"},
    {"         EndProperty"},
    {"      EndProperty"},
};
// clang-format on

constexpr PrinterRow kStreamId{"         _StreamID       =   -1412567295"};
constexpr PrinterRow kVersion{"         _Version        =   65536"};
constexpr PrinterRow kPropertyName{"         PropertyName = ", boundProperty};
constexpr PrinterRow kFieldOfForm{"         DataField = ", quotedField};
constexpr PrinterRow kFieldOfSubForm{"         DataField = ", quoted, "ControlSource"};

class Repeater {
 public:
  Repeater(MainObject& main, std::string_view procedure, const LateBound& form,
           const PrinterRow& fieldRow)
      : main_(main),
        form_(form),
        fieldRow_(fieldRow),
        procedure_([&main, procedure](const VbError& error) {
          if (error.number() != kErrNoSuchMember && error.number() != kErrInvalidReference)
            main.errorBox(procedure, error);
          return Resume::kNext;
        }) {}

  void write(const LateBound& placedBy, std::span<const PrinterRow> rows) {
    procedure_.run([&] {
      std::int32_t count = 0;
      forEachBound([&](const LateBound&) { ++count; });
      printAll(placedBy, rows);
      print("      RepeaterBindings = " + Str(count));
      std::int32_t k = 0;
      forEachBound([&](const LateBound& ctl) { writeBinding(ctl, k++); });
      print("   End   ' DataRepeater1");
    });
  }

 private:
  template <class Body>
  void forEachBound(Body&& body) {
    Collection<LateBound> controls;
    std::int32_t count = 0;
    procedure_.statement([&] {
      controls = Collection<LateBound>(toObject(form_.get("Controls")));
      count = controls.Count();
    });
    for (std::int32_t i = 0; i < count; ++i) {
      LateBound ctl;
      bool bound = false;
      procedure_.statement([&] {
        ctl = controls(i);
        bound = isBound(ctl);
      });
      if (bound) body(ctl);
    }
  }

  static bool isBound(const LateBound& ctl) {
    const bool bindable =
        std::ranges::find(kBindable, ctl.number("ControlType")) != std::end(kBindable);
    return bindable && !ctl.text("ControlSource").empty();
  }

  void writeBinding(const LateBound& ctl, std::int32_t k) {
    print("      BeginProperty RepeaterBinding(" + LTrimStr(k) +
          ") {7D21A594-FC9B-11D0-A320-00AA00688B10}");
    for (const PrinterRow* row : {&kStreamId, &kVersion, &kPropertyName, &fieldRow_})
      printAll(ctl, {row, 1});
    printAll(ctl, kFormatRows);
  }

  void printAll(const LateBound& ctl, std::span<const PrinterRow> rows) {
    for (const PrinterRow& row : rows)
      procedure_.statement([&] { printRow({main_, ctl}, row, ""); });
  }
  void print(const std::string& line) {
    procedure_.statement([&] { main_.files.Print(kOutputFile, line); });
  }

  MainObject& main_;
  const LateBound form_;
  const PrinterRow& fieldRow_;
  Procedure procedure_;
};

}  // namespace

void GetDataRepeaterProps(MainObject& main) {
  const LateBound& form = main.state.frmCurr;
  Repeater(main, "GetDataRepeaterProps", form, kFieldOfForm).write(form, kRepeaterRows);
}

void GetSubformDataRepeaterProps(MainObject& main, const LateBound& ctl) {
  Repeater(main, "GetSubformDataRepeaterProps", main.state.frmSubCurr, kFieldOfSubForm)
      .write(ctl, kSubRepeaterRows);
}

}  // namespace tarrowin
