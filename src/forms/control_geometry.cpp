// The rules of Left and Top.
#include "forms/control_geometry.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>

#include "forms/control_types.h"
#include "forms/parent_chain.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

using namespace control_type;

// What the end of a chain of Parents raises, and members that some parents lack.
constexpr std::int32_t kTolerated[] = {2186, 2452, 2455, 2459, 2465};

constexpr std::int32_t kSections[] = {section_number::kFormHeader, section_number::kPageHeader,
                                      section_number::kDetail, section_number::kPageFooter,
                                      section_number::kFormFooter};

// What stands in for a position that does not fit its type.
constexpr std::int64_t kBeyondRange = 32767;
// How far a tab control of Visual Basic moves the controls of inactive pages to the left.
constexpr std::int64_t kInactivePage = 75000;
// What a subform's frame adds to the section stack.
constexpr std::int64_t kSubFormFrame = 120;
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
enum class Container {
  kFrame,  // clamped at 0, with some room on top
  kPage,   // out of sight when it is not the first
};

// How a position on the form becomes one inside the container. The first row that fits is taken.
struct CorrectionRow {
  ParentKind parent;
  ControlKind control;
  std::int32_t typeOfQ;  // kAnyType: whatever it is
  std::size_t outer;     // whose position is subtracted
  Container container;
  std::int64_t room = 0;
};
constexpr std::int32_t kAnyType = -1;

// clang-format off
constexpr CorrectionRow kLeftRows[] = {
    {ParentKind::kButton,  ControlKind::kLabel,       control_type::kPage, R, Container::kPage},
    {ParentKind::kButton,  ControlKind::kLabel,       kAnyType,            Q, Container::kFrame},
    {ParentKind::kGroup,   ControlKind::kGroupMember, kAnyType,            P, Container::kFrame},
    {ParentKind::kSubform, ControlKind::kLabel,       control_type::kPage, R, Container::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kTabControl,         Q, Container::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         control_type::kPage, Q, Container::kPage},
    {ParentKind::kOther,   ControlKind::kAny,         control_type::kPage, R, Container::kPage},
};

