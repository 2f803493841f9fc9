// The numbers that forms, reports and their parts raise.
#pragma once

#include <cstdint>

namespace tarrowin::design_error {

inline constexpr std::int32_t kInvalidSetting = 2101;
inline constexpr std::int32_t kControlNameTaken = 2104;
inline constexpr std::int32_t kReadOnlyProperty = 2135;
inline constexpr std::int32_t kNoFormOfThatName = 2450;  // also a form's default member
inline constexpr std::int32_t kInvalidParent = 2452;
inline constexpr std::int32_t kInvalidProperty = 2455;
inline constexpr std::int32_t kSectionByText = 2461;
inline constexpr std::int32_t kNoSection = 2462;
inline constexpr std::int32_t kGroupLevelByText = 2463;
inline constexpr std::int32_t kNoGroupLevel = 2464;
inline constexpr std::int32_t kNoField = 2465;  // members of forms and reports, controls by name
inline constexpr std::int32_t kObjectClosed = 2467;
inline constexpr std::int32_t kNoPropertyNumber = 2480;

}  // namespace tarrowin::design_error
