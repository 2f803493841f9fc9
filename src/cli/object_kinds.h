// The six kinds of objects as the command line names them, in the order in which it converts them.
#pragma once

#include <array>
#include <string_view>

#include "core/main_window.h"

namespace tarrowin {

struct ObjectKind {
  ObjectList list;
  std::string_view option;  // "queries" is the option --queries
  std::string_view one;     // "query"
  std::string_view many;    // "queries"
  std::string_view convertButton;
  std::string_view allButton;
};

// clang-format off
inline constexpr std::array<ObjectKind, kObjectListCount> kObjectKinds = {{
    {ObjectList::kQueries, "queries", "query",          "queries",           "cmdConvertQry", "cmdAllQrys"},
    {ObjectList::kForms,   "forms",   "form",           "forms",             "cmdConvertFrm", "cmdAllForms"},
    {ObjectList::kReports, "reports", "report",         "reports",           "cmdConvertRpt", "cmdAllReports"},
    {ObjectList::kMacros,  "macros",  "macro",          "macros",            "cmdConvertMac", "cmdAllMacros"},
    {ObjectList::kModules, "modules", "module",         "modules",           "cmdConvertMod", "cmdAllMods"},
    {ObjectList::kObjects, "project", "form or module", "forms and modules", "cmdConvertObj", "cmdAllObjs"},
}};
// clang-format on

}  // namespace tarrowin
