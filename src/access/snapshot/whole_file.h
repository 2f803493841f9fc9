// A file as one text.
#pragma once

#include <optional>
#include <string>

namespace tarrowin {

// The bytes of the file; none when it cannot be read to its end.
std::optional<std::string> readWholeFile(const std::string& path);

// A recording larger than this is refused rather than read into memory.
inline constexpr std::size_t kLargestRecording = std::size_t{512} << 20;

}  // namespace tarrowin
