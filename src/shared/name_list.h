// A list of names that answers at once whether it holds one. Names are compared letter by letter.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "shared/growing_list.h"

namespace tarrowin {

class NameList {
 public:
  void reset() {
    names_.reset();
    known_.clear();
  }

  void append(std::string name) {
    known_.insert(name);
    names_.append(std::move(name));
  }

  bool contains(std::string_view name) const { return known_.contains(name); }
  std::int32_t count() const { return names_.count(); }
  // In the order of appending, a name as often as it was appended. Valid until the next change.
  std::span<const std::string> entries() const { return names_.entries(); }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
      return std::hash<std::string_view>()(name);
    }
  };

  GrowingList names_;
  std::unordered_set<std::string, Hash, std::equal_to<>> known_;
};

}  // namespace tarrowin
