// One rule a property.
#include "access/designs/derived_properties.h"

#include <span>
#include <string_view>
#include <utility>

#include "access/design_blob/ole_data.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kBoldWeight = 700;
constexpr std::int32_t kMinButtonOnly = 1, kMaxButtonOnly = 2;
constexpr std::int32_t kOleLinked = 0;
constexpr const char *kNoPicture = "(none)", *kUnnamedPicture = "(bitmap)";
// Later versions of Access keep the picture's original file here.
constexpr std::string_view kImageData = "ImageData", kOleData = "OleData";

const Value* valueOf(const PropertyBag& properties, NameId key) {
  const Recorded<Value>* recorded = properties.valueOf(key);
  return recorded ? recorded->ifRead() : nullptr;
}

bool isTrue(const PropertyBag& properties, NameId key) {
  const Value* value = valueOf(properties, key);
  return value && value->boolean() && *value->boolean();
}

bool hasText(const PropertyBag& properties, NameId key) {
  const Value* value = valueOf(properties, key);
  return value && value->text() && !value->text()->empty();
}

// None for what is no bytes.
std::span<const std::uint8_t> bytesIn(const Value* value) {
  return value && value->bytes() ? *value->bytes() : std::span<const std::uint8_t>();
}

bool hasBytes(const PropertyBag& properties, NameId key) {
  return !bytesIn(valueOf(properties, key)).empty();
}

std::span<const std::uint8_t> bytesKept(const StoredBlock& block, std::string_view keyword) {
  for (const StoredProperty& property : block.properties)
    if (property.keyword == keyword) return bytesIn(std::get_if<Value>(&property.value));
  return {};
}

}  // namespace

DerivedProperties::DerivedProperties(NameTable& names) : names_(names) {
  const auto key = [&names](std::string_view name) { return names.keyOf(names.intern(name)); };
  for (const auto& [property, source] :
       {std::pair{"BorderStyle", "OldBorderStyle"}, std::pair{"RecordsetType", "AllowUpdating"},
        std::pair{"OnPush", "OnClick"}, std::pair{"OnInsert", "BeforeInsert"}})
    repeated_.push_back({key(property), key(source)});
  fontBold_ = key("FontBold");
  fontWeight_ = key("FontWeight");
  minMaxButtons_ = key("MinMaxButtons");
  minButton_ = key("MinButton");
  maxButton_ = key("MaxButton");
  picture_ = key("Picture");
  pictureData_ = key("PictureData");
  oleType_ = key("OLEType");
  oleData_ = key(kOleData);
  sourceDoc_ = key("SourceDoc");
}

void DerivedProperties::set(PropertyBag& properties, NameId property, Value value) const {
  properties.set(names_, property, std::move(value));
}

void DerivedProperties::fillIn(PropertyBag& properties, const StoredBlock& block) const {
  for (const Repeated& one : repeated_)
    if (const Value* source = valueOf(properties, one.source))
      if (properties.valueOf(one.property)) set(properties, one.property, Value(*source));
  if (const Value* weight = valueOf(properties, fontWeight_);
      weight && weight->longInteger() && properties.valueOf(fontBold_))
    set(properties, fontBold_, *weight->longInteger() >= kBoldWeight ? -1 : 0);
  if (properties.valueOf(minMaxButtons_))
    set(properties, minMaxButtons_,
        (isTrue(properties, minButton_) ? kMinButtonOnly : 0) +
            (isTrue(properties, maxButton_) ? kMaxButtonOnly : 0));
  if (const Value* picture = valueOf(properties, picture_);
      picture && (!hasText(properties, picture_) || *picture == Value(kNoPicture)))
    set(properties, picture_,
        hasBytes(properties, pictureData_) || !bytesKept(block, kImageData).empty()
            ? kUnnamedPicture
            : kNoPicture);
  if (properties.valueOf(oleType_)) {
    const auto own = bytesIn(valueOf(properties, oleData_));
    set(properties, oleType_,
        hasText(properties, sourceDoc_)
            ? kOleLinked
            : oleTypeOf(own.empty() ? bytesKept(block, kOleData) : own));
  }
}

}  // namespace tarrowin
