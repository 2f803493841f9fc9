// The properties that files do not keep because they follow from others.
#pragma once

#include <vector>

#include "access/designs/stored_design.h"
#include "access/model/name_table.h"
#include "access/model/property_bag.h"

namespace tarrowin {

class DerivedProperties {
 public:
  explicit DerivedProperties(NameTable& names);

  // Fills in what the object has of: BorderStyle of a control, RecordsetType, FontBold,
  // MinMaxButtons, Picture, OLEType, and the old names of two events. The block is the object's
  // own.
  void fillIn(PropertyBag& properties, const StoredBlock& block) const;

 private:
  struct Repeated {
    NameId property, source;
  };
  void set(PropertyBag& properties, NameId property, Value value) const;

  const NameTable& names_;
  std::vector<Repeated> repeated_;
  NameId fontBold_, fontWeight_, minMaxButtons_, minButton_, maxButton_, picture_, pictureData_,
      oleType_, oleData_, sourceDoc_;
};

}  // namespace tarrowin
