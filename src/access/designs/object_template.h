// The properties that every object of a kind starts from, and an object made of them and of what
// its block keeps.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "access/designs/stored_design.h"
#include "access/model/control_defaults.h"
#include "access/model/name_table.h"
#include "access/model/property_bag.h"

namespace tarrowin {

class ObjectTemplate {
 public:
  // The built-in values of the object, without the property of that name. Name, ControlType and the
  // like, which the object's place tells, are not filled in.
  ObjectTemplate(std::int32_t object, NameTable& names, std::string_view without = {});

  // Makes what the block of a default style keeps part of the template.
  void addStyle(const StoredBlock& style) { bag_ = filled(style); }

  // The properties of an object of that block: a value that it keeps takes the template's place, a
  // Boolean that it keeps as turned over is the opposite of the template's. Of several values of
  // one property the last counts; one that its type cannot hold is passed over.
  PropertyBag filled(const StoredBlock& block) const;

  // Only what the block keeps, of an object that has no table of its own but properties like those
  // of this one.
  PropertyBag keptOnly(const StoredBlock& block) const;

 private:
  template <class Action>
  void forEachKept(const StoredBlock& block, Action action) const;

  std::int32_t object_;
  const NameTable& names_;
  std::vector<NameId> ids_;  // by row of the table of defaults; kNoName: left out
  PropertyBag bag_;
};

}  // namespace tarrowin
