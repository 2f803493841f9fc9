// One object after the other is opened as far as it takes to count.
#include "cli/design_detail.h"

namespace tarrowin {

namespace {

template <class List, class Read>
std::vector<ObjectDetail> detailsOf(const List& list, Read read) {
  std::vector<ObjectDetail> details;
  for (const auto& object : list) {
    ObjectDetail detail;
    detail.name = object.name;
    try {
      if (object.openError) object.openError->raise(object.name);
      read(object, detail);
    } catch (const VbError& error) {
      detail.problem = error.description();
    }
    details.push_back(std::move(detail));
  }
  return details;
}

std::string share(std::size_t known, std::size_t all, const char* what) {
  return std::to_string(known) + " of " + std::to_string(all) + " " + what;
}

}  // namespace

// A copy is read, so that the designs do not all stay in memory.
std::vector<ObjectDetail> designDetails(const NamedList<DesignModel>& designs) {
  return detailsOf(designs, [](DesignModel design, ObjectDetail& detail) {
    detail.understood = design.body.get()->understood;
  });
}

std::vector<ObjectDetail> macroDetails(const NamedList<MacroModel>& macros) {
  return detailsOf(macros, [](const MacroModel& macro, ObjectDetail& detail) {
    detail.actions = macro.actions.get().size();
  });
}

std::string describedDesign(const ObjectDetail& detail) {
  if (!detail.problem.empty()) return detail.problem;
  if (!detail.understood) return "complete";
  const Understood& counts = *detail.understood;
  return share(counts.controlsKnown, counts.controls, "controls") + ", " +
         share(counts.propertiesKnown, counts.properties, "properties");
}

std::string describedMacro(const ObjectDetail& detail) {
  if (!detail.problem.empty()) return detail.problem;
  return std::to_string(detail.actions) + (detail.actions == 1 ? " action" : " actions");
}

Understood sumOf(const std::vector<ObjectDetail>& details) {
  Understood sum;
  for (const ObjectDetail& detail : details) {
    if (!detail.understood) continue;
    sum.controls += detail.understood->controls;
    sum.controlsKnown += detail.understood->controlsKnown;
    sum.properties += detail.understood->properties;
    sum.propertiesKnown += detail.understood->propertiesKnown;
  }
  return sum;
}

}  // namespace tarrowin
