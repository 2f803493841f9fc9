// The procedure in which a form is restructured: what passes silently, and the box of all else.
#pragma once

#include <string>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// Most writes of properties can fail, since a new control takes only some: the numbers that tell so
// pass. Any other has a box with the name of the property in hand, and the next statement follows.
class Restructuring : public Procedure {
 public:
  // The procedure's name stands in its box.
  Restructuring(MainObject& main, std::string_view procedure);

  // The property in hand.
  std::string propertyName;
  // The number of the last error, until it is cleared.
  std::int32_t lastError = 0;

 private:
  Resume onError(const VbError& error);

  MainObject& main_;
  std::string_view procedure_;
};

}  // namespace tarrowin
