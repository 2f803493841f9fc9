// Sections, controls with their parents, and group levels.
#include "access/snapshot/design_reader.h"

#include <unordered_map>

namespace tarrowin {

namespace {

SectionModel readSection(JsonValue entry, const SnapshotValues& values) {
  SnapshotValues::requireObject(entry);
  const auto number = entry.member("number");
  if (!number) entry.failExpected("a number under \"number\"");
  SectionModel section{values.number(*number), {}};
  if (const auto properties = entry.member("properties"))
    section.properties = values.properties(*properties);
  return section;
}

ControlModel readControl(JsonValue entry, const SnapshotValues& values) {
  SnapshotValues::requireObject(entry);
  ControlModel control;
  control.name = values.requiredTextIn(entry, "name");
  const auto type = entry.member("type");
  if (!type) entry.failExpected("a number under \"type\"");
  control.type = values.number(*type);
  if (const auto properties = entry.member("properties"))
    control.properties = values.properties(*properties);
  return control;
}

// Finds the controls that others name as their parent.
class ParentSearch {
 public:
  ParentSearch(const std::vector<ControlModel>& controls, const CaseFolding& folding)
      : controls_(controls), folding_(folding) {
    for (std::size_t i = 0; i < controls.size(); ++i)
      byName_.emplace(folding.fold(controls[i].name), i);
  }

  // An exact match first. The place is that of the parent's name, for the error.
  std::size_t find(const std::string& name, JsonValue place) const {
    std::size_t exact = 0, alike = 0, found = 0;
    const auto [first, last] = byName_.equal_range(folding_.fold(name));
    for (auto entry = first; entry != last; ++entry) {
      const bool same = controls_[entry->second].name == name;
      ++alike;
      if (same) ++exact;
      if (same || exact == 0) found = entry->second;
    }
    const std::size_t matches = exact != 0 ? exact : alike;
    if (matches == 0) place.fail("there is no control " + quoted(place));
    if (matches > 1) place.fail("there is more than one control " + quoted(place));
    return found;
  }

 private:
  static std::string quoted(JsonValue name) { return '"' + std::string(name.text()) + '"'; }

  const std::vector<ControlModel>& controls_;
  const CaseFolding& folding_;
  std::unordered_multimap<std::string, std::size_t> byName_;
};

// Refuses controls that would hold themselves, however many others stand between.
void refuseCycles(const std::vector<ControlModel>& controls, JsonValue list) {
  enum class State : char { kUnseen, kOnPath, kFine };
  std::vector<State> states(controls.size(), State::kUnseen);
  std::vector<std::size_t> path;
  for (std::size_t start = 0; start < controls.size(); ++start) {
    path.clear();
    std::size_t at = start;
    while (at != ControlModel::kNoParent && states[at] == State::kUnseen) {
      states[at] = State::kOnPath;
      path.push_back(at);
      at = controls[at].parent;
    }
    if (at != ControlModel::kNoParent && states[at] == State::kOnPath) {
      std::size_t index = 0;
      for (const JsonValue entry : list)
        if (index++ == at)
          entry.fail("the control \"" + std::string(entry.member("name")->text()) +
                     "\" is inside itself by its parents");
    }
    for (const std::size_t passed : path) states[passed] = State::kFine;
  }
}

void readControls(JsonValue list, DesignModel& design, const SnapshotValues& values,
                  const CaseFolding& folding) {
  SnapshotValues::requireList(list);
  design.controls.reserve(list.size());
  for (const JsonValue entry : list) design.controls.push_back(readControl(entry, values));
  const ParentSearch search(design.controls, folding);
  std::size_t index = 0;
  for (const JsonValue entry : list) {
    if (const auto parent = entry.member("parent"))
      design.controls[index].parent = search.find(values.text(*parent), *parent);
    ++index;
  }
  refuseCycles(design.controls, list);
}

}  // namespace

DesignModel readDesign(JsonValue entry, const SnapshotValues& values, const CaseFolding& folding) {
  SnapshotValues::requireObject(entry);
  DesignModel design;
  design.name = values.requiredTextIn(entry, "name");
  if (const auto properties = entry.member("properties"))
    design.properties = values.properties(*properties);
  if (const auto sections = entry.member("sections")) {
    SnapshotValues::requireList(*sections);
    for (const JsonValue section : *sections)
      design.sections.push_back(readSection(section, values));
  }
  if (const auto controls = entry.member("controls"))
    readControls(*controls, design, values, folding);
  if (const auto levels = entry.member("groupLevels")) {
    SnapshotValues::requireList(*levels);
    for (const JsonValue level : *levels) design.groupLevels.push_back(values.properties(level));
  }
  design.module = values.optionalTextIn(entry, "module");
  design.countOfLines = values.optionalNumberIn(entry, "countOfLines");
  design.openError = values.optionalErrorIn(entry, "openError");
  design.exportError = values.optionalErrorIn(entry, "exportError");
  return design;
}

}  // namespace tarrowin
