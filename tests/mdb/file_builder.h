// Builds small database files in memory, byte by byte, for tests: page 0, a catalog, tables with
// their definitions, usage maps and rows, long values. Damage is done by overwriting the result.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "access/mdb/data_page.h"
#include "access/mdb/jet_format.h"
#include "shared/value.h"

namespace tarrowin::mdb {

// Little-endian numbers and texts as bytes.
Bytes le16(std::uint32_t value);
Bytes le32(std::uint32_t value);
Bytes leDouble(double value);
Bytes ansi(std::string_view text);
Bytes utf16(std::u16string_view text);
Bytes join(std::initializer_list<Bytes> parts);

struct BuiltColumn {
  std::string name;  // ASCII
  int type = 0;
  std::uint16_t length = 0;
  bool fixed = false;
  std::uint8_t flags = 0;  // bit 0 is set by `fixed`
  int displayIndex = -1;   // -1: as the column's place
  std::uint8_t scale = 0;
};

using Cell = std::optional<Bytes>;  // a Boolean with bytes is True

struct BuiltRow {
  Bytes bytes;
  std::uint16_t flags = 0;  // 0x8000 skipped, 0x4000 pointer
};

class FileBuilder {
 public:
  explicit FileBuilder(bool jet3);

  const JetFormat& format() const { return format_; }
  Bytes text(std::string_view ascii) const;  // as the format stores uncompressed text

  // The bytes of a row. A count above 0 is that of an older row: columns from there on are absent.
  Bytes row(const std::vector<BuiltColumn>& columns, const std::vector<Cell>& cells,
            std::size_t count = 0) const;

  // Puts the page at the end of the file, filled up with zeros, and returns its number.
  std::uint32_t addPage(Bytes page);
  // A page of rows.
  std::uint32_t addRows(std::uint32_t owner, const std::vector<BuiltRow>& rows);
  // Takes the place of a page that is there.
  void setPage(std::uint32_t number, Bytes page);
  std::uint32_t nextPage() const { return static_cast<std::uint32_t>(pages_.size()); }
  // A definition cut into pages; those behind the first are put at the end of the file.
  std::vector<Bytes> definitionPages(const std::vector<BuiltColumn>& columns, std::size_t rowCount,
                                     std::uint32_t usageMapPage);
  Bytes rowsPage(std::uint32_t owner, const std::vector<BuiltRow>& rows) const;

  // The reference of a long value in a row; the value on a page of its own, or on several of a
  // chain.
  Bytes longInRow(const Bytes& value) const;
  Bytes longOnePage(const Bytes& value);
  Bytes longChain(const std::vector<Bytes>& pieces);

  // Adds the table to the catalog; the rows fill as many pages as they need. Returns the page of
  // its definition, the usage map stands on the next one and the rows on those behind it.
  std::uint32_t addTableOfRows(const std::string& name, const std::vector<BuiltColumn>& columns,
                               const std::vector<BuiltRow>& rows, std::uint32_t flags = 0);
  std::uint32_t addTable(const std::string& name, const std::vector<BuiltColumn>& columns,
                         const std::vector<std::vector<Cell>>& cells, std::uint32_t flags = 0);
  // Any other object of the catalog.
  void addObject(std::int32_t id, const std::string& name, int type, std::uint32_t flags = 0,
                 Cell properties = {}, std::string connect = {}, std::string foreignName = {},
                 std::string file = {});

  // Jet 3: the 20 bytes; Jet 4: the password as 40 bytes, mixed with the day of creation.
  void setPassword(const Bytes& password) { password_ = password; }
  void setPageKey(std::uint32_t key) { pageKey_ = key; }
  // 0 and 1 follow from the format.
  void setVersionByte(std::uint8_t version) { version_ = version; }

  Bytes build();

 private:
  Bytes definition(const std::vector<BuiltColumn>& columns, std::size_t rowCount,
                   std::uint32_t usageMapPage) const;
  Bytes usageMapPage(std::uint32_t owner, std::uint32_t first, std::uint32_t end) const;
  void placeTable(std::uint32_t page, const std::vector<BuiltColumn>& columns,
                  const std::vector<BuiltRow>& rows);
  Bytes header() const;

  const JetFormat& format_;
  std::vector<Bytes> pages_;
  std::vector<std::vector<Cell>> catalog_;
  Bytes password_;
  std::uint32_t pageKey_ = 0;
  std::uint8_t version_;
};

}  // namespace tarrowin::mdb
