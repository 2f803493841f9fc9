// The XML of exported tables: their schema and their rows.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shared/code_page.h"

namespace tarrowin::exports {

struct XmlElement {
  std::string name;  // "xsd:element"
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;  // of its own, without that of its children
  std::vector<XmlElement> children;

  // "element" of "xsd:element".
  std::string_view localName() const;
  // Empty where there is none.
  std::string_view attribute(std::string_view attributeName) const;
  // The first child of that local name, or nullptr.
  const XmlElement* child(std::string_view childName) const;
};

inline constexpr std::size_t kDeepestElements = 60;
inline constexpr std::size_t kMostElements = 1'000'000;

// The outermost element of a text in the code page. Declarations, comments and processing
// instructions are passed over, names of entities but the five of XML stay as they stand. Throws
// ExportTextError for what is not well-formed, is nested too deeply or too large.
XmlElement parseXml(std::string_view text, const CodePage& codePage);

// A name as Access writes it into XML, "Order_x0020_Details", where four digits are a code of
// UTF-16.
std::string decodedXmlName(std::string_view name, const CodePage& codePage);

}  // namespace tarrowin::exports
