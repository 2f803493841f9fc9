// Takes the pages of a table definition apart.
// Entries of all columns come first, then their names in the same order.
#include "access/mdb/table_definition.h"

#include <algorithm>
#include <numeric>
#include <span>

#include "access/mdb/damage.h"

namespace tarrowin::mdb {
namespace {

constexpr std::size_t kNextPage = 4;
constexpr std::size_t kContinuation = 8;  // where a later page of the definition goes on

// 255 columns and 32 indexes with names of 64 characters need some 20 pages.
constexpr std::size_t kMaximumPages = 128;
constexpr std::size_t kMaximumColumns = 255;  // Jet's limit
constexpr std::size_t kMaximumIndexes = 4096;

constexpr std::uint8_t kFlagFixed = 0x01;
constexpr std::uint8_t kFlagAutoNumber = 0x04;
constexpr std::uint8_t kFlagAutoGuid = 0x40;

Bytes joinPages(const PageFile& file, std::uint32_t first) {
  Bytes joined;
  std::uint32_t number = first;
  for (std::size_t count = 0; number != 0; ++count) {
    if (count == kMaximumPages) raiseDamaged("its definition does not end");
    ByteView page = file.page(number, kDefinitionPage);
    auto bytes = page.from(count == 0 ? 0 : kContinuation).bytes();
    joined.insert(joined.end(), bytes.begin(), bytes.end());
    number = page.u32(kNextPage);
  }
  return joined;
}

int daoType(int stored) {
  if (stored == kStoredDecimal) return kDaoDecimal;
  if (stored == kStoredFixedBinary) return kDaoBinary;
  return stored;
}

int daoSize(const StoredColumn& column, bool jet3) {
  if (const auto size = sizeOfType(column.type)) return static_cast<int>(*size);
  switch (column.type) {
    case kDaoBoolean:
      return 1;
    case kStoredDecimal:
      return 16;
    case kDaoLongBinary:
    case kDaoMemo:
      return 0;
    case kDaoText:
      return static_cast<int>(jet3 ? column.length : column.length / 2);
    default:
      return static_cast<int>(column.length);
  }
}

// One column entry, before its place in the order of display is known.
struct Entry {
  Column column;
  StoredColumn stored;
  std::size_t displayIndex = 0;
};

Entry readEntry(const ByteView& view, const JetFormat& format) {
  Entry entry;
  StoredColumn& stored = entry.stored;
  stored.type = view.u8(0);
  stored.number = view.u16(format.columnNumber);
  stored.variable = view.u16(format.variableIndex);
  stored.offset = view.u16(format.fixedOffset);
  stored.length = view.u16(format.columnLength);
  stored.scale = view.u8(format.scale);
  std::uint8_t flags = view.u8(format.columnFlags);
  stored.fixed = (flags & kFlagFixed) != 0;
  entry.displayIndex = view.u16(format.displayIndex);
  entry.column.type = daoType(stored.type);
  entry.column.size = daoSize(stored, format.jet3);
  entry.column.autoNumber = (stored.type == kDaoLong && (flags & kFlagAutoNumber) != 0) ||
                            (stored.type == kDaoGuid && (flags & kFlagAutoGuid) != 0);
  return entry;
}

std::string readName(const ByteView& view, std::size_t& at, const JetFormat& format,
                     const TextDecoder& text) {
  std::size_t length = format.nameLengthSize == 1 ? view.u8(at) : view.u16(at);
  at += format.nameLengthSize;
  std::string name = text.plain(view.sub(at, length).bytes());
  at += length;
  return name;
}

// DAO sorts by ordinal position; columns that share one keep the order of their making.
void sortForDisplay(std::vector<Entry>& entries) {
  std::sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
    return left.displayIndex != right.displayIndex ? left.displayIndex < right.displayIndex
                                                   : left.stored.number < right.stored.number;
  });
}

}  // namespace

std::optional<std::size_t> sizeOfType(int type) {
  switch (type) {
    case kDaoByte:
      return 1;
    case kDaoInteger:
      return 2;
    case kDaoLong:
    case kDaoSingle:
      return 4;
    case kDaoCurrency:
    case kDaoDouble:
    case kDaoDate:
      return 8;
    case kDaoGuid:
      return 16;
    default:
      return std::nullopt;
  }
}

std::size_t TableDefinition::find(std::string_view name) const {
  auto found = std::find_if(columns.begin(), columns.end(), [name](const Column& column) {
    return compareIgnoringCase(column.name, name) == 0;
  });
  return static_cast<std::size_t>(found - columns.begin());
}

std::size_t TableDefinition::require(std::string_view name) const {
  std::size_t position = find(name);
  if (position == columns.size()) {
    raiseDamaged("the column \"" + std::string(name) + "\" is missing");
  }
  return position;
}

TableDefinition readTableDefinition(const PageFile& file, std::uint32_t page,
                                    const TextDecoder& text) {
  const JetFormat& format = file.format();
  Bytes joined = joinPages(file, page);
  ByteView view(joined, Place{"the table definition on page", page});
  TableDefinition definition;
  definition.page = page;
  definition.rowCount = view.u32(format.rowCount);
  definition.usageMap = readRowAddress(view, format.usageMap);
  std::size_t columnCount = view.u16(format.columnCount);
  std::size_t indexCount = view.u32(format.indexCount);
  if (columnCount > kMaximumColumns || indexCount > kMaximumIndexes) {
    raiseDamaged("its definition on page " + std::to_string(page) + " announces " +
                 std::to_string(columnCount) + " columns and " + std::to_string(indexCount) +
                 " indexes");
  }
  std::size_t at = format.columnsStart + format.indexEntry * indexCount;
  std::vector<Entry> entries;
  for (std::size_t i = 0; i < columnCount; ++i, at += format.columnEntry) {
    entries.push_back(readEntry(view.sub(at, format.columnEntry), format));
  }
  for (Entry& entry : entries) entry.column.name = readName(view, at, format, text);
  sortForDisplay(entries);
  for (Entry& entry : entries) {
    if (!entry.stored.fixed && entry.stored.type != kDaoBoolean) {
      definition.firstVariable = std::min(definition.firstVariable, entry.stored.number);
    }
    definition.columns.push_back(std::move(entry.column));
    definition.stored.push_back(entry.stored);
  }
  return definition;
}

}  // namespace tarrowin::mdb
