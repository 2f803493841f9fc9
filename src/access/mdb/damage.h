// Raising and naming damage: the errors of this folder gain, on their way out, the name of the
// object in which they were met.
#pragma once

#include <string>
#include <string_view>

#include "access/mdb/byte_view.h"
#include "access/mdb/mdb_error.h"

namespace tarrowin::mdb {

// Throws Error (kDamaged).
[[noreturn]] void raiseDamaged(std::string message);

// "page 17", or only the word when the place has no number.
std::string describe(Place place);

// Runs the body; an Error from it goes on with the words `what "name": ` before its message.
template <class Body>
decltype(auto) inContext(std::string_view what, std::string_view name, Body body) {
  try {
    return body();
  } catch (const Error& error) {
    throw Error(error.kind(),
                std::string(what) + " \"" + std::string(name) + "\": " + error.message());
  }
}

}  // namespace tarrowin::mdb
