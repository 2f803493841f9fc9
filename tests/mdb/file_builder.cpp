// The writing side of the file format, as far as tests need it.
// See file_builder.h.
#include "mdb/file_builder.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "access/mdb/rc4.h"
#include "access/mdb/table.h"

namespace tarrowin::mdb {
namespace {

constexpr double kCreated = 37257.5;  // 2002-01-01, noon

void put(Bytes& page, std::size_t at, const Bytes& bytes) {
  std::copy(bytes.begin(), bytes.end(), page.begin() + static_cast<std::ptrdiff_t>(at));
}

std::size_t fixedSize(const BuiltColumn& column) {
  switch (column.type) {
    case 1:
      return 0;
    case 2:
      return 1;
    case 3:
      return 2;
    case 4:
    case 6:
      return 4;
    case 5:
    case 7:
    case 8:
      return 8;
    case 15:
      return 16;
    case 16:
      return 17;
    default:
      return column.length;
  }
}

const std::vector<BuiltColumn>& catalogColumns() {
  static const std::vector<BuiltColumn> columns{
      {"Id", 4, 4, true},         {"ParentId", 4, 4, true},
      {"Name", 10, 510, false},   {"Type", 3, 2, true},
      {"DateCreate", 8, 8, true}, {"DateUpdate", 8, 8, true},
      {"Owner", 9, 510, false},   {"Flags", 4, 4, true},
      {"Database", 12, 0, false}, {"Connect", 12, 0, false},
      {"ForeignName", 10, 510},   {"RmtInfoShort", 9, 510},
      {"RmtInfoLong", 11, 0},     {"Lv", 11, 0},
      {"LvProp", 11, 0},          {"LvModule", 11, 0},
      {"LvExtra", 11, 0},
  };
  return columns;
}

}  // namespace

Bytes le16(std::uint32_t value) {
  return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8)};
}

Bytes le32(std::uint32_t value) { return join({le16(value & 0xFFFF), le16(value >> 16)}); }

Bytes leDouble(double value) {
  Bytes bytes(sizeof value);
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}

Bytes ansi(std::string_view text) { return Bytes(text.begin(), text.end()); }

Bytes utf16(std::u16string_view text) {
  Bytes bytes;
  for (char16_t unit : text) {
    bytes.push_back(static_cast<std::uint8_t>(unit));
    bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
  }
  return bytes;
}

Bytes join(std::initializer_list<Bytes> parts) {
  Bytes bytes;
  for (const Bytes& part : parts) bytes.insert(bytes.end(), part.begin(), part.end());
  return bytes;
}

FileBuilder::FileBuilder(bool jet3)
    : format_(jet3 ? kJet3 : kJet4), version_(jet3 ? std::uint8_t{0} : std::uint8_t{1}) {
  for (int i = 0; i < 3; ++i) addPage({});  // header, free pages, definition of the catalog
}

Bytes FileBuilder::text(std::string_view ascii) const {
  return format_.jet3 ? ansi(ascii) : utf16(std::u16string(ascii.begin(), ascii.end()));
}

