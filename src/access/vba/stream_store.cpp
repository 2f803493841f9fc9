// Building and searching the tree of streams.
// See stream_store.h.
#include "access/vba/stream_store.h"

#include <utility>

#include "access/mdb/text.h"
#include "access/vba/vessels.h"

namespace tarrowin::vba {
StreamStore StreamStore::open(const mdb::Database& database) {
  switch (database.designStorage()) {
    case mdb::DesignStorage::kCatalog:
      return openCatalogColumns(database);
    case mdb::DesignStorage::kAccessObjects:
      return openAccessObjects(database);
    case mdb::DesignStorage::kAccessStorage:
      return openAccessStorage(database);
    case mdb::DesignStorage::kNone:
      break;
  }
  return StreamStore();
}

StreamStore::StreamStore(std::unique_ptr<StreamSource> source) : source_(std::move(source)) {
  nodes_.emplace_back();
}

StreamStore::Node StreamStore::addFolder(Node folder, std::string name) {
  return add(folder, {std::move(name), true, 0, {}});
}

StreamStore::Node StreamStore::addStream(Node folder, std::string name, std::uint32_t stream) {
  return add(folder, {std::move(name), false, stream, {}});
}

StreamStore::Node StreamStore::add(Node folder, Entry entry) {
  const Node node = nodes_.size();
  nodes_.push_back(std::move(entry));
  nodes_[folder].children.push_back(node);
  return node;
}

std::optional<StreamStore::Node> StreamStore::child(Node folder, std::string_view name) const {
  const std::vector<Node>& children = nodes_[folder].children;
  for (Node node : children)
    if (nodes_[node].name == name) return node;
  for (Node node : children)
    if (mdb::compareIgnoringCase(nodes_[node].name, name) == 0) return node;
  return std::nullopt;
}

std::optional<StreamStore::Node> StreamStore::find(
    std::initializer_list<std::string_view> path) const {
  std::optional<Node> node = kRoot;
  for (std::string_view name : path) {
    node = child(*node, name);
    if (!node) break;
  }
  return node;
}

Bytes StreamStore::read(Node node) const {
  return nodes_[node].folder || !source_ ? Bytes{} : source_->read(nodes_[node].stream);
}

}  // namespace tarrowin::vba
