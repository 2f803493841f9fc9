// The list that the conversion collects texts in: a dynamic array whose element 0 is unused and
// whose last element is always the empty slot for the next entry.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "shared/vb_error.h"

namespace tarrowin {

// Entries stand at 1 to upperBound() - 1. Iterating with for visits the entries.
class GrowingList {
 public:
  GrowingList() : elements_(2) {}

  // Bounds 0 to 1, all elements empty; also what erasing the array leaves.
  void reset() { elements_.assign(2, {}); }

  // Writes into the element at the upper bound, then grows by one.
  void append(std::string entry) {
    elements_.back() = std::move(entry);
    grow();
  }

  // Grows by one empty element, contents kept, for arrays that are filled by an index of their own.
  void grow() { elements_.emplace_back(); }

  std::int32_t upperBound() const { return static_cast<std::int32_t>(elements_.size()) - 1; }
  // The number of entries, upperBound() - 1.
  std::int32_t count() const { return upperBound() - 1; }

  // Any element from 0 to upperBound(); raises 9 outside.
  std::string& operator[](std::int32_t index) { return elements_[checked(index)]; }
  const std::string& operator[](std::int32_t index) const { return elements_[checked(index)]; }

  // The entries, without the unused first and the empty last element. Valid until the next change.
  std::span<const std::string> entries() const {
    return std::span(elements_).subspan(1, elements_.size() - 2);
  }
  auto begin() const { return entries().begin(); }
  auto end() const { return entries().end(); }

 private:
  std::size_t checked(std::int32_t index) const {
    if (index < 0 || index > upperBound()) raise(kErrSubscript);
    return static_cast<std::size_t>(index);
  }

  std::vector<std::string> elements_;
};

}  // namespace tarrowin
