// A procedure of the report conversion: resumes at the next statement after every error, and what
// an error means is a table.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/main_object.h"
#include "core/report_heights.h"
#include "core/statement.h"

namespace tarrowin {

// An attached table whose path is not valid.
inline constexpr std::int32_t kErrInvalidPath = 3044;

struct ReportErrorTable {
  std::string_view procedure;            // the name in its error box
  std::span<const std::int32_t> silent;  // numbers that pass without a word
  bool noticesInvalidPath = false;       // 3044 passes too and sets mblnBadAttachedTables
};

// Numbers that pass while a report's own members are read: what is missing there.
inline constexpr std::int32_t kReportSilent[] = {9, 438, 2186, 2452, 2455, 2462, 2464, 2465, 2467};
// Numbers that pass where recordsets are opened too: also no object, parameters without a value, an
// unknown source or field.
inline constexpr std::int32_t kReportDataSilent[] = {9,    91,   92,   438,  2186, 2452, 2455,
                                                     2462, 2464, 2465, 2467, 3061, 3078, 3265};

// What is no number of the table has a box; 6 makes the report as high as can be.
class ReportProcedure : public Procedure {
 public:
  ReportProcedure(MainObject& main, const ReportErrorTable& table)
      : Procedure([this](const VbError& error) { return onError(error); }),
        main_(main),
        table_(table) {}

  // Runs one statement; the number of its error, 0 without one.
  template <class Statement>
  std::int32_t errorOf(Statement&& statement) {
    lastError_ = 0;
    this->statement(statement);
    return lastError_;
  }

 private:
  Resume onError(const VbError& error) {
    lastError_ = error.number();
    if (lastError_ == kErrOverflow) {
      main_.state.lngReportHeight = kOverflowedReportHeight;
    } else if (table_.noticesInvalidPath && lastError_ == kErrInvalidPath) {
      main_.state.mblnBadAttachedTables = true;
    } else if (std::ranges::find(table_.silent, lastError_) == table_.silent.end()) {
      main_.errorBox(table_.procedure, error);
    }
    return Resume::kNext;
  }

  MainObject& main_;
  const ReportErrorTable& table_;
  std::int32_t lastError_ = 0;
};

}  // namespace tarrowin