Bytes FileBuilder::row(const std::vector<BuiltColumn>& columns, const std::vector<Cell>& cells,
                       std::size_t count) const {
  if (count == 0) count = columns.size();
  Bytes fixed;
  Bytes data;
  Bytes mask((count + 7) / 8);
  std::vector<std::size_t> offsets;
  for (std::size_t i = 0; i < count; ++i) {
    if (cells[i]) mask[i / 8] = static_cast<std::uint8_t>(mask[i / 8] | (1 << (i % 8)));
    if (columns[i].fixed) {
      Bytes cell = cells[i].value_or(Bytes{});
      cell.resize(fixedSize(columns[i]));
      fixed.insert(fixed.end(), cell.begin(), cell.end());
    } else {
      offsets.push_back(data.size());
      if (cells[i]) data.insert(data.end(), cells[i]->begin(), cells[i]->end());
    }
  }
  offsets.push_back(data.size());
  for (std::size_t& offset : offsets) offset += format_.columnCountSize + fixed.size();
  auto number = static_cast<std::uint32_t>(count);
  auto variable = static_cast<std::uint32_t>(offsets.size() - 1);
  if (!format_.jet3) {
    Bytes ends;
    for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset) {
      ends = join({ends, le16(static_cast<std::uint32_t>(*offset))});
    }
    return join({le16(number), fixed, data, ends, le16(variable), mask});
  }
  std::size_t jumpCount = 0;
  auto size = [&] { return offsets.back() + offsets.size() + jumpCount + 1 + mask.size(); };
  while ((size() - 1) / 256 > jumpCount) ++jumpCount;
  Bytes jumps;
  for (std::size_t jump = jumpCount; jump > 0; --jump) {
    auto first = std::lower_bound(offsets.begin(), offsets.end(), 256 * jump);
    jumps.push_back(first == offsets.end() ? std::uint8_t{0xFF}
                                           : static_cast<std::uint8_t>(first - offsets.begin()));
  }
  Bytes ends;
  for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset) {
    ends.push_back(static_cast<std::uint8_t>(*offset));
  }
  return join({{static_cast<std::uint8_t>(number)},
               fixed,
               data,
               ends,
               jumps,
               {static_cast<std::uint8_t>(variable)},
               mask});
}

std::uint32_t FileBuilder::addPage(Bytes page) {
  page.resize(format_.pageSize);
  pages_.push_back(std::move(page));
  return static_cast<std::uint32_t>(pages_.size() - 1);
}

void FileBuilder::setPage(std::uint32_t number, Bytes page) {
  page.resize(format_.pageSize);
  pages_[number] = std::move(page);
}

Bytes FileBuilder::rowsPage(std::uint32_t owner, const std::vector<BuiltRow>& rows) const {
  Bytes page(format_.pageSize);
  put(page, 0, {1, 1});
  put(page, 4, le32(owner));
  put(page, format_.dataRowCount, le16(static_cast<std::uint32_t>(rows.size())));
  std::size_t end = page.size();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    end -= rows[i].bytes.size();
    put(page, end, rows[i].bytes);
    put(page, format_.dataRowCount + 2 + 2 * i,
        le16(static_cast<std::uint32_t>(end) | rows[i].flags));
  }
  put(page, 2, le16(static_cast<std::uint32_t>(end - format_.dataRowCount - 2 - 2 * rows.size())));
  return page;
}

std::uint32_t FileBuilder::addRows(std::uint32_t owner, const std::vector<BuiltRow>& rows) {
  return addPage(rowsPage(owner, rows));
}

Bytes FileBuilder::longInRow(const Bytes& value) const {
  return join(
      {le32(0x80000000u | static_cast<std::uint32_t>(value.size())), le32(0), le32(0), value});
}

constexpr std::uint32_t kLongValueOwner = 0x4C41564C;  // "LVAL"

Bytes FileBuilder::longOnePage(const Bytes& value) {
  std::uint32_t page = addRows(kLongValueOwner, {{value}});
  return join(
      {le32(0x40000000u | static_cast<std::uint32_t>(value.size())), le32(page << 8), le32(0)});
}

// The last piece is placed first, as each names the next.
Bytes FileBuilder::longChain(const std::vector<Bytes>& pieces) {
  std::uint32_t next = 0;
  std::size_t length = 0;
  for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
    next = addRows(kLongValueOwner, {{join({le32(next << 8), *piece})}});
    length += piece->size();
  }
  return join({le32(static_cast<std::uint32_t>(length)), le32(next << 8), le32(0)});
}

