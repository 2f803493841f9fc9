// The block of a section in the Data Report.
#pragma once

#include <cstdint>

namespace tarrowin {

struct MainObject;

// Prints the opening lines of section intSectionNum (Access's number) of mrptCurr, named
// strSectionName; intSectCodeNum is its 0-based place in the file. A section that the report lacks
// has height 0 and no page options. An error other than a missing section ends the block.
void PrintReportSection(MainObject& main, std::int32_t intSectionNum, std::int32_t intSectCodeNum);

}  // namespace tarrowin
