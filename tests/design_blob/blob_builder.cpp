// Encoding objects and records; listing blocks.
// See blob_builder.h.
#include "design_blob/blob_builder.h"

#include "mdb/file_builder.h"

namespace tarrowin {

namespace {

constexpr std::uint32_t kFirstPrefixed = 188, kEndPrefixed = 253;

void append(Bytes& target, const Bytes& more) {
  target.insert(target.end(), more.begin(), more.end());
}

class Encoder {
 public:
  explicit Encoder(std::uint16_t version) : version_(version) {
    word(version);
    word(version);
    longWord(0);
  }

  void object(const BuiltObject& object) {
    word(object.type);
    for (const BuiltRecord& record : object.records)
      isCompact() ? compact(record) : verbose(record);
    const std::size_t inside = object.inside.size();
    const std::uint8_t terminator = inside == 0 ? 0xFD : inside == 1 ? 0xFE : 0xFF;
    isCompact() ? append(bytes_, {terminator}) : longWord(terminator);
    if (inside > 1) word(static_cast<std::uint32_t>(inside));
    for (const BuiltObject& child : object.inside) this->object(child);
  }

  Bytes take() { return std::move(bytes_); }

 private:
  bool isCompact() const { return version_ < 20; }

  void word(std::uint32_t value) { append(bytes_, mdb::le16(value)); }
  void longWord(std::uint32_t value) { append(bytes_, mdb::le32(value)); }

  // ANSI texts of the tests are ASCII, or bytes beyond it given as code points.
  Bytes valueOf(const BuiltRecord& record) const {
    if (record.type != kTextType) return record.bytes;
    if (version_ >= 19) return mdb::utf16(record.text);
    return Bytes(record.text.begin(), record.text.end());
  }

  void compact(const BuiltRecord& record) {
    const Bytes value = valueOf(record);
    bytes_.push_back(static_cast<std::uint8_t>(record.id));
    if (record.id >= kFirstPrefixed && record.id < kEndPrefixed) length(value.size());
    append(bytes_, value);
  }

  void length(std::size_t size) {
    if (size < 0xFF) {
      bytes_.push_back(static_cast<std::uint8_t>(size));
      return;
    }
    bytes_.push_back(0xFF);
    word(size < 0xFFFF ? static_cast<std::uint32_t>(size) : 0xFFFF);
    if (size >= 0xFFFF) longWord(static_cast<std::uint32_t>(size));
  }

  void verbose(const BuiltRecord& record) {
    const Bytes value = valueOf(record);
    longWord(record.id);
    word(record.code);
    // Access keeps long texts of any length under a type of their own; both mean a text.
    longWord(record.type);
    longWord(record.type == kBooleanType ? 1 : 4);
    longWord(static_cast<std::uint32_t>(value.size()));
    append(bytes_, value);
  }

  std::uint16_t version_;
  Bytes bytes_;
};

void list(const StoredBlock& block, std::size_t depth, std::string& out) {
  out += std::string(2 * depth, ' ') + block.kind;
  for (const StoredProperty& property : block.properties) {
    out += " " + property.keyword;
    const Value* const value = std::get_if<Value>(&property.value);
    if (value == nullptr) {
      out += "!";
    } else if (value->bytes() != nullptr) {
      out += "=<" + std::to_string(value->bytes()->size()) + ">";
    } else {
      out += value->text() ? "=\"" + *value->text() + "\"" : "=" + toText(*value);
    }
  }
  out += "\n";
  for (const StoredBlock& child : block.children) list(child, depth + 1, out);
}

}  // namespace

BuiltRecord BuiltRecord::withCode(std::uint16_t newCode) const {
  BuiltRecord record = *this;
  record.code = newCode;
  return record;
}

BuiltRecord flag(std::uint32_t id) { return {id, kBooleanType, {}, {}}; }

BuiltRecord byteValue(std::uint32_t id, std::uint8_t value) {
  return {id, kByteType, Bytes{value}, {}};
}

BuiltRecord integerValue(std::uint32_t id, std::int16_t value) {
  return {id, kIntegerType, mdb::le16(static_cast<std::uint16_t>(value)), {}};
}

BuiltRecord longValue(std::uint32_t id, std::int32_t value) {
  return {id, kLongType, mdb::le32(static_cast<std::uint32_t>(value)), {}};
}

BuiltRecord textValue(std::uint32_t id, std::u16string_view text) {
  return {id, kTextType, {}, std::u16string(text)};
}

BuiltRecord raw(std::uint32_t id, std::uint32_t type, Bytes bytes) {
  return {id, type, std::move(bytes), {}};
}

Bytes designBlob(std::uint16_t version, const BuiltObject& root) {
  Encoder encoder(version);
  encoder.object(root);
  return encoder.take();
}

std::string listing(const StoredBlock& block) {
  std::string out;
  list(block, 0, out);
  return out;
}

}  // namespace tarrowin
