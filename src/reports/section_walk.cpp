// The tables of the walk.
#include "reports/section_walk.h"

#include <array>

#include "core/report_heights.h"
#include "core/statement.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

constexpr std::array<SectionKind, 13> kSections = {{
    {"Detail", 4},
    {"ReportHeader", 1},
    {"ReportFooter", 8},
    {"PageHeader", 2},
    {"PageFooter", 7},
    {"Group1Header", 3},
    {"Group1Footer", 5},
    {"Group2Header", 3},
    {"Group2Footer", 5},
    {"Group3Header", 0},
    {"Group3Footer", 0},
    {"Group4Header", 0},
    {"Group4Footer", 0},
}};

// From the Detail outward, by the number of sections.
struct DetailRow {
  std::int16_t C, next;
};
constexpr DetailRow kBehindDetail[] = {{7, 6}, {9, 8}, {11, 10}, {3, 4}};
constexpr std::int16_t kBehindDetailElse = 2;
// With five sections the group levels decide: 1 gives 6, 2 gives 8, and so on.
constexpr std::int16_t kByGroupLevels = 5;
constexpr std::int32_t kMostGroupLevels = 4;

std::int16_t behindDetail(std::int16_t C, const std::function<std::int32_t()>& groupLevels) {
  if (C == kByGroupLevels) {
    const std::int32_t levels = groupLevels();
    if (levels < 1 || levels > kMostGroupLevels) return 0;
    return static_cast<std::int16_t>(4 + 2 * levels);
  }
  for (const DetailRow& row : kBehindDetail) {
    if (row.C == C) return row.next;
  }
  return kBehindDetailElse;
}

}  // namespace

const SectionKind& sectionKind(std::int32_t section) {
  return kSections.at(static_cast<std::size_t>(section));
}

std::int16_t GetNumReportSections(const LateBound& report) {
  std::int16_t count = 0;
  for (std::int32_t n = 0; n < static_cast<std::int32_t>(kSections.size()); ++n) {
    if (holds([&] { return isTrue(sectionOf(report, n).get("Visible")); })) ++count;
  }
  return static_cast<std::int16_t>(count % 2 == 0 ? count + 1 : count);
}

std::int16_t nextSection(std::int16_t S, std::int16_t C, std::int16_t M,
                         const std::function<std::int32_t()>& groupLevels) {
  const auto inward = static_cast<std::int16_t>(S + 2);
  const auto outward = static_cast<std::int16_t>(S - 2);
  switch (S) {
    case 1:
    case 3:
      return inward;
    case 5:
    case 7:
    case 9:
      return inward < M ? inward : std::int16_t{0};
    case 11:
      return 0;
    case 0:
      return behindDetail(C, groupLevels);
    case 2:
      return S;
    default:
      return outward;
  }
}

}  // namespace tarrowin
