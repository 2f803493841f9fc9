// What a file keeps of the design of a form or report, as a tree of blocks: only what differs from
// the defaults is stored. Text exports and the designs inside an .mdb both come to this shape.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "shared/value.h"

namespace tarrowin {

// A yes/no property that is stored by its mere presence: it turns over what would hold without it.
struct TurnedOver {
  bool operator==(const TurnedOver&) const = default;
};

struct StoredProperty {
  // The name under which Access stores and exports it, which is nearly always that of the property:
  // "Width", "OldBorderStyle".
  std::string keyword;
  // Numbers are stored as they stand in the file (BoundColumn counts from 0 there); texts are in
  // the program's code page.
  std::variant<TurnedOver, Value> value;
};

struct StoredBlock {
  // As in a text export: "Form", "Report", "BreakLevel", "FormHeader", "PageHeader", "BreakHeader",
  // "Section", "BreakFooter", "PageFooter", "FormFooter", "Label", "TextBox", "Subform", "Tab",
  // "Page", "Chart"... A kind that the file's own number does not tell is "#" and that number.
  std::string kind;
  std::vector<StoredProperty> properties;  // in the file's order
  std::vector<StoredBlock> children;       // in the file's order, bottom of the z-order first
};

// How much of a design its reader knew what to do with.
struct Understood {
  std::size_t controls = 0, controlsKnown = 0;      // controls of every kind; those of a known kind
  std::size_t properties = 0, propertiesKnown = 0;  // stored properties; those with a known name
};

struct StoredDesign {
  // The form or report. Its children are, in this order, the default styles of its controls
  // (control kinds, one block a kind), the group levels, and the sections with their controls
  // inside.
  StoredBlock root;
  std::int32_t version = 0;  // 17 Access 97, 19 Access 2000, 20 and 21 later; 0 unknown
  // The file is of the format of Access 2007 or later, where some defaults differ (ListRows 16).
  bool laterFormat = false;
  bool hasModule = false;
  Understood understood;
};

}  // namespace tarrowin
