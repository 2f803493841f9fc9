// What a database object is made of, as a comparison sees it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/json_text.h"

namespace tarrowin {

// In the order in which a comparison goes through them.
enum class FactKind { kTable, kRelation, kQuery, kForm, kReport, kMacro, kModule };

// A section, a group level, a control or a field: its name among the parts of one object, and its
// properties as in a recording.
struct ObjectPart {
  std::string label;
  Json properties;
};

struct ObjectFacts {
  Json properties = Json::object();  // as in a recording; names in "()" are of no property
  std::vector<ObjectPart> parts;
};

}  // namespace tarrowin
