// JSON with "Connect" among its items, or four lines: name, connect, source table, key fields.
#include "access/exports/linked_table.h"

#include <filesystem>

#include "access/exports/xml_element.h"
#include "access/snapshot/json_tree.h"
#include "shared/vb_error.h"

namespace tarrowin::exports {

namespace {

// An Access database of unknown path.
constexpr std::string_view kUnknownLink = ";DATABASE=";

std::string connectInJson(const ExportSource& source, const std::string& path) {
  return source.reading(path, [&] {
    const JsonTree tree = source.json(path);
    if (tree.root().kind() != JsonKind::kObject) return std::string();
    const auto items = tree.root().member("Items");
    if (!items || items->kind() != JsonKind::kObject) return std::string();
    const auto connect = items->member("Connect");
    if (!connect || connect->kind() != JsonKind::kText) return std::string();
    return source.codePage().fromUtf8(connect->text());
  });
}

std::string secondLine(std::string_view text) {
  std::string_view line = text.substr(std::min(text.find('\n'), text.size()));
  if (!line.empty()) line.remove_prefix(1);
  line = line.substr(0, line.find('\n'));
  while (line.ends_with('\r') || line.ends_with(' ')) line.remove_suffix(1);
  return std::string(line);
}

}  // namespace

std::string connectOfLink(const ExportSource& source, const std::string& path) {
  try {
    return path.ends_with(".json") ? connectInJson(source, path) : secondLine(source.text(path));
  } catch (const VbError&) {
    return std::string(kUnknownLink);
  }
}

std::vector<TableModel> linkedTables(const ExportSource& source, const ExportCatalog& catalog) {
  std::vector<TableModel> tables;
  const std::string& path = catalog.system.tableTable;
  if (path.empty()) return tables;
  try {
    source.reading(path, [&] {
      const XmlElement root = parseXml(source.text(path), source.codePage());
      const XmlElement* const data = root.child("dataroot");
      if (data == nullptr) return;
      for (const XmlElement& row : data->children) {
        const XmlElement* const name = row.child("Tbl_Name");
        const XmlElement* const connect = row.child("Tbl_Connect");
        if (name == nullptr || connect == nullptr || connect->text.empty()) continue;
        tables.push_back({name->text, connect->text, {}, {}});
      }
    });
  } catch (const VbError&) {
    // The tables of which there are files are known without it.
  }
  return tables;
}

std::string connectBesideQuery(const ExportSource& source, const std::string& sqlPath) {
  const std::string path = std::filesystem::path(sqlPath).replace_extension(".json").string();
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return {};
  return connectInJson(source, path);
}

}  // namespace tarrowin::exports
