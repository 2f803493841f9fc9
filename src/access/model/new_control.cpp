// What a new control may stand in, its name and its properties.
#include "access/model/new_control.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "access/model/design_errors.h"
#include "access/model/property_writing.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrTooLarge = 2100, kErrInvalidType = 2149, kErrHoldsNoControls = 2150,
                       kErrWrongParent = 2151;

constexpr std::int32_t kLabel = 100, kRectangle = 101, kLine = 102, kOptionButton = 105,
                       kCheckBox = 106, kOptionGroup = 107, kPageBreak = 118, kToggleButton = 122,
                       kTabControl = 123, kPage = 124;
constexpr int kPagesOfNewTabControl = 2;
constexpr std::int32_t kDetailSection = 0;
constexpr double kMostTwips = 31680;  // 22 inches

struct NameStem {
  std::int32_t type;
  std::string_view stem;
};

// The names under which Access numbers new controls.
constexpr auto kNameStems = std::to_array<NameStem>({
    {100, "Label"},      {101, "Box"},    {102, "Line"},   {103, "Image"},      {104, "Command"},
    {105, "Option"},     {106, "Check"},  {107, "Frame"},  {108, "OLEBound"},   {109, "Text"},
    {110, "List"},       {111, "Combo"},  {112, "Child"},  {114, "OLEUnbound"}, {118, "PageBreak"},
    {119, "ActiveXCtl"}, {122, "Toggle"}, {123, "TabCtl"}, {124, "Page"},
});

// Whether a control of that type may stand in the parent, 0 or the number to raise.
std::int32_t problemInside(std::int32_t parentType, std::int32_t type) {
  switch (parentType) {
    case kTabControl:
      return type == kPage ? 0 : kErrWrongParent;
    case kPage:
      return type == kPage || type == kTabControl || type == kPageBreak ? kErrWrongParent : 0;
    case kOptionGroup:
      return type == kLabel || type == kOptionButton || type == kCheckBox || type == kToggleButton
                 ? 0
                 : kErrWrongParent;
    case kLabel:
    case kRectangle:
    case kLine:
    case kPageBreak:
      return kErrHoldsNoControls;
    default:
      // Attached labels.
      return type == kLabel ? 0 : kErrHoldsNoControls;
  }
}

NameId keyOf(Member member) { return static_cast<NameId>(member); }

class ControlMaker {
 public:
  ControlMaker(OpenDesign& open, DatabaseModel& database) : open_(open), database_(database) {}

  std::size_t add(const NewControl& wanted) {
    if (!isKnown(wanted.type)) raise(kErrInvalidType);
    checkPlace(wanted);
    const std::size_t parent = parentOf(wanted);
    ControlModel control = bare(wanted.type, parent, sectionOf(wanted, parent));
    setIfGiven(control, Member::kLeft, wanted.left);
    setIfGiven(control, Member::kTop, wanted.top);
    setIfGiven(control, Member::kWidth, wanted.width);
    setIfGiven(control, Member::kHeight, wanted.height);
    if (!wanted.columnName.empty()) setIfThere(control, Member::kControlSource, wanted.columnName);
    const std::size_t index = append(std::move(control));
    if (wanted.type == kTabControl)
      for (int page = 0; page < kPagesOfNewTabControl; ++page) addPage(index);
    return index;
  }

 private:
  const std::vector<ControlModel>& controls() const { return open_.body().controls; }

  bool isKnown(std::int32_t type) const {
    return database_.controlTemplates.contains(type) ||
           (isControlObject(type) && !defaultsOf(type).empty());
  }

  static void checkPlace(const NewControl& wanted) {
    const auto check = [](const Value& start, const Value& length) {
      const double from = toDouble(start), size = toDouble(length);
      if (from < 0 || size < 0 || from + size > kMostTwips) raise(kErrTooLarge);
    };
    check(wanted.left, wanted.width);
    check(wanted.top, wanted.height);
  }

  std::size_t parentOf(const NewControl& wanted) const {
    const std::size_t parent = findParent(wanted.parent);
    if (parent == ControlModel::kNoParent) {
      if (wanted.type == kPage) raise(kErrWrongParent);
    } else if (const auto problem = problemInside(controls()[parent].type, wanted.type)) {
      raise(problem);
    }
    return parent;
  }

  // The name of the form, or of the one that served as template, stands for the form, also before a
  // control of that name: most controls that are copied have that name for their parent's.
  std::size_t findParent(const std::string& name) const {
    if (name.empty()) return ControlModel::kNoParent;
    for (const std::string& form : {open_.design().name, open_.templateName()})
      if (database_.folding.equal(form, name)) return ControlModel::kNoParent;
    ControlIndex& index = open_.controlIndex();
    const std::size_t found = index.find(*index.all(), name, database_.folding);
    if (found == SIZE_MAX) raise(design_error::kObjectClosed);
    return found;
  }

  std::int32_t sectionOf(const NewControl& wanted, std::size_t parent) const {
    if (parent != ControlModel::kNoParent)
      if (const auto section = sectionOf(controls()[parent])) return *section;
    const auto& sections = open_.body().sections;
    const bool isThere = std::ranges::any_of(
        sections, [&](const SectionModel& one) { return one.number == wanted.section; });
    if (!isThere && wanted.section != kDetailSection) raise(design_error::kNoSection);
    return wanted.section;
  }

