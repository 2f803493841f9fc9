// The positions of a form: the section stack of Left and Top.
#include "forms/control_geometry.h"

#include "forms/control_position.h"
#include "forms/control_types.h"
#include "forms/report_section.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kSections[] = {section_number::kFormHeader, section_number::kPageHeader,
                                      section_number::kDetail, section_number::kPageFooter,
                                      section_number::kFormFooter};

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

std::int64_t heightAbove(const ConversionState& s, std::int32_t section) {
  if (s.blnInSubForm) {
    const Stack stack{s.intSubHeaderHeight, s.intSubPageHeaderHeight, s.intSubDetailHeight,
                      s.intSubPageFooterHeight};
    return stack.above(section) + kSubFormFrame;
  }
  return Stack{s.intHeaderHeight, s.intPageHeaderHeight, s.intDetailHeight, s.intPageFooterHeight}
      .above(section);
}

constexpr PositionKind kLeft = {"Left", [](MainObject& main, const VbError& error) {
                                  main.controlErrorBox("GetControlLeft", main.state.strCtlName,
                                                       error);
                                }};
constexpr PositionKind kTop = {"Top", [](MainObject& main, const VbError& error) {
                                 main.controlErrorBox("GetFormSection", main.state.strCtlName,
                                                      error);
                               }};

}  // namespace

std::int64_t GetControlLeft(MainObject& main, const LateBound& ctl) {
  ControlPosition position(main, ctl, kLeft);
  position.readOwn(0);
  position.correctLeft();
  return position.result();
}

std::int64_t GetFormSection(MainObject& main, const LateBound& ctl) {
  ControlPosition position(main, ctl, kTop);
  position.readStacked(kSections, heightAbove);
  position.correctTop();
  return position.result();
}

std::int64_t topInHand(MainObject& main, const LateBound& ctl) {
  return main.state.mblnReportMode ? GetReportSection(main, ctl) : GetFormSection(main, ctl);
}

}  // namespace tarrowin
