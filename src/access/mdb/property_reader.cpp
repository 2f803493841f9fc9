// After four bytes of signature come blocks: a list of names first, then one block for the object
// and one for each column that has properties; their records name the property by its index.
#include "access/mdb/property_reader.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "access/mdb/byte_view.h"
#include "access/mdb/cell_value.h"
#include "access/mdb/damage.h"
#include "access/mdb/table_definition.h"

namespace tarrowin::mdb {
namespace {

constexpr std::string_view kSignatureJet3{"KKD\0", 4};
constexpr std::string_view kSignatureJet4{"MR2\0", 4};
constexpr std::size_t kBlockHead = 6;   // u32 length of the block, u16 kind
constexpr std::size_t kRecordHead = 8;  // u16 length, u8 flags, u8 type, u16 name, u16 value length

constexpr int kNames = 0x80;
constexpr int kOwn = 0;
constexpr int kPart = 1;

std::string lengthAndText(const ByteView& view, std::size_t& at, const TextDecoder& text) {
  std::size_t length = view.u16(at);
  std::string result = text.plain(view.sub(at + 2, length).bytes());
  at += 2 + length;
  return result;
}

std::vector<std::string> readNames(const ByteView& body, const TextDecoder& text) {
  std::vector<std::string> names;
  for (std::size_t at = 0; at < body.size();) names.push_back(lengthAndText(body, at, text));
  return names;
}

Value readValue(const ByteView& bytes, int type, const TextDecoder& text) {
  if (type == kDaoBoolean) return Value(bytes.u8(0) != 0);
  if (type == kDaoText || type == kDaoMemo) return Value(text.plain(bytes.bytes()));
  if (type == kDaoGuid && bytes.size() != 16) type = kDaoBinary;
  if (type == kStoredDecimal) type = kDaoBinary;  // the record does not say where the point is
  StoredColumn column;
  column.type = type;
  return cellValue(bytes, column, text);
}

// The block's own head has been taken off.
PropertySet::Part readOwner(const ByteView& body, const std::vector<std::string>& names,
                            const TextDecoder& text) {
  PropertySet::Part part;
  std::size_t ownerLength = body.u32(0);
  std::size_t nameAt = 4;
  part.name = lengthAndText(body, nameAt, text);
  for (std::size_t at = std::max(ownerLength, nameAt); at < body.size();) {
    ByteView record = body.sub(at, body.u16(at));
    Property property;
    property.type = record.u8(3);
    std::size_t name = record.u16(4);
    if (name >= names.size()) {
      raiseDamaged("a property has the name number " + std::to_string(name) + " of " +
                   std::to_string(names.size()));
    }
    property.name = names[name];
    property.value = readValue(record.sub(kRecordHead, record.u16(6)), property.type, text);
    part.properties.push_back(std::move(property));
    at += record.size();
  }
  return part;
}

bool startsWith(const ByteView& view, std::string_view text) {
  auto bytes = view.sub(0, std::min(view.size(), text.size())).bytes();
  return std::equal(bytes.begin(), bytes.end(), text.begin(), text.end(),
                    [](std::uint8_t byte, char c) { return byte == static_cast<std::uint8_t>(c); });
}

}  // namespace

PropertySet readProperties(std::span<const std::uint8_t> bytes, const TextDecoder& text) {
  PropertySet set;
  if (bytes.empty()) return set;
  ByteView view(bytes, Place{"the list of properties", 0});
  if (!startsWith(view, kSignatureJet3) && !startsWith(view, kSignatureJet4)) {
    raiseDamaged("its list of properties starts with unknown bytes");
  }
  std::vector<std::string> names;
  for (std::size_t at = kSignatureJet4.size(); at < view.size();) {
    ByteView block = view.sub(at, std::max<std::size_t>(view.u32(at), kBlockHead));
    ByteView body = block.from(kBlockHead);
    int kind = block.u16(4);
    if (kind == kNames) {
      names = readNames(body, text);
    } else if (kind == kOwn) {
      PropertyList own = readOwner(body, names, text).properties;
      std::move(own.begin(), own.end(), std::back_inserter(set.own));
    } else if (kind == kPart) {
      set.parts.push_back(readOwner(body, names, text));
    }
    at += block.size();
  }
  return set;
}

const Property* findProperty(const PropertyList& list, std::string_view name) {
  auto found = std::find_if(list.begin(), list.end(), [name](const Property& property) {
    return compareIgnoringCase(property.name, name) == 0;
  });
  return found == list.end() ? nullptr : &*found;
}

}  // namespace tarrowin::mdb
