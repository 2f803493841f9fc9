// The lists of copies, in their order.
#include "preview/property_copies.h"

#include <algorithm>
#include <string>

#include "core/statement.h"
#include "forms/control_types.h"
#include "preview/preview_classes.h"
#include "preview/twips.h"
#include "shared/value_tests.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrInvalidPropertyValue = 380;
// Values of Appearance.
constexpr std::int32_t kFlat = 0, k3D = 1;

struct CopyRow {
  std::string_view from, to;
  void (*make)(const PropertyCopy& copy, const CopyRow& row);
};

void write(const PropertyCopy& copy, std::string_view property, Value value) {
  const std::string& className = copy.target.className;
  if (!hasPreviewProperty(className, property)) raise(kErrNoSuchMember, property);
  const std::int32_t* number = value.longInteger();
  if (number && !takesPreviewNumber(className, property, *number)) raise(kErrInvalidPropertyValue);
  copy.target.put(property, std::move(value));
}

void appearance(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, equals(copy.source.get(row.from), 0) ? kFlat : k3D);
}

void text(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, copy.source.text(row.from));
}

void number(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, copy.source.number(row.from));
}

void boolean(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, toBoolean(copy.source.get(row.from)));
}

void left(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, twips(copy.source.number(row.from) - copy.container.left));
}

// The sections that stand above the section, by Access's numbers.
std::span<const std::int32_t> sectionsAbove(std::int32_t section) {
  using namespace section_number;
  static constexpr std::int32_t kFromTheTop[] = {kFormHeader, kPageHeader, kDetail, kPageFooter};
  const std::span<const std::int32_t> all(kFromTheTop);
  switch (section) {
    case kPageHeader:
      return all.first(1);
    case kDetail:
      return all.first(2);
    case kPageFooter:
      return all.first(3);
    case kFormFooter:
      return all;
    default:
      return {};
  }
}

// A control of an unknown section stands as one of the header does.
std::int64_t heightAbove(const PropertyCopy& copy) {
  std::int32_t section = section_number::kFormHeader;
  ignoringErrors([&] { section = copy.source.number("Section"); });
  const auto above = sectionsAbove(section);
  std::int64_t height = 0;
  for (const PreviewSection& each : copy.surface.sections) {
    if (std::ranges::find(above, each.number) != above.end()) height += each.height;
  }
  return height;
}

void top(const PropertyCopy& copy, const CopyRow& row) {
  write(copy, row.to, twips(copy.source.number(row.from) + heightAbove(copy) - copy.container.top));
}

void binding(const PropertyCopy& copy, const CopyRow& row) {
  const std::string field = copy.source.text(row.from);
  if (field.empty() || !copy.data) return;
  ignoringErrors([&] { write(copy, row.to, kDataControl); });
  ignoringErrors([&] { write(copy, "DataField", field); });
  if (!hasPreviewProperty(copy.target.className, "Text")) return;
  write(copy, "Text", joined(copy.data->valueOf(field)));
}

// clang-format off
constexpr CopyRow kControlCopies[] = {
    {"SpecialEffect",  "Appearance",  appearance},
    {"Caption",        "Caption",     text},
    {"BackColor",      "BackColor",   number},
    {"BackStyle",      "BackStyle",   number},
    {"BorderStyle",    "BorderStyle", number},
    {"ControlSource",  "DataSource",  binding},
    {"Enabled",        "Enabled",     boolean},
    {"ForeColor",      "ForeColor",   number},
    {"Height",         "Height",      number},
    {"Left",           "Left",        left},
    {"Locked",         "Locked",      boolean},
    {"TabIndex",       "TabIndex",    number},
    {"TabStop",        "TabStop",     boolean},
    {"Tag",            "Tag",         text},
    {"Text",           "Text",        text},
    {"ControlTipText", "ToolTipText", text},
    {"Top",            "Top",         top},
    {"Visible",        "Visible",     boolean},
    {"Width",          "Width",       number},
};

constexpr CopyRow kTabControlCopies[] = {
    {"Enabled",        "Enabled",     boolean},
    {"Height",         "Height",      number},
    {"Left",           "Left",        left},
    {"TabIndex",       "TabIndex",    number},
    {"TabStop",        "TabStop",     boolean},
    {"Tag",            "Tag",         text},
    {"Top",            "Top",         top},
    {"Visible",        "Visible",     boolean},
    {"Width",          "Width",       number},
};
// clang-format on

void copyAll(const PropertyCopy& copy, std::span<const CopyRow> rows) {
  for (const CopyRow& row : rows) ignoringErrors([&] { row.make(copy, row); });
}

}  // namespace

void copyControl(const PropertyCopy& copy) { copyAll(copy, kControlCopies); }
void copyTabControl(const PropertyCopy& copy) { copyAll(copy, kTabControlCopies); }

}  // namespace tarrowin
