// Prints tables.
#include "forms/printer_rows.h"

#include "core/statement.h"

namespace tarrowin {

namespace {
// Longer than most lines of a form file.
constexpr std::size_t kUsualLine = 80;
}  // namespace

void printRow(const PrintedControl& control, const PrinterRow& row, std::string_view indent) {
  if (row.condition && !row.condition(control)) return;
  if (row.block) return row.block(control);
  std::string line;
  line.reserve(kUsualLine);
  line += indent;
  line += row.literal;
  if (row.rule) row.rule(control, row.property, line);
  control.main.files.Print(kOutputFile, line);
}

void printRows(const PrintedControl& control, std::span<const PrinterRow> rows,
               std::string_view indent) {
  const std::string indentBlanks(indent);  // a block may change what the view looks at
  for (const PrinterRow& row : rows) {
    ignoringErrors([&] { printRow(control, row, indentBlanks); });
  }
}

void printRows(const PrintedControl& control, std::span<const PrinterRow> rows) {
  printRows(control, rows, control.state().strIndent);
}

}  // namespace tarrowin
