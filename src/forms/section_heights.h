// The heights of a form's sections, of the main form or of the subform in hand, in twips.
#pragma once

#include <cstdint>

#include "core/conversion_state.h"
#include "core/design_sections.h"
#include "core/statement.h"
#include "forms/control_types.h"
#include "shared/vb_number.h"

namespace tarrowin {

// The members of the conversion state that hold the heights of one form.
struct SectionHeights {
  std::int16_t& header;
  std::int16_t& pageHeader;
  std::int16_t& detail;
  std::int16_t& pageFooter;
  std::int16_t& footer;
};

inline SectionHeights mainFormHeights(ConversionState& s) {
  return {s.intHeaderHeight, s.intPageHeaderHeight, s.intDetailHeight, s.intPageFooterHeight,
          s.intFooterHeight};
}
inline SectionHeights subFormHeights(ConversionState& s) {
  return {s.intSubHeaderHeight, s.intSubPageHeaderHeight, s.intSubDetailHeight,
          s.intSubPageFooterHeight, s.intSubFooterHeight};
}

// Reads each height in a statement of its own; 0 for a section that cannot be read.
inline void readSectionHeights(Procedure& procedure, const LateBound& form,
                               const SectionHeights& heights) {
  using namespace section_number;
  const auto read = [&](std::int32_t number, std::int16_t& height) {
    height = 0;
    procedure.statement([&] { height = toInteger(sectionOf(form, number).get("Height")); });
  };
  read(kFormHeader, heights.header);
  read(kPageHeader, heights.pageHeader);
  read(kDetail, heights.detail);
  read(kPageFooter, heights.pageFooter);
  read(kFormFooter, heights.footer);
}

// Takes over the heights of the sections that forms have too.
inline void copyHeights(const ReportHeights& from, const SectionHeights& heights) {
  using namespace section_number;
  heights.header = from[kFormHeader];
  heights.pageHeader = from[kPageHeader];
  heights.detail = from[kDetail];
  heights.pageFooter = from[kPageFooter];
  heights.footer = from[kFormFooter];
}

// All heights and the margin in 16-bit arithmetic; raises 6 beyond it.
inline std::int16_t sumOfHeights(const SectionHeights& h, std::int16_t margin) {
  const std::int16_t upper = addInt16(addInt16(h.header, h.pageHeader), h.detail);
  return addInt16(addInt16(addInt16(upper, h.pageFooter), h.footer), margin);
}

}  // namespace tarrowin
