// Hidden lines of source texts: "Attribute VB_..." before the first line of code, and
// "Attribute name.VB_..." behind the declaration of a member.
// See module_text.h.
#include "access/vba/module_text.h"

#include <algorithm>
#include <array>

namespace tarrowin::vba {
namespace {

constexpr std::string_view kAttribute = "Attribute ";
constexpr std::string_view kOwnPrefix = "VB_";
constexpr std::string_view kMemberPrefix = ".VB_";
constexpr std::array<std::string_view, 4> kExported{"VB_GlobalNameSpace", "VB_Creatable",
                                                    "VB_PredeclaredId", "VB_Exposed"};

// Takes the next line with its line end off the text.
std::string_view takeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n') + 1);
  const std::string_view taken = line.empty() ? text : line;
  text.remove_prefix(taken.size());
  return taken;
}

// "VB_Name" of `Attribute VB_Name = "Main"`, "Item.VB_UserMemId" of a member's line; empty for a
// line that is no attribute.
std::string_view attributeName(std::string_view line) {
  if (!line.starts_with(kAttribute)) return {};
  line.remove_prefix(kAttribute.size());
  const std::size_t end = line.find(" = ");
  return end == std::string_view::npos ? std::string_view() : line.substr(0, end);
}

bool isMemberAttribute(std::string_view line) {
  return attributeName(line).find(kMemberPrefix) != std::string_view::npos;
}

// Passes on the lines of the source: the head's hidden ones by name to the first function, what
// the code window shows to the second.
template <class OnHidden, class OnShown>
void walkLines(std::string_view source, OnHidden onHidden, OnShown onShown) {
  bool inHead = true;
  while (!source.empty()) {
    const std::string_view line = takeLine(source);
    const std::string_view name = attributeName(line);
    inHead = inHead && name.starts_with(kOwnPrefix);
    if (inHead) {
      onHidden(name, line);
    } else if (!isMemberAttribute(line)) {
      onShown(line);
    }
  }
}

}  // namespace

std::string exportedText(std::string_view source, bool isClass) {
  std::string result;
  result.reserve(source.size());
  walkLines(
      source,
      [&](std::string_view name, std::string_view line) {
        const bool kept = std::find(kExported.begin(), kExported.end(), name) != kExported.end();
        if (isClass && kept) result += line;
      },
      [&](std::string_view line) { result += line; });
  return result;
}

std::size_t shownLines(std::string_view source) {
  std::size_t count = 0;
  walkLines(
      source, [](std::string_view, std::string_view) {}, [&](std::string_view) { ++count; });
  return count;
}

}  // namespace tarrowin::vba
