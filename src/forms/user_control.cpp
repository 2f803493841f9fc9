// The text of a property procedure, by kind of control.
#include "forms/user_control.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/statement.h"
#include "forms/activex_class.h"
#include "forms/control_types.h"
#include "forms/control_walk.h"

namespace tarrowin {

namespace {

struct PropertyRow {
  std::int32_t type;
  std::string_view prefix;        // of the inner control's name
  std::string_view event;         // that tells of a change
  std::string_view propertyType;  // As ...
  std::string_view valueRead;     // behind the inner control's name
  std::string_view valueWritten;  // likewise
};

// clang-format off
constexpr PropertyRow kProperties[] = {
    {control_type::kCheckBox, "chk", "_Click()",  "Boolean", ".Value = vbChecked",
     ".Value = IIf(vNewValue, vbChecked, vbUnChecked)"},
    {control_type::kComboBox, "cbo", "_Change()", "Variant", ".Text", ".Text = vNewValue"},
    {control_type::kListBox,  "lst", "_Change()", "Variant", ".Text", ".Text = vNewValue"},
    {control_type::kTextBox,  "txt", "_Change()", "Variant", ".Text", ".Text = vNewValue"},
};
// clang-format on

void printProperty(MainObject& main, const PropertyRow& row) {
  const std::string name = main.state.strCtlName;
  const std::string quotedName = '"' + name + '"';
  const std::string inner = std::string(row.prefix) + name;
  const std::string type(row.propertyType);
  const std::string lines[] = {
      "",
      "Sub " + inner + std::string(row.event),
      "   PropertyChanged " + quotedName,
      "End Sub",
      "Public Property Get " + name + "() As " + type,
      "   Attribute " + name + ".VB_MemberFlags = \"14\"",
      "   " + name + " = " + inner + std::string(row.valueRead),
      "End Property",
      "Public Property Let " + name + "(ByVal vNewValue As " + type + ")",
      "   If CanPropertyChange(" + quotedName + ") Then",
      "      " + inner + std::string(row.valueWritten),
      "      PropertyChanged " + quotedName,
      "   End If",
      "End Property",
      "",
  };
  for (const std::string& line : lines) {
    ignoringErrors([&] { main.files.Print(kOutputFile, line); });
  }
}

bool isInOptionGroup(std::int32_t P, std::int32_t) { return P == control_type::kOptionGroup; }

bool isIndented(const ConversionState& state) { return state.blnInOptionGroup; }

constexpr WalkKind kCodeWalk = {.procedure = "CreateVBUserControl",
                                .design = &ConversionState::frmCurr,
                                .isLeftToContainer = isInOptionGroup,
                                .isIndented = isIndented,
                                .convert = GetUserControlProps};

}  // namespace

void GetUserControlProps(MainObject& main, const LateBound& ctl) {
  std::int32_t type = 0;
  ignoringErrors([&] { type = ctl.number("ControlType"); });
  const auto row = std::ranges::find(kProperties, type, &PropertyRow::type);
  if (row != std::end(kProperties)) {
    printProperty(main, *row);
  } else if (type == control_type::kOptionGroup) {
    main.state.blnInFrame = true;
  } else if (type == control_type::kActiveX) {
    raiseLibraryFlag(main.state, readActiveXClass(main.state, ctl).shortName);
  }
}

void CreateVBUserControl(MainObject& main) {
  ControlWalk walk(main, kCodeWalk);
  walk.begin();
  walk.convertControls();
}

}  // namespace tarrowin