constexpr CorrectionRow kTopRows[] = {
    {ParentKind::kButton,  ControlKind::kLabel,       kOptionGroup,        Q, Container::kFrame, kCaption},
    {ParentKind::kButton,  ControlKind::kLabel,       control_type::kPage, R, Container::kFrame, kCaption},
    {ParentKind::kButton,  ControlKind::kLabel,       kAnyType,            Q, Container::kFrame, kPlainLabel},
    {ParentKind::kGroup,   ControlKind::kGroupMember, kAnyType,            P, Container::kFrame, kCaption},
    {ParentKind::kSubform, ControlKind::kLabel,       control_type::kPage, R, Container::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kTabControl,         Q, Container::kPage},
    {ParentKind::kPage,    ControlKind::kAny,         kAnyType,            R, Container::kPage},
    {ParentKind::kOther,   ControlKind::kAny,         control_type::kPage, R, Container::kPage},
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

bool isKind(std::int32_t type, ControlKind kind) {
  switch (kind) {
    case ControlKind::kLabel:
      return type == control_type::kLabel;
    case ControlKind::kGroupMember:
      return type == kCheckBox || type == kOptionButton || type == kToggleButton ||
             type == control_type::kLabel;
    case ControlKind::kAny:
      break;
  }
  return true;
}

// The heights of a form's sections in the order in which they are stacked.
struct Stack {
  std::int64_t header, pageHeader, detail, pageFooter;

  std::int64_t above(std::int32_t section) const {
    switch (section) {
      case section_number::kPageHeader:
        return header;
      case section_number::kDetail:
        return header + pageHeader;
      case section_number::kPageFooter:
        return header + pageHeader + detail;
      default:
        return header + pageHeader + detail + pageFooter;
    }
  }
};

// One of the two procedures at work on one control.
class Position {
 public:
  Position(MainObject& main, const LateBound& ctl, std::string_view procedure,
           std::string_view property, std::int64_t inactivePage)
      : main_(main),
        ctl_(ctl),
        procedure_(procedure),
        property_(property),
        inactivePage_(inactivePage) {}

  // The control's own position, below what the sections above take.
  void readOwn(std::int64_t offset) {
    guarded([&] { result_ = toLong(ctl_.get(property_)) + offset; });
  }

  // A control that stands on none of the sections counts from 0.
  void stackSections() {
    std::optional<std::int32_t> section;
    guarded([&] {
      const Value number = ctl_.get("Section");
      const auto found = std::ranges::find_if(
          kSections, [&](std::int32_t candidate) { return equals(number, candidate); });
      if (found != std::end(kSections)) section = *found;
    });
    if (section) readOwn(heightAbove(*section));
  }

  void correct(std::span<const CorrectionRow> rows) {
    readParents();
    for (const CorrectionRow& row : rows) {
      if (row.parent != parentKind(types_[P]) || !isKind(type_, row.control)) continue;
      if (row.typeOfQ != kAnyType && row.typeOfQ != types_[Q]) continue;
      result_ -= positions_[row.outer];
      if (row.container == Container::kFrame) {
        result_ = result_ < 1 ? 0 : result_ + row.room;
      } else if (main_.state.intTabPageNum != 0) {
        result_ -= inactivePage_;
      }
      return;
    }
  }

  std::int64_t result() const { return result_; }

 private:
  // The form header counts from the top of the window; in a frame or on a tab page the container
  // carries the stack.
  std::int64_t heightAbove(std::int32_t section) const {
    const ConversionState& s = main_.state;
    if (section == section_number::kFormHeader || s.blnInOptionGroup || s.blnInTab) return 0;
    if (s.blnInSubForm) {
      const Stack stack{s.intSubHeaderHeight, s.intSubPageHeaderHeight, s.intSubDetailHeight,
                        s.intSubPageFooterHeight};
      return stack.above(section) + kSubFormFrame;
    }
    return Stack{s.intHeaderHeight, s.intPageHeaderHeight, s.intDetailHeight, s.intPageFooterHeight}
        .above(section);
  }

  void readParents() {
    guarded([this] { type_ = toLong(ctl_.get("ControlType")); });
    const ParentChain chain(ctl_);
    const auto note = [this](const VbError& error) { onError(error); };
    for (const std::size_t link : {P, Q, R}) types_[link] = chain.number(link, "ControlType", note);
    for (const std::size_t link : {P, Q, R})
      positions_[link] = chain.integer(link, property_, note);
  }

  // Runs one statement.
  template <class Statement>
  void guarded(Statement&& statement) {
    try {
      statement();
    } catch (const VbError& error) {
      onError(error);
    }
  }

  void onError(const VbError& error) {
    if (error.number() == kErrOverflow) {
      result_ = kBeyondRange;
      return;
    }
    if (std::ranges::find(kTolerated, error.number()) != std::end(kTolerated)) return;
    main_.controlErrorBox(procedure_, main_.state.strCtlName, error);
  }

  MainObject& main_;
  const LateBound& ctl_;
  std::string_view procedure_, property_;
  std::int64_t inactivePage_;
  std::int64_t result_ = 0;
  std::int32_t type_ = 0;
  std::int32_t types_[ParentChain::kLinks] = {};
  std::int64_t positions_[ParentChain::kLinks] = {};
};

}  // namespace

std::int64_t GetControlLeft(MainObject& main, const LateBound& ctl) {
  Position position(main, ctl, "GetControlLeft", "Left", kInactivePage);
  position.readOwn(0);
  position.correct(kLeftRows);
  return position.result();
}

std::int64_t GetFormSection(MainObject& main, const LateBound& ctl) {
  Position position(main, ctl, "GetFormSection", "Top", 0);
  position.stackSections();
  position.correct(kTopRows);
  return position.result();
}

}  // namespace tarrowin
