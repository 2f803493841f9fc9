// Names of members and properties turned into small numbers once, so that a look-up at run time is
// one hash over the name and a scan over numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "access/model/case_folding.h"

namespace tarrowin {

// Spellings that differ in case alone have different ids and one key.
using NameId = std::uint32_t;
inline constexpr NameId kNoName = UINT32_MAX;

// Members that objects answer by code rather than from a list of properties. Their numbers are
// their keys in every NameTable; kDefault is the empty name, an object's default member.
enum class Member : NameId {
  kDefault,
#define TARROWIN_MEMBER(name) k##name,
#include "access/model/member_names.inc"
#undef TARROWIN_MEMBER
};

class NameTable {
 public:
  explicit NameTable(const CaseFolding& folding);

  // The id of this very spelling, made where it is new.
  NameId intern(std::string_view name);
  // The key of a name, kNoName for one never interned. Never allocates.
  NameId find(std::string_view name) const;

  NameId keyOf(NameId id) const { return entries_[id].key; }
  const std::string& spelling(NameId id) const { return entries_[id].text; }

 private:
  struct Entry {
    std::string text;
    NameId key;              // id of the first spelling
    NameId next = kNoName;   // the next spelling of the same key
    std::uint32_t hash = 0;  // of the folded text
  };
  std::uint32_t hashOf(std::string_view name) const;
  NameId findKey(std::string_view name, std::uint32_t hash) const;
  void place(NameId key);
  void grow();

  CaseFolding folding_;
  std::vector<Entry> entries_;
  std::vector<NameId> slots_;  // open addressing; a power of two, at most half full
  std::size_t keys_ = 0;
};

// A table of the members alone, for objects that exist without a database.
const NameTable& memberNames();

}  // namespace tarrowin
