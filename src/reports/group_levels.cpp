// Walks the levels up to the first that does not exist.
#include "reports/group_levels.h"

#include "core/statement.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

// GroupLevel(n) of a level that does not exist.
constexpr std::int32_t kErrNoGroupLevel = 2464;
// Levels that are looked at.
constexpr std::int32_t kMostLevels = 9;

LateBound groupLevel(const LateBound& report, std::int32_t level) {
  return LateBound(toObject(report.get("GroupLevel", {Value(level)})));
}

bool isGroup(const LateBound& level) {
  return !level.text("ControlSource").empty() &&
         (isTrue(level.get("GroupHeader")) || isTrue(level.get("GroupFooter")));
}

}  // namespace

std::int32_t GetNumGroupLevels(const LateBound& report) {
  std::int32_t count = 0;
  try {
    for (std::int32_t i = 0; i < kMostLevels; ++i) {
      if (isGroup(groupLevel(report, i))) ++count;
    }
  } catch (const VbError& error) {
    return error.number() == kErrNoGroupLevel ? count : 0;
  }
  // Past the levels that are looked at the report itself is closed, which a report refuses.
  return ignoringErrors([&] { report.call("Close"); }) ? count : 0;
}

void GetGroupLevelFields(const LateBound& report, ConversionState& state) {
  state.strGroupFields.assign(1, "");
  try {
    for (std::int32_t i = 0;; ++i) {
      state.strGroupFields.back() = groupLevel(report, i).text("ControlSource");
      state.strGroupFields.emplace_back();
    }
  } catch (const VbError&) {
    // Behind the last level.
  }
}

}  // namespace tarrowin
