// The printers of controls as tables: one row a line of the form file. A table is laid out so that
// it can be proof-read line by line; its literals are the file format, to the blank.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/main_object.h"

namespace tarrowin {

// The control that a table is printed for.
struct PrintedControl {
  MainObject& main;
  const LateBound& ctl;
  ConversionState& state() const { return main.state; }
};

// Appends a row's value to its line. What property means is the rule's: the property to read, or a
// fixed text.
using ValueRule = void (*)(const PrintedControl& control, std::string_view property,
                           std::string& line);
// Whether a row is printed at all. A condition that cannot be read counts as false.
using RowCondition = bool (*)(const PrintedControl& control);
// Lines of their own in place of a row.
using RowBlock = void (*)(const PrintedControl& control);

struct PrinterRow {
  // A line: the literal, then what the rule makes of the property.
  constexpr PrinterRow(std::string_view theLiteral, ValueRule theRule = nullptr,
                       std::string_view theProperty = {}, RowCondition theCondition = nullptr)
      : literal(theLiteral), rule(theRule), property(theProperty), condition(theCondition) {}
  // A block, such as the font.
  constexpr explicit PrinterRow(RowBlock theBlock) : block(theBlock) {}

  std::string_view literal;
  ValueRule rule = nullptr;  // none: the literal is the whole line
  std::string_view property;
  RowCondition condition = nullptr;  // none: always
  RowBlock block = nullptr;
};

// Prints one row as a statement whose failure the caller handles.
void printRow(const PrintedControl& control, const PrinterRow& row, std::string_view indent);

// Prints the rows in their order. Each is one statement: when anything that it reads cannot be
// read, that row alone is missing.
void printRows(const PrintedControl& control, std::span<const PrinterRow> rows,
               std::string_view indent);
// With strIndent in front of every line.
void printRows(const PrintedControl& control, std::span<const PrinterRow> rows);

}  // namespace tarrowin
