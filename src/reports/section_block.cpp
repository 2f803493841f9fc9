// The rows of the block.
#include "reports/section_block.h"

#include <string>

#include "core/main_object.h"
#include "core/report_heights.h"
#include "core/statement.h"
#include "reports/report_values.h"
#include "reports/section_walk.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrNoProperty = 2455, kErrNoSection = 2462;

std::string heightOf(const ConversionState& state, std::int32_t section) {
  LateBound found;
  try {
    found = sectionOf(state.mrptCurr, section);
  } catch (const VbError& error) {
    if (error.number() == kErrNoSection) return "0";
    throw;
  }
  return joined(found.get("Height"));
}

bool isNotZero(const Value& value) { return !value.isNull() && !equals(value, 0); }

}  // namespace

void PrintReportSection(MainObject& main, std::int32_t intSectionNum, std::int32_t intSectCodeNum) {
  const ConversionState& state = main.state;
  const std::string place = std::to_string(intSectCodeNum);
  Procedure procedure([](const VbError& error) {
    const bool goesOn = error.number() == kErrNoProperty || error.number() == kErrNoSection;
    return goesOn ? Resume::kNext : Resume::kLeave;
  });
  const auto line = [&](const auto& text) {
    procedure.statement([&] { main.files.Print(kOutputFile, text()); });
  };
  const auto section = [&] { return sectionOf(state.mrptCurr, intSectionNum); };
  // clang-format off
  procedure.run([&] {
    line([&] { return "   SectionCode" + place + "  = " + std::to_string(sectionKind(intSectionNum).code); });
    line([&] { return "   BeginProperty Section" + place; });
    line([&] { return std::string("      _Version        = 393216"); });
    line([&] { return "      Name            = \"" + state.strSectionName + '"'; });
    line([&] { return "      Object.Height   = " + heightOf(state, intSectionNum); });
    line([&] { return "      KeepTogether    = " + yesOrNo(isTrue(section().get("KeepTogether"))); });
    line([&] { return "      ForcePageBreak  = " + yesOrNo(isNotZero(section().get("ForceNewPage"))); });
  });
  // clang-format on
}

}  // namespace tarrowin
