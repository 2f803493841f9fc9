// The properties of one object in the order of its Properties collection, found by key in a few
// nanoseconds.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "access/model/name_table.h"
#include "access/model/recorded.h"
#include "shared/value.h"

namespace tarrowin {

class PropertyBag {
 public:
  static constexpr std::size_t kNotFound = SIZE_MAX;

  std::size_t size() const { return keys_.size(); }
  NameId nameAt(std::size_t index) const { return names_[index]; }
  NameId keyAt(std::size_t index) const { return keys_[index]; }
  const Recorded<Value>& valueAt(std::size_t index) const { return values_[index]; }

  // The position of the property with that key, or kNotFound.
  std::size_t find(NameId key) const;
  const Recorded<Value>* valueOf(NameId key) const {
    const std::size_t index = find(key);
    return index == kNotFound ? nullptr : &values_[index];
  }
  // Adds a property under an interned name. One of the same key is replaced where it stands.
  void set(const NameTable& names, NameId name, Recorded<Value> value);

 private:
  // A scan over neighbouring numbers beats a hash up to about this many.
  static constexpr std::size_t kScanLimit = 128;

  std::vector<NameId> keys_;
  std::vector<NameId> names_;
  std::vector<Recorded<Value>> values_;
  std::unordered_map<NameId, std::size_t> index_;  // beyond kScanLimit
};

}  // namespace tarrowin
