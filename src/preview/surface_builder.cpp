// Sections, data control, controls with what they contain, and the form around them.
#include "preview/surface_builder.h"

#include <utility>
#include <vector>

#include "core/design_sections.h"
#include "core/statement.h"
#include "forms/control_types.h"
#include "forms/parent_chain.h"
#include "preview/page_entry.h"
#include "preview/preview_classes.h"
#include "preview/twips.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// What Controls.Add raises.
constexpr std::int32_t kErrNoSuchClass = 711, kErrNameTaken = 727;
// A member that a form lacks, which it takes for a field's name.
constexpr std::int32_t kErrNoSuchFormMember = 2465;
// Twips that Form1 is higher than the sections, for each of them and once more, and that it is
// wider than the Access form.
constexpr std::int32_t kHeightMargin = 260, kWidthMargin = 120;

Collection<LateBound> collectionOf(const LateBound& owner, std::string_view member) {
  return Collection<LateBound>(toObject(owner.get(member)));
}

// The ControlTypes of the Parent and of the Parent's Parent: a label may hang on a member of what
// contains both. 0 for one that cannot be read.
struct Above {
  explicit Above(const LateBound& ctl) {
    const ParentChain chain(ctl, parent_link::kParents);
    const auto ignore = [](const VbError&) {};
    P = chain.number(parent_link::P, "ControlType", ignore);
    Q = chain.number(parent_link::Q, "ControlType", ignore);
  }
  bool holds(std::int32_t type) const { return P == type || Q == type; }

  std::int32_t P, Q;
};

std::int64_t twipsOf(const PreviewControl& control, std::string_view property) {
  const Value* value = control.find(property);
  return value ? toLong(*value) : 0;
}

}  // namespace

SurfaceBuilder::SurfaceBuilder(const ConversionState& state, LateBound form, std::string_view name)
    : state_(state), form_(std::move(form)) {
  surface_.accessName = name;
}

void SurfaceBuilder::readSections() {
  using namespace section_number;
  for (const std::int32_t number : {kFormHeader, kPageHeader, kDetail, kFormFooter, kPageFooter}) {
    ignoringErrors([&] {
      surface_.sections.push_back({number, sectionOf(form_, number).number("Height")});
    });
  }
}

// A form that is open in Access has all of its properties. A recording may lack one, which is then
// as good as not set.
std::optional<Value> SurfaceBuilder::formProperty(std::string_view name) const {
  Reading reading = form_.tryGet(name);
  if (!reading.error) return std::move(reading.value);
  if (reading.error->number() == kErrNoSuchFormMember) return std::nullopt;
  throw *std::move(reading.error);
}

void SurfaceBuilder::addDataControl() {
  const std::string source = joined(formProperty("RecordSource").value_or(Value()));
  if (source.empty()) return;
  addToSurface(makeDataControl(source, state_.mstrDbFullName, surface_.totalHeight()));
  data_.emplace(state_.mdbCurr, source);
}

void SurfaceBuilder::addControls(const Progress& progress) {
  const Collection<LateBound> controls = collectionOf(form_, "Controls");
  const std::int32_t count = controls.Count();
  std::vector<std::pair<LateBound, std::string>> left;  // to their containers
  for (std::int32_t i = 0; i < count; ++i) {
    const LateBound ctl = controls(i);
    progress(i + 1, count);
    const std::string name = ctl.text("Name");
    if (isLeftToContainer(ctl, name)) {
      left.emplace_back(ctl, name);
    } else {
      addWithMembers(ctl, name, std::nullopt);
    }
  }
  // What a damaged design hangs on a page of no tab control, or in a circle, stands on the form.
  for (const auto& [ctl, name] : left) {
    if (!placed_.contains(name)) addWithMembers(ctl, name, std::nullopt);
  }
}

// Members of groups and pages come with these, also when they are met first.
bool SurfaceBuilder::isLeftToContainer(const LateBound& ctl, const std::string& name) const {
  using namespace control_type;
  if (placed_.contains(name)) return true;
  const Above above(ctl);
  return above.holds(kOptionGroup) || above.holds(kPage) || above.P == kTabControl;
}

