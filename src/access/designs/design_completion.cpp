// The walk over the blocks of a design.
#include "access/designs/design_completion.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "access/designs/block_kinds.h"
#include "access/designs/derived_properties.h"
#include "access/designs/object_template.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrRefused = 2601;
constexpr std::int32_t kOptionButton = 105, kCheckBox = 106, kOptionGroup = 107, kTextBox = 109,
                       kToggleButton = 122, kPage = 124;
// Access nests no deeper than label, button, option group, page, tab control.
constexpr int kDeepestNesting = 32;
// A list of a form that Access 2007 or later designed.
constexpr std::int32_t kLaterListRows = 16;

bool isOption(std::int32_t type) {
  return type == kOptionButton || type == kCheckBox || type == kToggleButton;
}

const Value* keptValue(const StoredBlock& block, std::string_view keyword) {
  const Value* found = nullptr;
  for (const StoredProperty& property : block.properties)
    if (property.keyword == keyword)
      if (const Value* value = std::get_if<Value>(&property.value)) found = value;
  return found;
}

std::string keptText(const StoredBlock& block, std::string_view keyword) {
  const Value* value = keptValue(block, keyword);
  const std::string* text = value ? value->text() : nullptr;
  return text ? *text : std::string();
}

class Completion {
 public:
  Completion(const StoredDesign& stored, const std::string& name, NameTable& names)
      : stored_(stored), name_(name), names_(names), derived_(names), laterKinds_(kTextBox, names) {
    for (const StoredBlock& block : stored.root.children)
      if (blockKind(block.kind).role == BlockRole::kControl) styles_.emplace(block.kind, &block);
  }

  DesignBody run() {
    addRoot();
    const ObjectTemplate level(kGroupLevelObject, names_), section(kSectionObject, names_);
    for (const StoredBlock& block : stored_.root.children) {
      const BlockKind kind = blockKind(block.kind);
      if (kind.role == BlockRole::kGroupLevel) body_.groupLevels.push_back(level.filled(block));
      if (kind.role == BlockRole::kSection) addSection(block, kind.number, section);
    }
    countUnderstood();
    return std::move(body_);
  }

 private:
  struct Place {
    std::size_t parent = ControlModel::kNoParent;
    std::int32_t parentType = 0;
    std::int32_t section = 0;
    int depth = 0;
  };

  void addRoot() {
    const BlockRole role = blockKind(stored_.root.kind).role;
    if (role != BlockRole::kForm && role != BlockRole::kReport)
      throw VbError(kErrRefused, "Its design is neither that of a form nor that of a report.");
    const ObjectTemplate root(role == BlockRole::kForm ? kFormObject : kReportObject, names_);
    body_.properties = root.filled(stored_.root);
    derived_.fillIn(body_.properties, stored_.root);
    setName(body_.properties, name_);
    setIfThere(body_.properties, Member::kHasModule, stored_.hasModule);
  }

  void addSection(const StoredBlock& block, std::int32_t number, const ObjectTemplate& section) {
    if (isGroupSection(number)) {
      const Value* kept = keptValue(block, "BreakLevel");
      const std::int32_t level = kept && kept->longInteger() ? *kept->longInteger() : 0;
      if (level < 0 || level >= kMostGroupLevels) return countLost(block, 0);
      number += kSectionsPerLevel * level;
    }
    // A second one of the same number cannot be reached, but its controls can.
    if (sectionNumbers_.insert(number).second) {
      PropertyBag properties = section.filled(block);
      setName(properties, keptText(block, "Name"));
      body_.sections.push_back({number, std::move(properties)});
    }
    addControls(block, {.section = number});
  }

  // The controls inside the block, each before those that it holds.
  void addControls(const StoredBlock& holder, const Place& place) {
    std::int32_t pages = 0;
    for (const StoredBlock& block : holder.children) {
      const BlockKind kind = blockKind(block.kind);
      if (kind.role != BlockRole::kControl || place.depth >= kDeepestNesting) {
        ++controls_;
        countLost(block, place.depth);
        continue;
      }
      const std::size_t index = addControl(block, kind.number, place);
      if (kind.number == kPage)
        setIfThere(body_.controls[index].properties, Member::kPageIndex, pages++);
      addControls(block, {index, kind.number, place.section, place.depth + 1});
    }
  }

