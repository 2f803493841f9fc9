// The custom and built-in properties that Jet keeps beside an object: those of a table, query or
// the database itself, and those of a table's columns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shared/value.h"

namespace tarrowin::mdb {

struct Property {
  std::string name;  // UTF-8
  int type = 0;      // DAO's type number
  Value value;       // as in Rows::value; text is UTF-8
};

using PropertyList = std::vector<Property>;  // in stored order

struct PropertySet {
  struct Part {
    std::string name;  // of the column
    PropertyList properties;
  };
  PropertyList own;
  std::vector<Part> parts;  // in stored order
};

// The property of that name, without regard to case, or nullptr.
const Property* findProperty(const PropertyList& list, std::string_view name);

}  // namespace tarrowin::mdb