template <class Action>
void SurfaceBuilder::forEachMember(const LateBound& container, Action action) {
  const Collection<LateBound> members = collectionOf(container, "Controls");
  const std::int32_t count = members.Count();
  for (std::int32_t i = 0; i < count; ++i) {
    const LateBound member = members(i);
    const std::string name = member.text("Name");
    if (!placed_.contains(name)) action(member, name);
  }
}

void SurfaceBuilder::addWithMembers(const LateBound& ctl, const std::string& name, Page page) {
  const std::int32_t type = ctl.number("ControlType");
  if (type == control_type::kOptionGroup) return addGroup(ctl, name, page);
  if (type == control_type::kTabControl && !page) return addTabControl(ctl, name);
  add(ctl, name, type, {}, page);
}

void SurfaceBuilder::addGroup(const LateBound& ctl, const std::string& name, Page page) {
  const PreviewControl& frame = add(ctl, name, control_type::kOptionGroup, {}, page);
  const Frame container{frame.name, {twipsOf(frame, "Left"), twipsOf(frame, "Top")}};
  forEachMember(ctl, [&](const LateBound& member, const std::string& memberName) {
    add(member, memberName, member.number("ControlType"), container, page);
  });
}

void SurfaceBuilder::addTabControl(const LateBound& ctl, const std::string& name) {
  const std::size_t strip = surface_.controls.size();
  add(ctl, name, control_type::kTabControl, {}, std::nullopt);
  const Collection<LateBound> pages = collectionOf(ctl, "Pages");
  const std::int32_t count = pages.Count();
  for (std::int32_t i = 0; i < count; ++i) {
    const LateBound page = pages(i);
    placed_.insert(page.text("Name"));
    std::string caption;
    ignoringErrors([&] { caption = page.text("Caption"); });
    surface_.controls[strip].tabCaptions.push_back(std::move(caption));
    forEachMember(page, [&](const LateBound& member, const std::string& memberName) {
      if (!Above(member).holds(control_type::kOptionGroup)) addWithMembers(member, memberName, i);
    });
  }
}

PreviewControl& SurfaceBuilder::add(const LateBound& ctl, const std::string& name,
                                    std::int32_t type, const Frame& frame, Page page) {
  PreviewControl control;
  control.className = previewClass(ctl, type);
  control.name = previewName(name);
  control.container = frame.name;
  addToSurface(std::move(control));
  placed_.insert(name);
  if (page) recordOnPage(*page, name);
  PreviewControl& added = surface_.controls.back();
  const PropertyCopy copy{ctl, added, surface_, frame.origin, data_ ? &*data_ : nullptr};
  (type == control_type::kTabControl ? copyTabControl : copyControl)(copy);
  return added;
}

void SurfaceBuilder::recordOnPage(std::int32_t page, const std::string& name) {
  std::string& first = surface_.mstrTabControls.front();
  std::string entry = pageEntry(page, name);
  if (first.empty()) {
    first = std::move(entry);
  } else {
    surface_.mstrTabControls.push_back(std::move(entry));
  }
}

void SurfaceBuilder::addToSurface(PreviewControl control) {
  if (control.className.empty())
    throw VbError(kErrNoSuchClass, "Invalid class string. Looking for object with ProgID: ");
  if (!taken_.insert(LCase(control.name)).second) {
    throw VbError(kErrNameTaken, "There is already a control with the name '" + control.name + "'");
  }
  surface_.controls.push_back(std::move(control));
}

void SurfaceBuilder::setUpForm() {
  constexpr std::int32_t kNoBorder = 0, kFixedSingle = 1;
  if (const auto style = formProperty("BorderStyle")) {
    const std::int32_t number = toLong(*style);
    surface_.put("BorderStyle", number == kNoBorder ? kFixedSingle : number);
  }
  if (const auto caption = formProperty("Caption")) surface_.put("Caption", joined(*caption));
  const auto count = static_cast<std::int64_t>(surface_.sections.size());
  surface_.put("Height", twips(surface_.totalHeight() + (count + 1) * kHeightMargin));
  if (const auto tag = formProperty("Tag")) surface_.put("Tag", joined(*tag));
  if (const auto width = formProperty("Width")) {
    surface_.put("Width", twips(std::int64_t{toLong(*width)} + kWidthMargin));
  }
}

void SurfaceBuilder::showFirstPage() { showTab(surface_, 0); }

}  // namespace tarrowin
