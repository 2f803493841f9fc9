// Finding and adding properties.
#include "access/model/property_bag.h"

#include <algorithm>

namespace tarrowin {

std::size_t PropertyBag::find(NameId key) const {
  if (!index_.empty()) {
    const auto found = index_.find(key);
    return found == index_.end() ? kNotFound : found->second;
  }
  const auto found = std::find(keys_.begin(), keys_.end(), key);
  return found == keys_.end() ? kNotFound : static_cast<std::size_t>(found - keys_.begin());
}

void PropertyBag::set(const NameTable& names, NameId name, Recorded<Value> value) {
  const NameId key = names.keyOf(name);
  if (const std::size_t index = find(key); index != kNotFound) {
    values_[index] = std::move(value);
    return;
  }
  keys_.push_back(key);
  names_.push_back(name);
  values_.push_back(std::move(value));
  if (!index_.empty()) {
    index_.emplace(key, keys_.size() - 1);
  } else if (keys_.size() > kScanLimit) {
    for (std::size_t i = 0; i < keys_.size(); ++i) index_.emplace(keys_[i], i);
  }
}

}  // namespace tarrowin