  static std::optional<std::int32_t> sectionOf(const ControlModel& control) {
    const Recorded<Value>* section = control.properties.valueOf(keyOf(Member::kSection));
    const Value* value = section ? section->ifRead() : nullptr;
    const std::int32_t* number = value ? value->longInteger() : nullptr;
    return number ? std::optional(*number) : std::nullopt;
  }

  void addPage(std::size_t tabControl) {
    append(bare(kPage, tabControl, sectionOf(controls()[tabControl]).value_or(kDetailSection)));
  }

  std::size_t append(ControlModel control) {
    auto& list = open_.editBody().controls;
    list.push_back(std::move(control));
    return list.size() - 1;
  }

  // The control with its name, its properties and the numbers that follow from where it stands.
  ControlModel bare(std::int32_t type, std::size_t parent, std::int32_t section) {
    ControlModel control;
    control.type = type;
    control.parent = parent;
    const auto recorded = database_.controlTemplates.find(type);
    const bool hasTemplate = recorded != database_.controlTemplates.end();
    if (hasTemplate) control.properties = recorded->second;
    control.name = newName(type, control.properties);
    if (!hasTemplate) setDefaults(control, section);
    set(control, Member::kSection, section);
    setIfThere(control, Member::kName, control.name);
    setIfThere(control, Member::kControlName, control.name);
    setIfThere(control, Member::kEventProcPrefix, eventPrefixOf(control.name));
    setIfThere(control, Member::kControlType, type);
    setIfThere(control, Member::kPageIndex,
               siblingsWith(Member::kPageIndex, control.parent, section));
    return control;
  }

  // The template's own name, else its stem or Access's with the first number, from the count of
  // controls on, that gives a free name.
  std::string newName(std::int32_t type, const PropertyBag& properties) const {
    std::string stem;
    std::size_t number = controls().size();
    for (const NameStem& row : kNameStems)
      if (row.type == type) stem = row.stem;
    const Recorded<Value>* recorded = properties.valueOf(keyOf(Member::kName));
    const Value* value = recorded ? recorded->ifRead() : nullptr;
    if (const std::string* text = value ? value->text() : nullptr; text && !text->empty()) {
      // Whoever makes a tab control counts on Page1 and Page2, whatever the template is called.
      if (type == kPage && *text != "Page1") {
        number = 1;
      } else {
        if (isFree(*text)) return *text;
        stem = text->substr(0, text->find_last_not_of("0123456789") + 1);
      }
    }
    for (;; ++number)
      if (std::string name = stem + std::to_string(number); isFree(name)) return name;
  }

  bool isFree(std::string_view name) const {
    ControlIndex& index = open_.controlIndex();
    return index.find(*index.all(), name, database_.folding) == SIZE_MAX;
  }

  void setDefaults(ControlModel& control, std::int32_t section) {
    const bool isMember = control.parent != ControlModel::kNoParent &&
                          controls()[control.parent].type == kOptionGroup;
    for (const PropertyDefault& row : defaultsOf(control.type)) {
      // A member of an option group has a value in place of a source.
      if (isOption(control.type) && row.name == (isMember ? "ControlSource" : "OptionValue"))
        continue;
      control.properties.set(database_.names, database_.names.intern(row.name),
                             initialValue(row, control.name));
    }
    setIfThere(control, Member::kTabIndex,
               siblingsWith(Member::kTabIndex, control.parent, section));
    // Members of a group are numbered from 1.
    setIfThere(control, Member::kOptionValue,
               siblingsWith(Member::kOptionValue, control.parent, section) + 1);
  }

  static bool isOption(std::int32_t type) {
    return type == kOptionButton || type == kCheckBox || type == kToggleButton;
  }

  // How many controls of the parent in that section have the property.
  std::int32_t siblingsWith(Member member, std::size_t parent, std::int32_t section) const {
    return static_cast<std::int32_t>(
        std::ranges::count_if(controls(), [&](const ControlModel& one) {
          return one.parent == parent && one.properties.valueOf(keyOf(member)) &&
                 sectionOf(one) == section;
        }));
  }

  void set(ControlModel& control, Member member, Value value) {
    control.properties.set(database_.names, keyOf(member), std::move(value));
  }
  void setIfThere(ControlModel& control, Member member, Value value) {
    if (control.properties.valueOf(keyOf(member))) set(control, member, std::move(value));
  }
  // A position or size is added to a template that lacks it, but a type without one keeps none.
  void setIfGiven(ControlModel& control, Member member, const Value& value) {
    const std::string& name = database_.names.spelling(keyOf(member));
    const bool lacksIt = !defaultsOf(control.type).empty() && !findDefault(control.type, name);
    if (!value.isEmpty() && !lacksIt) set(control, member, writtenValue(control.type, name, value));
  }

  OpenDesign& open_;
  DatabaseModel& database_;
};

}  // namespace

std::size_t addControl(OpenDesign& open, DatabaseModel& database, const NewControl& wanted) {
  return ControlMaker(open, database).add(wanted);
}

}  // namespace tarrowin
