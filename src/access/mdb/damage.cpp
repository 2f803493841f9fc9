// Raising and naming damage.
// See damage.h.
#include "access/mdb/damage.h"

namespace tarrowin::mdb {

void raiseDamaged(std::string message) { throw Error(ErrorKind::kDamaged, std::move(message)); }

std::string describe(Place place) {
  return place.number == 0 ? std::string(place.what)
                           : std::string(place.what) + " " + std::to_string(place.number);
}

}  // namespace tarrowin::mdb
