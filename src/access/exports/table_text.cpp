// Types of fields in both forms.
#include "access/exports/table_text.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "access/exports/xml_element.h"
#include "access/macro/export_lines.h"
#include "shared/vb_text.h"

namespace tarrowin::exports {

namespace {

using TypeName = std::pair<std::string_view, std::int32_t>;
constexpr std::int32_t kBinary = 9, kText = 10, kUnlimited = 0;

constexpr TypeName kSchemaTypes[] = {
    {"yesno", 1},      {"byte", 2},         {"integer", 3},        {"longinteger", 4},
    {"autonumber", 4}, {"currency", 5},     {"single", 6},         {"double", 7},
    {"datetime", 8},   {"binary", kBinary}, {"text", kText},       {"oleobject", 11},
    {"memo", 12},      {"hyperlink", 12},   {"replicationid", 15}, {"decimal", 20},
};

constexpr TypeName kStatementTypes[] = {
    {"BIT", 1},         {"BYTE", 2},     {"SHORT", 3},       {"LONG", 4},      {"AUTOINCREMENT", 4},
    {"CURRENCY", 5},    {"SINGLE", 6},   {"DOUBLE", 7},      {"DATETIME", 8},  {"BINARY", kBinary},
    {"VARCHAR", kText}, {"TEXT", kText}, {"LONGBINARY", 11}, {"LONGTEXT", 12}, {"MEMO", 12},
    {"GUID", 15},       {"DECIMAL", 20},
};

template <std::size_t kCount>
const TypeName* typeNamed(const TypeName (&types)[kCount], std::string_view name) {
  const auto found = std::ranges::find(types, name, &TypeName::first);
  return found == std::end(types) ? nullptr : found;
}

// DAO's Size: only texts and plain binaries have one of their own.
std::int32_t sizeOf(std::int32_t type, std::int32_t written) {
  const bool own = type == kText || type == kBinary;
  return own && written > kUnlimited ? written : usualSizeOfType(type);
}

std::int32_t numberIn(std::string_view digits) {
  std::int32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

const XmlElement* schemaIn(const XmlElement& element) {
  return element.localName() == "schema" ? &element : element.child("schema");
}

// The size that a restriction somewhere inside sets.
std::int32_t lengthIn(const XmlElement& element) {
  if (element.localName() == "maxLength" || element.localName() == "length")
    return numberIn(element.attribute("value"));
  for (const XmlElement& child : element.children)
    if (const std::int32_t length = lengthIn(child)) return length;
  return 0;
}

FieldModel fieldOf(const XmlElement& element, const CodePage& codePage) {
  FieldModel field;
  field.name = decodedXmlName(element.attribute("name"), codePage);
  if (const TypeName* type = typeNamed(kSchemaTypes, element.attribute("od:jetType")))
    field.type = type->second;
  field.size = sizeOf(field.type, lengthIn(element));
  return field;
}

class StatementReader {
 public:
  explicit StatementReader(std::string_view text) : all_(text), rest_(text) {}

  FieldList read() {
    if (word() != "CREATE" || word() != "TABLE") fail("\"CREATE TABLE\" is expected");
    name();
    if (!take('(')) fail("\"(\" is expected");
    FieldList fields;
    do {
      skipBlanks();
      if (rest_.starts_with('[') || !isConstraint()) fields.push_back(field());
      skipItem();
    } while (take(','));
    if (!take(')')) fail("\")\" is expected");
    return fields;
  }

 private:
  [[noreturn]] void fail(const std::string& problem) const {
    const std::string_view done = all_.substr(0, all_.size() - rest_.size());
    throw ExportTextError(static_cast<std::size_t>(std::ranges::count(done, '\n')) + 1, problem);
  }
  void skipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size()));
  }
  bool take(char character) {
    skipBlanks();
    if (!rest_.starts_with(character)) return false;
    rest_.remove_prefix(1);
    return true;
  }
  // In capitals; empty where no word stands.
  std::string word() {
    skipBlanks();
    const std::size_t end = std::min(rest_.find_first_of(" \t\r\n(),[;"), rest_.size());
    std::string found = UCase(rest_.substr(0, end));
    rest_.remove_prefix(end);
    return found;
  }
  std::string name() {
    if (!take('[')) {
      const std::size_t end = std::min(rest_.find_first_of(" \t\r\n(),"), rest_.size());
      std::string bare(rest_.substr(0, end));
      if (bare.empty()) fail("a name is missing");
      rest_.remove_prefix(end);
      return bare;
    }
    const std::size_t end = rest_.find(']');
    if (end == std::string_view::npos) fail("a name without \"]\"");
    std::string bracketed(rest_.substr(0, end));
    rest_.remove_prefix(end + 1);
    return bracketed;
  }

  bool isConstraint() {
    const std::string_view before = rest_;
    const std::string first = word();
    rest_ = before;
    return first == "CONSTRAINT" || first == "PRIMARY" || first == "UNIQUE" || first == "FOREIGN";
  }

  FieldModel field() {
    FieldModel read;
    read.name = name();
    const std::string typeName = word();
    const TypeName* const type = typeNamed(kStatementTypes, typeName);
    if (type == nullptr) fail("the type of the field \"" + read.name + "\" is not known");
    read.type = type->second;
    std::int32_t length = 0;
    if (take('(')) {
      skipBlanks();
      length = numberIn(rest_);
      skipItem();
      while (take(',')) skipItem();
      if (!take(')')) fail("\")\" is expected");
    }
    read.size = sizeOf(read.type, length);
    return read;
  }

  // To the comma or parenthesis that ends an item of a list.
  void skipItem() {
    std::size_t depth = 0;
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      const char character = rest_.front();
      if (character == '[') {
        rest_.remove_prefix(std::min(rest_.find(']'), rest_.size() - 1));
      } else if (character == '(') {
        ++depth;
      } else if (depth == 0 && (character == ',' || character == ')')) {
        return;
      } else if (character == ')') {
        --depth;
      }
    }
  }

  std::string_view all_, rest_;
};

}  // namespace

FieldList fieldsOfSchema(std::string_view text, const CodePage& codePage) {
  const XmlElement root = parseXml(text, codePage);
  const XmlElement* const schema = schemaIn(root);
  if (schema == nullptr) throw ExportTextError(1, "it holds no schema");
  // The first element lists the tables, here the one.
  const XmlElement* table = nullptr;
  std::size_t elements = 0;
  for (const XmlElement& child : schema->children)
    if (child.localName() == "element" && ++elements == 2) table = &child;
  const XmlElement* const type = table ? table->child("complexType") : nullptr;
  const XmlElement* const sequence = type ? type->child("sequence") : nullptr;
  if (sequence == nullptr) throw ExportTextError(1, "its schema describes no table");
  FieldList fields;
  for (const XmlElement& element : sequence->children)
    if (element.localName() == "element") fields.push_back(fieldOf(element, codePage));
  return fields;
}

FieldList fieldsOfCreateTable(std::string_view text) { return StatementReader(text).read(); }

}  // namespace tarrowin::exports