  std::size_t addControl(const StoredBlock& block, std::int32_t type, const Place& place) {
    ++controls_;
    ControlModel control;
    control.name = keptText(block, "Name");
    control.type = type;
    control.parent = place.parent;
    if (defaultsOf(type).empty()) {
      control.properties = laterKinds_.keptOnly(block);
      for (const Member member : {Member::kName, Member::kControlType, Member::kSection})
        set(control.properties, member, Value());
    } else {
      control.properties = templateOf(block.kind, type, place.parentType).filled(block);
      derived_.fillIn(control.properties, block);
    }
    setName(control.properties, control.name);
    setIfThere(control.properties, Member::kControlType, type);
    setIfThere(control.properties, Member::kSection, place.section);
    body_.controls.push_back(std::move(control));
    return body_.controls.size() - 1;
  }

  // What a control of the kind has in this design before its own block is looked at.
  const ObjectTemplate& templateOf(const std::string& kind, std::int32_t type,
                                   std::int32_t parentType) {
    const bool isMember = isOption(type) && parentType == kOptionGroup;
    auto& known = isMember ? memberTemplates_ : templates_;
    if (const auto found = known.find(kind); found != known.end()) return found->second;
    // A member of an option group has a value in place of a source.
    const std::string_view without =
        !isOption(type) ? "" : (isMember ? "ControlSource" : "OptionValue");
    ObjectTemplate made(type, names_, without);
    if (stored_.laterFormat) made.addStyle(laterDefaults());
    if (const auto style = styles_.find(kind); style != styles_.end())
      made.addStyle(*style->second);
    return known.emplace(kind, std::move(made)).first->second;
  }

  static const StoredBlock& laterDefaults() {
    static const StoredBlock block = {{}, {{"ListRows", Value(kLaterListRows)}}, {}};
    return block;
  }

  void set(PropertyBag& properties, Member member, Value value) const {
    properties.set(names_, static_cast<NameId>(member), std::move(value));
  }
  void setIfThere(PropertyBag& properties, Member member, Value value) const {
    if (properties.valueOf(static_cast<NameId>(member))) set(properties, member, std::move(value));
  }

  // The name and what follows from it, unless that is kept.
  void setName(PropertyBag& properties, const std::string& name) const {
    for (const Member member : {Member::kName, Member::kFormName, Member::kControlName})
      setIfThere(properties, member, name);
    const Recorded<Value>* prefix =
        properties.valueOf(static_cast<NameId>(Member::kEventProcPrefix));
    const Value* kept = prefix ? prefix->ifRead() : nullptr;
    if (kept && *kept == Value("")) set(properties, Member::kEventProcPrefix, eventPrefixOf(name));
  }

  void countLost(const StoredBlock& block, int depth) {
    if (depth >= 2 * kDeepestNesting) return;
    controls_ += block.children.size();
    for (const StoredBlock& child : block.children) countLost(child, depth + 1);
  }

  // The reader may have met controls that it could not even hand over.
  void countUnderstood() {
    Understood understood = stored_.understood;
    understood.controls = std::max(understood.controls, controls_);
    understood.controlsKnown = body_.controls.size();
    body_.understood = understood;
  }

  const StoredDesign& stored_;
  const std::string& name_;
  NameTable& names_;
  DerivedProperties derived_;
  ObjectTemplate laterKinds_;  // controls later than the table have properties like a text box
  std::unordered_map<std::string_view, const StoredBlock*> styles_;
  std::unordered_map<std::string, ObjectTemplate> templates_, memberTemplates_;
  std::unordered_set<std::int32_t> sectionNumbers_;
  std::size_t controls_ = 0;  // of every kind
  DesignBody body_;
};

}  // namespace

DesignBody completeDesign(const StoredDesign& stored, const std::string& name, NameTable& names) {
  return Completion(stored, name, names).run();
}

}  // namespace tarrowin
