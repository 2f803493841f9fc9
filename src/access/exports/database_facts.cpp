// The files of each kind of fact, by the tools that write them.
#include "access/exports/database_facts.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

#include "access/exports/xml_element.h"
#include "access/snapshot/iso_date.h"
#include "access/snapshot/json_tree.h"
#include "shared/vb_text.h"

namespace tarrowin::exports {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAccess97 = "07.53", kAccess2000 = "08.50", kLaterAccess = "09.50";
constexpr std::int32_t kDaoBoolean = 1, kDaoDate = 8;

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (line.ends_with('\r') || line.ends_with(' ')) line.remove_suffix(1);
    while (line.starts_with(' ')) line.remove_prefix(1);
    lines.emplace_back(line);
  }
  return lines;
}

std::int32_t numberIn(std::string_view digits) {
  std::int32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

constexpr const char* kDatabaseEnding = ".mdb";

bool isDatabaseFile(const fs::path& path) {
  const std::string ending = UCase(path.extension().string());
  return ending == ".MDB" || ending == ".MDE" || ending == ".ACCDB" || ending == ".ACCDE";
}

std::optional<fs::path> onlyDatabaseIn(const fs::path& folder) {
  std::optional<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (!isDatabaseFile(entry->path())) continue;
    if (found) return std::nullopt;
    found = entry->path();
  }
  return found;
}

class FactReader {
 public:
  FactReader(const ExportSource& source, const ExportCatalog& catalog, DatabaseModel& model)
      : source_(source), catalog_(catalog), model_(model) {}

  void read() {
    const SystemFiles& files = catalog_.system;
    model_.name = source_.codePage().fromUtf8(databasePathOf(catalog_.path));
    inJson(files.databaseProperties, [this](JsonValue root) { addProperties(root); });
    inRows(files.propertyTable, [this](const XmlElement& row) { addPropertyRow(row); });
    inJson(files.project, [this](JsonValue root) { readProject(root); });
    inJson(files.references, [this](JsonValue root) { addReferences(root); });
    inText(files.referenceList, [this](std::string_view text) { addReferenceList(text); });
    inRows(files.referenceTable, [this](const XmlElement& row) { addReferenceRow(row); });
    for (const std::string& path : catalog_.relationPaths) readRelation(path);
    inRows(files.relationTable, [this](const XmlElement& row) { addRelationRow(row); });
    completeVersions();
  }

 private:
  std::string text(std::string_view utf8) const { return source_.codePage().fromUtf8(utf8); }

  // Each of these does nothing without the file, or when it cannot be read.
  void inText(const std::string& path, const std::function<void(std::string_view)>& action) {
    if (path.empty()) return;
    try {
      source_.reading(path, [&] { action(source_.text(path)); });
    } catch (const VbError&) {
      // The objects can be used without it.
    }
  }
  void inJson(const std::string& path, const std::function<void(JsonValue)>& action) {
    if (path.empty()) return;
    try {
      const JsonTree tree = source_.json(path);
      if (tree.root().kind() == JsonKind::kObject) action(tree.root());
    } catch (const VbError&) {
      // Likewise.
    }
  }
  void inRows(const std::string& path, const std::function<void(const XmlElement&)>& action) {
    inText(path, [&](std::string_view content) {
      const XmlElement root = parseXml(content, source_.codePage());
      if (const XmlElement* data = root.child("dataroot"))
        for (const XmlElement& row : data->children) action(row);
    });
  }

  static std::optional<JsonValue> memberOf(JsonValue object, std::string_view name) {
    return object.kind() == JsonKind::kObject ? object.member(name) : std::nullopt;
  }
  std::string textIn(JsonValue object, std::string_view name) const {
    const auto member = memberOf(object, name);
    return member && member->kind() == JsonKind::kText ? text(member->text()) : std::string();
  }

  void setProperty(std::string_view name, Value value) {
    model_.properties.set(model_.names, model_.names.intern(name), std::move(value));
  }

  void addProperties(JsonValue root) {
    const auto items = memberOf(root, "Items");
    if (!items || items->kind() != JsonKind::kObject) return;
    for (const JsonValue item : *items) {
      const auto value = memberOf(item, "Value");
      const auto type = memberOf(item, "Type");
      if (!value) continue;
      const std::string name = text(item.key());
      if (name == "Name")
        setName(*value);
      else
        setProperty(name, valueOf(*value, type && type->kind() == JsonKind::kInteger
                                              ? static_cast<std::int32_t>(type->integer())
                                              : 0));
    }
  }

