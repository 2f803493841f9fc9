// Sections, controls with their parents, and group levels.
#include "access/snapshot/design_reader.h"

#include <algorithm>
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

  // The first control of exactly that name, else the first that differs in case alone; none for
  // an unknown name, as in a damaged design: such a control stands on the form itself.
  std::size_t find(const std::string& name) const {
    std::size_t exact = ControlModel::kNoParent, alike = ControlModel::kNoParent;
    const auto [first, last] = byName_.equal_range(folding_.fold(name));
    for (auto entry = first; entry != last; ++entry) {
      alike = std::min(alike, entry->second);
      if (controls_[entry->second].name == name) exact = std::min(exact, entry->second);
    }
    return exact != ControlModel::kNoParent ? exact : alike;
  }

 private:
  const std::vector<ControlModel>& controls_;
  const CaseFolding& folding_;
  std::unordered_multimap<std::string, std::size_t> byName_;
};

void readControls(JsonValue list, DesignBody& body, const SnapshotValues& values,
                  const CaseFolding& folding) {
  SnapshotValues::requireList(list);
  body.controls.reserve(list.size());
  for (const JsonValue entry : list) body.controls.push_back(readControl(entry, values));
  const ParentSearch search(body.controls, folding);
  std::size_t index = 0;
  for (const JsonValue entry : list) {
    if (const auto parent = entry.member("parent"))
      body.controls[index].parent = search.find(values.text(*parent));
    ++index;
  }
}

}  // namespace

DesignModel readDesign(JsonValue entry, const SnapshotValues& values, const CaseFolding& folding) {
  SnapshotValues::requireObject(entry);
  DesignModel design;
  design.name = values.requiredTextIn(entry, "name");
  DesignBody body;
  if (const auto properties = entry.member("properties"))
    body.properties = values.properties(*properties);
  if (const auto sections = entry.member("sections")) {
    SnapshotValues::requireList(*sections);
    for (const JsonValue section : *sections) body.sections.push_back(readSection(section, values));
  }
  if (const auto controls = entry.member("controls"))
    readControls(*controls, body, values, folding);
  if (const auto levels = entry.member("groupLevels")) {
    SnapshotValues::requireList(*levels);
    for (const JsonValue level : *levels) body.groupLevels.push_back(values.properties(level));
  }
  design.body = std::move(body);
  design.module = values.optionalTextIn(entry, "module");
  design.countOfLines = values.countIn(entry, "countOfLines");
  design.openError = values.optionalErrorIn(entry, "openError");
  design.exportError = values.optionalErrorIn(entry, "exportError");
  return design;
}

}  // namespace tarrowin