Bytes FileBuilder::definition(const std::vector<BuiltColumn>& columns, std::size_t rowCount,
                              std::uint32_t mapPage) const {
  Bytes page(format_.columnsStart);
  put(page, 0, {2, 1});
  put(page, format_.rowCount, le32(static_cast<std::uint32_t>(rowCount)));
  auto count = static_cast<std::uint32_t>(columns.size());
  auto variable = static_cast<std::uint32_t>(std::count_if(
      columns.begin(), columns.end(), [](const BuiltColumn& column) { return !column.fixed; }));
  put(page, format_.columnCount - 5, {0x4E});       // a user's table
  put(page, format_.columnCount - 4, le16(count));  // columns there ever were
  put(page, format_.columnCount - 2, le16(variable));
  put(page, format_.columnCount, le16(count));
  put(page, format_.usageMap, le32(mapPage << 8));
  put(page, format_.usageMap + 4, le32(mapPage << 8));  // pages with room: the same
  std::uint32_t fixedOffset = 0;
  std::uint32_t variableIndex = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const BuiltColumn& column = columns[i];
    auto number = static_cast<std::uint32_t>(i);
    Bytes entry(format_.columnEntry);
    entry[0] = static_cast<std::uint8_t>(column.type);
    put(entry, format_.columnNumber, le16(number));
    put(entry, format_.variableIndex, le16(variableIndex));
    put(entry, format_.displayIndex,
        le16(column.displayIndex < 0 ? number : static_cast<std::uint32_t>(column.displayIndex)));
    if (column.type == 16) {
      entry[format_.scale - 1] = 18;  // precision
      entry[format_.scale] = column.scale;
    }
    entry[format_.columnFlags] = static_cast<std::uint8_t>(column.flags | (column.fixed ? 1 : 0));
    put(entry, format_.fixedOffset, le16(fixedOffset));
    put(entry, format_.columnLength, le16(column.length));
    if (column.fixed) {
      fixedOffset += static_cast<std::uint32_t>(fixedSize(column));
    } else {
      ++variableIndex;
    }
    page = join({page, entry});
  }
  for (const BuiltColumn& column : columns) {
    Bytes name = text(column.name);
    auto size = static_cast<std::uint32_t>(name.size());
    page = join({page, format_.jet3 ? Bytes{static_cast<std::uint8_t>(size)} : le16(size), name});
  }
  return page;
}

std::vector<Bytes> FileBuilder::definitionPages(const std::vector<BuiltColumn>& columns,
                                                std::size_t rowCount, std::uint32_t usageMapPage) {
  Bytes whole = definition(columns, rowCount, usageMapPage);
  std::vector<Bytes> pages;
  Bytes page;
  for (std::uint8_t byte : whole) {
    if (page.size() == format_.pageSize) {
      pages.push_back(page);
      page = Bytes{2, 1, 0, 0, 0, 0, 0, 0};
    }
    page.push_back(byte);
  }
  pages.push_back(page);
  for (std::size_t i = 1; i < pages.size(); ++i) put(pages[i - 1], 4, le32(addPage({})));
  auto first = nextPage() - static_cast<std::uint32_t>(pages.size() - 1);
  for (std::size_t i = 1; i < pages.size(); ++i) {
    setPage(first + static_cast<std::uint32_t>(i - 1), pages[i]);
  }
  return pages;
}

Bytes FileBuilder::usageMapPage(std::uint32_t owner, std::uint32_t first, std::uint32_t end) const {
  Bytes map(5 + std::max<std::size_t>(64, (end - first + 7) / 8));
  put(map, 1, le32(first));
  for (std::uint32_t i = 0; i < end - first; ++i) {
    map[5 + i / 8] = static_cast<std::uint8_t>(map[5 + i / 8] | (1 << (i % 8)));
  }
  return rowsPage(owner, {{map}});
}

