// A list of things with a name, in the order of their collection, and the look-up by name that
// collections have: without regard to case, an exact match first.
#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

#include "access/model/case_folding.h"

namespace tarrowin {

template <class T>
class NamedList {
 public:
  static constexpr std::size_t kNotFound = SIZE_MAX;

  std::size_t size() const { return items_.size(); }
  const T& operator[](std::size_t index) const { return items_[index]; }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

  // The items that are there stay where they are.
  void add(T item) {
    items_.push_back(std::move(item));
    byFoldedName_.clear();
  }
  // Puts the item in the place of the one that its name finds, or adds it.
  void put(T item, const CaseFolding& folding) {
    const std::size_t index = indexOf(item.name, folding);
    if (index == kNotFound) return add(std::move(item));
    items_[index] = std::move(item);
    byFoldedName_.clear();
  }

  // The position of the name, or kNotFound; of several matches the first.
  std::size_t indexOf(std::string_view name, const CaseFolding& folding) const {
    if (byFoldedName_.empty()) buildIndex(folding);
    std::size_t exact = kNotFound, alike = kNotFound;
    const auto [first, last] = byFoldedName_.equal_range(folding.fold(name));
    for (auto entry = first; entry != last; ++entry) {
      alike = std::min(alike, entry->second);
      if (items_[entry->second].name == name) exact = std::min(exact, entry->second);
    }
    return exact != kNotFound ? exact : alike;
  }
  const T* find(std::string_view name, const CaseFolding& folding) const {
    const std::size_t index = indexOf(name, folding);
    return index == kNotFound ? nullptr : &items_[index];
  }

 private:
  void buildIndex(const CaseFolding& folding) const {
    byFoldedName_.reserve(items_.size());
    for (std::size_t i = 0; i < items_.size(); ++i)
      byFoldedName_.emplace(folding.fold(items_[i].name), i);
  }

  std::deque<T> items_;
  mutable std::unordered_multimap<std::string, std::size_t> byFoldedName_;
};

}  // namespace tarrowin
