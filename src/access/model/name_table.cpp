// A hash table with open addressing over folded names.
#include "access/model/name_table.h"

namespace tarrowin {

namespace {
constexpr std::string_view kMemberSpellings[] = {
    "",
#define TARROWIN_MEMBER(name) #name,
#include "access/model/member_names.inc"
#undef TARROWIN_MEMBER
};
constexpr std::size_t kFirstSlots = 512;
}  // namespace

NameTable::NameTable(const CaseFolding& folding) : folding_(folding), slots_(kFirstSlots, kNoName) {
  for (const std::string_view name : kMemberSpellings) intern(name);
}

// FNV-1a over the folded bytes.
std::uint32_t NameTable::hashOf(std::string_view name) const {
  std::uint32_t hash = 2166136261u;
  for (const char c : name)
    hash = (hash ^ static_cast<unsigned char>(folding_.fold(c))) * 16777619u;
  return hash;
}

NameId NameTable::findKey(std::string_view name, std::uint32_t hash) const {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
    const NameId id = slots_[slot];
    if (id == kNoName) return kNoName;
    const Entry& entry = entries_[id];
    if (entry.hash == hash && (entry.text == name || folding_.equal(entry.text, name))) return id;
  }
}

NameId NameTable::find(std::string_view name) const { return findKey(name, hashOf(name)); }

NameId NameTable::intern(std::string_view name) {
  const std::uint32_t hash = hashOf(name);
  const NameId key = findKey(name, hash);
  const NameId added = static_cast<NameId>(entries_.size());
  if (key == kNoName) {
    entries_.push_back({std::string(name), added, kNoName, hash});
    if (++keys_ * 2 > slots_.size())
      grow();
    else
      place(added);
    return added;
  }
  NameId last = key;
  for (NameId id = key; id != kNoName; id = entries_[id].next) {
    if (entries_[id].text == name) return id;
    last = id;
  }
  entries_[last].next = added;
  entries_.push_back({std::string(name), key, kNoName, hash});
  return added;
}

void NameTable::place(NameId key) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = entries_[key].hash & mask;
  while (slots_[slot] != kNoName) slot = (slot + 1) & mask;
  slots_[slot] = key;
}

void NameTable::grow() {
  slots_.assign(slots_.size() * 2, kNoName);
  for (NameId id = 0; id < entries_.size(); ++id)
    if (entries_[id].key == id) place(id);
}

const NameTable& memberNames() {
  static const NameTable table{CaseFolding(CodePage(CodePage::kUtf8))};
  return table;
}

}  // namespace tarrowin
