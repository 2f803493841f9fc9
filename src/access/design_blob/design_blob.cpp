// Builds the tree of blocks from the records of a design.
// See design_blob.h.
#include "access/design_blob/design_blob.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "access/design_blob/object_types.h"
#include "access/design_blob/record_reader.h"
#include "access/design_blob/slot_table.h"
#include "access/design_blob/stored_value.h"
#include "access/mdb/damage.h"

namespace tarrowin {

namespace {

// Version 18 was never met; its records are measured like those of 17 and 19, and its texts are
// taken for those of 17.
constexpr std::int32_t kFirstWideVersion = 19;

// Access nests no deeper than form, section, tab control, page, option group, button and its label,
// and takes 754 sections and controls in the life of a design: limits that only damage passes.
constexpr std::size_t kMaximumNesting = 12;
constexpr std::size_t kMaximumObjects = 10000;

class DesignReader {
 public:
  DesignReader(std::span<const std::uint8_t> design, const CodePage& ansi, const CodePage& codePage)
      : records_(design), texts_(records_.version() >= kFirstWideVersion, ansi, codePage) {}

  StoredDesign read() {
    design_.version = records_.version();
    const std::uint16_t type = records_.beginObject();
    if (objectType(type).numbering != Numbering::kForm)
      mdb::raiseDamaged("the design is neither that of a form nor of a report");
    readObject(type, design_.root, 1);
    if (!records_.atEnd()) mdb::raiseDamaged("bytes are left over behind the end of the design");
    return std::move(design_);
  }

 private:
  void readObject(std::uint16_t number, StoredBlock& block, std::size_t depth) {
    if (depth > kMaximumNesting) mdb::raiseDamaged("the objects of the design are nested too deep");
    const ObjectType& type = objectType(number);
    block.kind = type.kind.empty() ? "#" + std::to_string(number) : std::string(type.kind);
    readProperties(type.numbering, block);

    const std::size_t inside = records_.objectsInside();
    objects_ += inside;
    if (objects_ > kMaximumObjects) mdb::raiseDamaged("the design has too many objects");
    // Controls stand in sections and in other controls; those in the form itself are styles.
    const bool holdsControls = depth > 1;
    block.children.resize(inside);
    for (StoredBlock& child : block.children) {
      const std::uint16_t childNumber = records_.beginObject();
      if (holdsControls) countControl(childNumber);
      readObject(childNumber, child, depth + 1);
    }
  }

  void countControl(std::uint16_t number) {
    ++design_.understood.controls;
    if (number < kFirstNoControl && !objectType(number).kind.empty())
      ++design_.understood.controlsKnown;
  }

  void readProperties(Numbering numbering, StoredBlock& block) {
    Record record;
    while (records_.next(record)) {
      ++design_.understood.properties;
      ValueKind kind = record.kind;
      const std::string_view keyword = meaning(numbering, record, kind);
      if (keyword.empty()) continue;
      auto value = storedValue(record, kind, texts_);
      if (!value) continue;
      ++design_.understood.propertiesKnown;
      block.properties.push_back({std::string(keyword), *std::move(value)});
    }
  }

  // The keyword, empty where none is known; a kind that the record does not tell is set.
  static std::string_view meaning(Numbering numbering, const Record& record, ValueKind& kind) {
    if (const Slot* const slot = findSlot(numbering, record.id)) {
      if (kind == ValueKind::kBySlot) kind = slot->kind;
      return kind == slot->kind ? slot->keyword : std::string_view();
    }
    return keywordOfCode(record.code);
  }

  RecordReader records_;
  DesignTexts texts_;
  StoredDesign design_;
  std::size_t objects_ = 0;
};

}  // namespace

bool hasAnsiTexts(std::span<const std::uint8_t> design) {
  return design.size() >= 2 && (design[0] | design[1] << 8) < kFirstWideVersion;
}

StoredDesign readDesignBlob(std::span<const std::uint8_t> design, const CodePage& ansi,
                            const CodePage& codePage) {
  return DesignReader(design, ansi, codePage).read();
}

}  // namespace tarrowin
