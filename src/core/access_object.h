// The late-bound object through which everything is known about a database: what automation calls
// IDispatch. Who answers, a tree in memory or Access itself, is unknown above this line.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "shared/value.h"
#include "shared/vb_error.h"

namespace tarrowin {

using Arguments = std::span<const Value>;

// What a read gave: the value, or the error that it raised.
struct Reading {
  Value value;
  std::optional<VbError> error;
};

// Member names match without regard to case. Every operation may raise VbError with the number
// that Access, DAO or automation gives for the condition.
class AccessObject : public std::enable_shared_from_this<AccessObject> {
 public:
  virtual ~AccessObject() = default;

  // Reads a property. With arguments, an indexed one: get("Forms", {"frmMain"}) is
  // Forms("frmMain"). The empty name is the default member: get("", {name}) is object(name).
  virtual Value get(std::string_view name, Arguments arguments = {}) = 0;
  // The same for reads that fail as a rule, such as what a form lacks at the end of a chain of
  // Parents: the error is given back and not thrown.
  virtual Reading tryGet(std::string_view name, Arguments arguments = {}) {
    try {
      return {get(name, arguments), std::nullopt};
    } catch (const VbError& error) {
      return {{}, error};
    }
  }
  virtual void put(std::string_view name, const Value& value) = 0;
  // Calls a method. A missing optional argument is an Empty value.
  virtual Value call(std::string_view name, Arguments arguments = {}) = 0;
};

}  // namespace tarrowin