  Value valueOf(JsonValue value, std::int32_t type) const {
    switch (value.kind()) {
      case JsonKind::kBoolean:
        return Value(value.boolean());
      case JsonKind::kInteger:
        if (type == kDaoBoolean) return Value(value.integer() != 0);
        if (value.integer() == static_cast<std::int32_t>(value.integer()))
          return Value(static_cast<std::int32_t>(value.integer()));
        return Value(static_cast<double>(value.integer()));
      case JsonKind::kDouble:
        return Value(value.number());
      case JsonKind::kText:
        if (type == kDaoDate)
          if (const auto date = dateFromIso(value.text())) return Value(*date);
        return Value(text(value.text()));
      default:
        return Value(Value::Null{});
    }
  }

  // A full path on the exporting machine, or one relative to the folder above the export.
  void setName(JsonValue value) {
    constexpr std::string_view kRelative = "rel:";
    if (value.kind() != JsonKind::kText || value.text().empty()) return;
    std::string_view name = value.text();
    if (!name.starts_with(kRelative)) {
      model_.name = text(name);
      return;
    }
    name.remove_prefix(kRelative.size());
    std::string relative(name);
    std::ranges::replace(relative, '\\', '/');
    const fs::path above = fs::path(catalog_.path).parent_path();
    model_.name = text((above / relative).lexically_normal().string());
  }

  void addPropertyRow(const XmlElement& row) {
    const auto cell = [&row](std::string_view name) {
      const XmlElement* found = row.child(name);
      return found ? std::string_view(found->text) : std::string_view();
    };
    if (cell("PropCollection") != "StartupProperties" || cell("PropName").empty()) return;
    const bool isBoolean = numberIn(cell("PropType")) == kDaoBoolean;
    setProperty(cell("PropName"),
                isBoolean ? Value(cell("PropValueBoolean") != "0") : Value(cell("PropValueText")));
  }

  void readProject(JsonValue root) {
    const auto items = memberOf(root, "Items");
    const auto format = items ? memberOf(*items, "FileFormat") : std::nullopt;
    if (format && format->kind() == JsonKind::kInteger)
      fileFormat_ = static_cast<std::int32_t>(format->integer());
  }

  void addReference(std::initializer_list<std::pair<std::string_view, Value>> properties) {
    PropertyBag& added = model_.references.emplace_back();
    for (const auto& [name, value] : properties)
      if (!value.isEmpty()) added.set(model_.names, model_.names.intern(name), value);
  }

  void addReferences(JsonValue root) {
    const auto items = memberOf(root, "Items");
    if (!items || items->kind() != JsonKind::kObject) return;
    for (const JsonValue item : *items) {
      const std::string version = textIn(item, "Version"), guid = textIn(item, "GUID"),
                        path = textIn(item, "FullPath");
      const std::size_t dot = std::min(version.find('.'), version.size());
      const auto part = [&](std::string_view digits) {
        return digits.empty() ? Value() : Value(numberIn(digits));
      };
      const std::string_view whole = version;
      addReference({{"Name", Value(text(item.key()))},
                    {"Guid", guid.empty() ? Value() : Value(guid)},
                    {"Major", part(whole.substr(0, dot))},
                    {"Minor", part(whole.substr(std::min(dot + 1, whole.size())))},
                    {"FullPath", path.empty() ? Value() : Value(path)}});
    }
  }

  // "{id},4,1" a line.
  void addReferenceList(std::string_view list) {
    for (const std::string& line : linesOf(list)) {
      const std::size_t first = line.find(','), second = line.find(',', first + 1);
      if (first == std::string::npos || second == std::string::npos) continue;
      const std::string_view whole = line;
      addReference({{"Guid", Value(whole.substr(0, first))},
                    {"Major", Value(numberIn(whole.substr(first + 1, second - first - 1)))},
                    {"Minor", Value(numberIn(whole.substr(second + 1)))}});
    }
  }

  void addReferenceRow(const XmlElement& row) {
    const auto cell = [&row](std::string_view name) {
      const XmlElement* found = row.child(name);
      return found ? found->text : std::string();
    };
    addReference({{"Name", Value(cell("Ref_Name"))},
                  {"Guid", Value(cell("Ref_GUID"))},
                  {"Major", Value(numberIn(cell("Ref_Major")))},
                  {"Minor", Value(numberIn(cell("Ref_Minor")))}});
  }

