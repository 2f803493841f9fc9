// The sections of a report in the order of the Data Report: report header, page header, group
// headers inward, Detail, group footers outward, page footer, report footer. Numbers are Access's.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "core/access_objects.h"

namespace tarrowin {

// What the designer calls a section that the report lacks, and the code of its kind. The third and
// fourth group levels have no code of their own, and print 0.
struct SectionKind {
  std::string_view name;
  std::int32_t code;
};
// Number 0 to 12.
const SectionKind& sectionKind(std::int32_t section);

// The sections that exist and are visible, one more when that is even: a Data Report's sections
// come in pairs around the Detail.
std::int16_t GetNumReportSections(const LateBound& report);

// The section behind S. C is the number of sections, M the highest visible one; the group levels
// are counted only where they decide.
std::int16_t nextSection(std::int16_t S, std::int16_t C, std::int16_t M,
                         const std::function<std::int32_t()>& groupLevels);

}  // namespace tarrowin
