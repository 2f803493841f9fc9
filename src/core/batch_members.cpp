// The rows of the driver family, by list.
#include <array>

#include "core/batch_driver.h"

namespace tarrowin {

namespace {

using enum BatchReaction;

// The automation error of a server that failed in a call.
constexpr auto kServerFault = static_cast<std::int32_t>(0x80010105u);

constexpr BatchErrorRow kQueryErrors[] = {
    {2601, kGoOn},
    {3258, kGoOn},
};
constexpr BatchErrorRow kFormErrors[] = {
    {2601, kNoPermission},
    {2046, kAutoExec},
};
constexpr BatchErrorRow kReportErrors[] = {
    {2601, kNoPermission},
};
constexpr BatchErrorRow kMacroErrors[] = {
    {2601, kNoPermission},
    {7952, kGoOn},
};
constexpr BatchErrorRow kModuleErrors[] = {
    {2601, kNoPermission},
    {7961, kGoOn},
    {kServerFault, kGoOn},
};
constexpr BatchErrorRow kObjectErrors[] = {
    {2450, kGoOn},
    {7961, kGoOn},
    {2601, kNoPermission},
    {2046, kAutoExec},
};

// clang-format off
constexpr std::array<BatchMember, kObjectListCount> kMembers = {{
    {ObjectList::kQueries, "ConvertQueries", "Query",
     "Please select a Query to convert from the displayed list first.",
     "There are no Queries to convert.",
     "Query: ", kQueryErrors, kBoxEnd},
    {ObjectList::kForms, "ConvertForms_Click", "Form",
     "Please select a Form to convert from the displayed list first.",
     "There are no Forms to convert.",
     "Form: ", kFormErrors, kBoxGoOn},
    {ObjectList::kReports, "ConvertReports_Click", "Report",
     "Please select a Report to convert from the displayed list first.",
     "There are no Reports to convert.",
     "Report: ", kReportErrors, kBoxPointerGoOn},
    {ObjectList::kMacros, "ConvertMacros_Click", "Macro",
     "Please select a Macro to convert from the displayed list first.",
     "There are no Macros to convert.",
     "Macro: ", kMacroErrors, kBoxEchoEnd},
    {ObjectList::kModules, "ConvertModules", "Module",
     "Please select a Module to convert from the displayed list first.",
     "There are no Modules to convert.",
     "Module: ", kModuleErrors, kBoxGoOn},
    {ObjectList::kObjects, "ConvertObjects_Click", "Form",
     "Please select a Form or Module to convert from the displayed list first.",
     "There are no Forms or Modules to convert.",
     "Object: ", kObjectErrors, kBoxPointerGoOn},
}};
// clang-format on

}  // namespace

const BatchMember& batchMember(ObjectList list) { return kMembers[indexOf(list)]; }

}  // namespace tarrowin