  void addRelation(RelationModel relation) {
    // Those of the system's own tables.
    if (relation.name.empty() || relation.name.starts_with("MSys")) return;
    model_.relations.add(std::move(relation));
  }

  void readRelation(const std::string& path) {
    if (path.ends_with(".json")) {
      inJson(path, [this](JsonValue root) {
        if (const auto items = memberOf(root, "Items")) addRelation(relationOf(*items));
      });
    } else {
      inText(path, [this](std::string_view content) { addRelation(relationOf(linesOf(content))); });
    }
  }

  RelationModel relationOf(JsonValue items) const {
    RelationModel relation{
        textIn(items, "Name"), textIn(items, "Table"), textIn(items, "ForeignTable"), {}};
    const auto fields = memberOf(items, "Fields");
    if (fields && fields->kind() == JsonKind::kArray)
      for (const JsonValue field : *fields)
        relation.fields.push_back({textIn(field, "Name"), textIn(field, "ForeignName")});
    return relation;
  }

  // Attributes, name, table and foreign table, then four lines a field.
  static RelationModel relationOf(const std::vector<std::string>& lines) {
    constexpr std::size_t kHead = 4, kField = 4;
    if (lines.size() < kHead) return {};
    RelationModel relation{lines[1], lines[2], lines[3], {}};
    for (std::size_t i = kHead; i + kField <= lines.size(); i += kField) {
      if (lines[i] != "Field = Begin" || lines[i + 3] != "End") break;
      relation.fields.push_back({lines[i + 1], lines[i + 2]});
    }
    return relation;
  }

  // One row a field.
  void addRelationRow(const XmlElement& row) {
    const auto cell = [&row](std::string_view name) {
      const XmlElement* found = row.child(name);
      return found ? found->text : std::string();
    };
    RelationModel relation{cell("RelName"), cell("RelTable"), cell("RelForeignTable"), {}};
    if (const RelationModel* known = model_.relations.find(relation.name, model_.folding))
      relation.fields = known->fields;
    relation.fields.push_back({cell("RelFieldName"), cell("RelForeignFieldName")});
    if (!relation.name.empty() && !relation.name.starts_with("MSys"))
      model_.relations.put(std::move(relation), model_.folding);
  }

  const std::string* textProperty(std::string_view name) const {
    const NameId key = model_.names.find(name);
    const Recorded<Value>* found = key == kNoName ? nullptr : model_.properties.valueOf(key);
    const Value* value = found ? found->ifRead() : nullptr;
    return value ? value->text() : nullptr;
  }

  void completeVersions() {
    if (!textProperty("AccessVersion")) setProperty("AccessVersion", Value(accessVersion()));
    if (const std::string* version = textProperty("Version")) model_.version = *version;
    if (model_.version.empty())
      model_.version = *textProperty("AccessVersion") == kAccess97 ? "3.0" : "4.0";
  }

  std::string_view accessVersion() const {
    constexpr std::int32_t kFormat97 = 8, kFormat2000 = 9;
    if (fileFormat_ == kFormat97) return kAccess97;
    if (fileFormat_ == kFormat2000) return kAccess2000;
    if (fileFormat_ > kFormat2000) return kLaterAccess;
    constexpr std::int32_t kDesign97 = 17, kDesign2000 = 19;
    std::int32_t latest = 0;
    for (const auto* list : {&catalog_.forms, &catalog_.reports})
      for (const ExportedFile& file : *list) latest = std::max(latest, file.head.number);
    if (latest == kDesign97) return kAccess97;
    return latest == kDesign2000 ? kAccess2000 : kLaterAccess;
  }

  const ExportSource& source_;
  const ExportCatalog& catalog_;
  DatabaseModel& model_;
  std::int32_t fileFormat_ = 0;
};

}  // namespace

void readDatabaseFacts(const ExportSource& source, const ExportCatalog& catalog,
                       DatabaseModel& model) {
  FactReader(source, catalog, model).read();
}

std::string databasePathOf(const std::string& exportPath) {
  fs::path path(exportPath);
  std::error_code error;
  if (!fs::is_directory(path, error)) return path.replace_extension(kDatabaseEnding).string();
  if (path.filename() == "source" || path.filename() == "src") {
    const fs::path around = path.parent_path();
    return onlyDatabaseIn(around)
        .value_or(around / around.filename().concat(kDatabaseEnding))
        .string();
  }
  if (path.extension() == ".src") path.replace_extension();
  if (!isDatabaseFile(path)) path += kDatabaseEnding;
  return path.string();
}

}  // namespace tarrowin::exports
