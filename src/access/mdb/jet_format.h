// Where things stand in the pages of the two file formats: Jet 3 (Access 97) and Jet 4 (Access 2000
// and later). All numbers are bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tarrowin::mdb {

// First byte of a page.
inline constexpr std::uint8_t kDataPage = 1;
inline constexpr std::uint8_t kDefinitionPage = 2;
inline constexpr std::uint8_t kUsageMapPage = 5;

// In data pages (and at the same offset the next page in definition pages): the page number of the
// table definition that owns the page.
inline constexpr std::size_t kPageOwner = 4;

// Page of the definition of the table MSysObjects.
inline constexpr std::uint32_t kCatalogDefinition = 2;

struct JetFormat {
  bool jet3;
  std::size_t pageSize;
  std::size_t maskedHeader;  // length of the masked part of page 0

  std::size_t dataRowCount;     // data page: u16; the row offsets follow
  std::size_t columnCountSize;  // row: width of its leading column count

  // Table definition.
  std::size_t rowCount;        // u32
  std::size_t columnCount;     // u16
  std::size_t indexCount;      // u32
  std::size_t usageMap;        // u8 row, u24 page
  std::size_t columnsStart;    // less indexes
  std::size_t indexEntry;      // size of an index entry before the columns
  std::size_t columnEntry;     // size of a column entry
  std::size_t nameLengthSize;  // width of the length before a column's name

  // Column entry; its type is the first byte.
  std::size_t columnNumber;   // u16
  std::size_t variableIndex;  // u16
  std::size_t displayIndex;   // u16, DAO's OrdinalPosition
  std::size_t scale;          // u8, Decimal only
  std::size_t columnFlags;    // u8
  std::size_t fixedOffset;    // u16
  std::size_t columnLength;   // u16
};

inline constexpr JetFormat kJet3{
    .jet3 = true,
    .pageSize = 2048,
    .maskedHeader = 126,
    .dataRowCount = 8,
    .columnCountSize = 1,
    .rowCount = 12,
    .columnCount = 25,
    .indexCount = 31,
    .usageMap = 35,
    .columnsStart = 43,
    .indexEntry = 8,
    .columnEntry = 18,
    .nameLengthSize = 1,
    .columnNumber = 1,
    .variableIndex = 3,
    .displayIndex = 5,
    .scale = 10,
    .columnFlags = 13,
    .fixedOffset = 14,
    .columnLength = 16,
};

inline constexpr JetFormat kJet4{
    .jet3 = false,
    .pageSize = 4096,
    .maskedHeader = 128,
    .dataRowCount = 12,
    .columnCountSize = 2,
    .rowCount = 16,
    .columnCount = 45,
    .indexCount = 51,
    .usageMap = 55,
    .columnsStart = 63,
    .indexEntry = 12,
    .columnEntry = 25,
    .nameLengthSize = 2,
    .columnNumber = 5,
    .variableIndex = 7,
    .displayIndex = 9,
    .scale = 12,
    .columnFlags = 15,
    .fixedOffset = 21,
    .columnLength = 23,
};

}  // namespace tarrowin::mdb
