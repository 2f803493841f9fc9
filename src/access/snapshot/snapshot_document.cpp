// Parsing and printing recordings.
#include "access/snapshot/snapshot_document.h"

#include <unordered_map>

#include <nlohmann/json.hpp>

#include "access/snapshot/json_tree.h"

namespace tarrowin {

namespace {

using Document = nlohmann::ordered_json;

Document toDocument(JsonValue value);

// Members go straight to the end: the document's own insertion walks over all members before.
Document toObject(JsonValue value) {
  Document result = Document::object();
  auto& members = result.get_ref<Document::object_t&>();
  std::unordered_map<std::string_view, std::size_t> places;
  for (const JsonValue member : value) {
    const auto [place, isNew] = places.emplace(member.key(), members.size());
    if (isNew)
      members.push_back({std::string(member.key()), toDocument(member)});
    else
      (members.begin() + static_cast<std::ptrdiff_t>(place->second))->second = toDocument(member);
  }
  return result;
}

Document toDocument(JsonValue value) {
  switch (value.kind()) {
    case JsonKind::kNull:
      return nullptr;
    case JsonKind::kBoolean:
      return value.boolean();
    case JsonKind::kInteger:
      return value.integer();
    case JsonKind::kDouble:
      return value.number();
    case JsonKind::kText:
      return std::string(value.text());
    case JsonKind::kArray: {
      Document result = Document::array();
      for (const JsonValue element : value) result.push_back(toDocument(element));
      return result;
    }
    default:
      return toObject(value);
  }
}

}  // namespace

nlohmann::ordered_json parseSnapshotDocument(std::string_view utf8) {
  const JsonTree tree = JsonTree::parse(utf8);
  return toDocument(tree.root());
}

std::string snapshotText(const nlohmann::ordered_json& document) {
  return document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

void writeSnapshotFile(const std::string& path, const nlohmann::ordered_json& document,
                       ReplaceOperations& operations) {
  replaceFile(path, snapshotText(document), operations);
}

void writeSnapshotFile(const std::string& path, const nlohmann::ordered_json& document) {
  ReplaceOperations operations;
  writeSnapshotFile(path, document, operations);
}

}  // namespace tarrowin
