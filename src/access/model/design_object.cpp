// What all parts of an open form or report share.
#include <utility>

#include "access/model/design_objects.h"

namespace tarrowin {

const NameTable& DesignObject::names() const {
  const NameTable& table = SessionObject::names();
  if (!open_->isOpen()) raise(design_error::kObjectClosed);
  return table;
}

Value DesignObject::read(const MemberUse& use) {
  Reading reading = tryRead(use);
  if (reading.error) throw *std::move(reading.error);
  return std::move(reading.value);
}

ControlSource DesignObject::controlSource(ControlList controls, std::int32_t pastEnd,
                                          std::int32_t missing) const {
  return {sessionRef(), open_, std::move(controls), pastEnd, missing};
}

}  // namespace tarrowin
