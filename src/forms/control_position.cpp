// The tables of containers and the statements of a position.
#include "forms/control_position.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "forms/control_types.h"
#include "shared/value_tests.h"

namespace tarrowin {

using namespace control_type;
using namespace parent_link;

namespace {

// What the end of a chain of Parents raises, and members that some parents lack.
constexpr std::int32_t kTolerated[] = {2186, 2452, 2455, 2459, 2465};

// What stands in for a position that does not fit its type.
constexpr std::int64_t kBeyondRange = 32767;
// How far a tab control of Visual Basic moves the controls of inactive pages to the left.
constexpr std::int64_t kInactivePage = 75000;
// Room for the caption of a frame, by which it is higher than Access's option group.
constexpr std::int64_t kCaption = 120;
// The label of a check box or option button on a plain form stands this much lower.
constexpr std::int64_t kPlainLabel = 40;

using namespace parent_link;

enum class ParentKind { kButton, kGroup, kSubform, kPage, kOther };
enum class ControlKind {
  kAny,
  kLabel,
  kGroupMember,  // check box, option button, toggle button, label
};
enum class Holder {
  kFrame,  // clamped at 0, with some room on top
  kPage,   // out of sight when it is not the first
};

}  // namespace

// How a position on the form becomes one inside the container. The first row that fits is taken.
struct CorrectionRow {
  ParentKind parent;
  ControlKind control;
  std::int32_t typeOfQ;  // kAnyType: whatever it is
  std::size_t outer;     // whose position is subtracted
  Holder holder;
  std::int64_t room = 0;
};

namespace {

constexpr std::int32_t kAnyType = -1;

// clang-format off
constexpr CorrectionRow kLeftRows[] = {
    {ParentKind::kButton,  ControlKind::kLabel,       control_type::kPage, R, Holder::kPage},
    {ParentKind::kButton,  ControlKind::kLabel,       kAnyType,            Q, Holder::kFrame},
    {ParentKind::kGroup,   ControlKind::kGroupMember, kAnyType,            P, Holder::kFrame},
    {ParentKind::kSubform, ControlKind::kLabel,       control_type::kPage, R, Holder::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kTabControl,         Q, Holder::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         control_type::kPage, Q, Holder::kPage},
    {ParentKind::kOther,   ControlKind::kAny,         control_type::kPage, R, Holder::kPage},
};

constexpr CorrectionRow kTopRows[] = {
    {ParentKind::kButton,  ControlKind::kLabel,       kOptionGroup,        Q, Holder::kFrame, kCaption},
    {ParentKind::kButton,  ControlKind::kLabel,       control_type::kPage, R, Holder::kFrame, kCaption},
    {ParentKind::kButton,  ControlKind::kLabel,       kAnyType,            Q, Holder::kFrame, kPlainLabel},
    {ParentKind::kGroup,   ControlKind::kGroupMember, kAnyType,            P, Holder::kFrame, kCaption},
    {ParentKind::kSubform, ControlKind::kLabel,       control_type::kPage, R, Holder::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kTabControl,         Q, Holder::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kAnyType,            R, Holder::kPage},
    {ParentKind::kOther,   ControlKind::kAny,         control_type::kPage, R, Holder::kPage},
};
// clang-format on

ParentKind parentKind(std::int32_t type) {
  switch (type) {
    case kOptionButton:
    case kCheckBox:
      return ParentKind::kButton;
    case kOptionGroup:
      return ParentKind::kGroup;
    case control_type::kSubform:
      return ParentKind::kSubform;
    case control_type::kPage:
      return ParentKind::kPage;
    default:
      return ParentKind::kOther;
  }
}

bool isLabelOrMember(std::int32_t type, ControlKind kind) {
  if (type == control_type::kLabel) return true;
  return kind == ControlKind::kGroupMember &&
         (type == kCheckBox || type == kOptionButton || type == kToggleButton);
}

}  // namespace

template <class Statement>
void ControlPosition::guarded(Statement&& statement) {
  try {
    statement();
  } catch (const VbError& error) {
    onError(error);
  }
}

void ControlPosition::onError(const VbError& error) {
  if (error.number() == kErrOverflow) {
    result_ = kBeyondRange;
    return;
  }
  if (std::ranges::find(kTolerated, error.number()) != std::end(kTolerated)) return;
  kind_.errorBox(main_, error);
}

void ControlPosition::readOwn(std::int64_t offset) {
  guarded([&] { result_ = toLong(ctl_.get(kind_.property)) + offset; });
}

void ControlPosition::readStacked(std::span<const std::int32_t> sections,
                                  std::int64_t (*above)(const ConversionState&, std::int32_t)) {
  std::optional<std::int32_t> section;
  guarded([&] {
    const Value number = ctl_.get("Section");
    const auto found = std::ranges::find_if(
        sections, [&](std::int32_t candidate) { return equals(number, candidate); });
    if (found != sections.end()) section = *found;
  });
  if (!section) return;
  const ConversionState& s = main_.state;
  const bool carried = *section == section_number::kFormHeader || s.blnInOptionGroup || s.blnInTab;
  readOwn(carried ? 0 : above(s, *section));
}

void ControlPosition::correctLeft() { correct(kLeftRows, kInactivePage); }

void ControlPosition::correctTop() { correct(kTopRows, 0); }

void ControlPosition::correct(std::span<const CorrectionRow> rows, std::int64_t inactivePage) {
  readParents();
  for (const CorrectionRow& row : rows) {
    if (row.parent != parentKind(types_[P])) continue;
    if (row.control != ControlKind::kAny && !isLabelOrMember(ownType(), row.control)) continue;
    if (row.typeOfQ != kAnyType && row.typeOfQ != types_[Q]) continue;
    result_ -= positions_[row.outer];
    if (row.holder == Holder::kFrame) {
      result_ = result_ < 1 ? 0 : result_ + row.room;
    } else if (main_.state.intTabPageNum != 0) {
      result_ -= inactivePage;
    }
    return;
  }
}

std::int32_t ControlPosition::ownType() {
  if (!type_) {
    type_ = 0;
    guarded([this] { type_ = toLong(ctl_.get("ControlType")); });
  }
  return *type_;
}

void ControlPosition::readParents() {
  const ParentChain chain(ctl_);
  const auto note = [this](const VbError& error) { onError(error); };
  for (const std::size_t link : {P, Q, R}) types_[link] = chain.number(link, "ControlType", note);
  for (const std::size_t link : {P, Q, R})
    positions_[link] = chain.integer(link, kind_.property, note);
}

}  // namespace tarrowin