void FileBuilder::placeTable(std::uint32_t page, const std::vector<BuiltColumn>& columns,
                             const std::vector<BuiltRow>& rows) {
  std::uint32_t mapPage = addPage({});
  std::uint32_t first = nextPage();
  std::vector<BuiltRow> onPage;
  std::size_t room = format_.pageSize - format_.dataRowCount - 2;
  std::size_t used = 0;
  for (const BuiltRow& row : rows) {
    if (used + row.bytes.size() + 2 > room) {
      addRows(page, onPage);
      onPage.clear();
      used = 0;
    }
    onPage.push_back(row);
    used += row.bytes.size() + 2;
  }
  if (!onPage.empty()) addRows(page, onPage);
  auto alive = static_cast<std::size_t>(std::count_if(
      rows.begin(), rows.end(), [](const BuiltRow& row) { return (row.flags & 0x8000) == 0; }));
  setPage(page, definition(columns, alive, mapPage));
  setPage(mapPage, usageMapPage(0, first, nextPage()));
}

std::uint32_t FileBuilder::addTableOfRows(const std::string& name,
                                          const std::vector<BuiltColumn>& columns,
                                          const std::vector<BuiltRow>& rows, std::uint32_t flags) {
  std::uint32_t page = addPage({});
  placeTable(page, columns, rows);
  addObject(static_cast<std::int32_t>(page), name, 1, flags);
  return page;
}

std::uint32_t FileBuilder::addTable(const std::string& name,
                                    const std::vector<BuiltColumn>& columns,
                                    const std::vector<std::vector<Cell>>& cells,
                                    std::uint32_t flags) {
  std::vector<BuiltRow> rows;
  for (const auto& values : cells) rows.push_back({row(columns, values)});
  return addTableOfRows(name, columns, rows, flags);
}

void FileBuilder::addObject(std::int32_t id, const std::string& name, int type, std::uint32_t flags,
                            Cell properties, std::string connect, std::string foreignName,
                            std::string file) {
  std::vector<Cell> cells(catalogColumns().size());
  cells[0] = le32(static_cast<std::uint32_t>(id));
  cells[1] = le32(0x0F000001);
  cells[2] = text(name);
  cells[3] = le16(static_cast<std::uint32_t>(type));
  cells[4] = leDouble(kCreated);
  cells[5] = leDouble(kCreated + 1);
  cells[7] = le32(flags);
  if (!file.empty()) cells[8] = longInRow(text(file));
  if (!connect.empty()) cells[9] = longInRow(text(connect));
  if (!foreignName.empty()) cells[10] = text(foreignName);
  if (properties) cells[14] = longInRow(*properties);
  catalog_.push_back(std::move(cells));
}

Bytes FileBuilder::header() const {
  Bytes page(format_.pageSize);
  put(page, 0, {0, 1, 0, 0});
  put(page, 4, ansi("Standard Jet DB"));
  page[0x14] = version_;
  put(page, 0x3A, le16(1033));
  put(page, 0x3C, le16(1252));
  put(page, 0x3E, le32(pageKey_));
  Bytes password = password_;
  password.resize(format_.jet3 ? 20 : 40);
  put(page, 0x42, password);
  if (!format_.jet3) {
    put(page, 0x6E, le16(1033));
    put(page, 0x72, leDouble(kCreated));
    Bytes day = le32(static_cast<std::uint32_t>(kCreated));
    for (std::size_t i = 0; i < 40; ++i) page[0x42 + i] ^= day[i % 4];
  }
  static constexpr std::array<std::uint8_t, 4> kMaskKey{0xC7, 0xDA, 0x39, 0x6B};
  applyRc4(kMaskKey, std::span(page).subspan(0x18, format_.maskedHeader));
  return page;
}

Bytes FileBuilder::build() {
  std::vector<BuiltRow> rows;
  for (const auto& cells : catalog_) rows.push_back({row(catalogColumns(), cells)});
  placeTable(2, catalogColumns(), rows);
  pages_[0] = header();
  Bytes file;
  for (std::uint32_t number = 0; number < pages_.size(); ++number) {
    Bytes page = pages_[number];
    if (pageKey_ != 0 && number != 0) applyRc4(le32(pageKey_ ^ number), page);
    file.insert(file.end(), page.begin(), page.end());
  }
  return file;
}

}  // namespace tarrowin::mdb
