// libFuzzer target: any bytes as a file that Access exported; what can be read is completed as the
// program opens it. The first byte chooses what the file is taken for.
// Seeds: real exports, each behind its byte. Run with -timeout=5.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "access/designs/design_completion.h"
#include "access/exports/design_text.h"
#include "access/exports/file_nature.h"
#include "access/exports/module_source.h"
#include "access/exports/object_names.h"
#include "access/exports/query_export.h"
#include "access/exports/table_rows.h"
#include "access/exports/table_text.h"
#include "access/exports/xml_element.h"
#include "access/macro/export_encoding.h"

namespace {

using namespace tarrowin;

std::size_t controlsIn(const StoredBlock& block) {
  std::size_t count = 0;
  for (const StoredBlock& child : block.children) count += 1 + controlsIn(child);
  return count;
}

void readDesign(std::string_view text, DesignKind kind, const CodePage& page) {
  const StoredDesign design = exports::readDesignText(text, kind, page).design;
  if (design.understood.controlsKnown > design.understood.controls ||
      design.understood.propertiesKnown > design.understood.properties)
    std::abort();
  NameTable names{CaseFolding(page)};
  completeDesign(design, "Input", names);
  if (controlsIn(design.root) > exports::kMostItems) std::abort();
}

void readRows(std::string text, const CodePage& page) {
  const FieldList fields = {{"a", 4, 4, {}, {}}, {"b", 10, 50, {}, {}}, {"c", 8, 8, {}, {}}};
  const auto rows = exports::exportedRows(std::move(text), fields, page);
  while (rows->next())
    for (std::size_t i = 0; i < fields.size(); ++i) rows->cell(i);
}

void readAs(std::uint8_t choice, const std::string& text, const CodePage& page) {
  switch (choice % 8) {
    case 0:
      return readDesign(text, DesignKind::kForm, page);
    case 1:
      return readDesign(text, DesignKind::kReport, page);
    case 2:
      exports::readQueryText(text, page);
      return;
    case 3:
      exports::fieldsOfSchema(text, page);
      return;
    case 4:
      exports::fieldsOfCreateTable(text);
      return;
    case 5:
      return readRows(text, page);
    case 6:
      exports::sqlFromFile(text);
      exports::nameOfFile(text);
      exports::decodedXmlName(text, page);
      return;
    default:
      exports::moduleSource(text, true);
      if (const auto code = exports::codeBehind(text)) exports::onlyNamesCodeFile(*code);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::span<const std::uint8_t> bytes(data + 1, size - 1);
  exports::headOf({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  for (const CodePage& page : {CodePage(), CodePage(CodePage::kUtf8)}) {
    try {
      readAs(data[0], exportText(bytes, page), page);
    } catch (const ExportTextError&) {
    }
  }
  return 0;
}
