// The tree of folders and streams in which Access keeps designs and code, whatever holds it: rows
// of one table each (2002-2003), one compound file cut into rows (2000), or columns (97).
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "access/mdb/mdb_database.h"
#include "shared/value.h"

namespace tarrowin::vba {

// Gives the bytes of streams; what the numbers mean is the vessel's own affair.
class StreamSource {
 public:
  virtual ~StreamSource() = default;
  // Throws mdb::Error (kDamaged).
  virtual Bytes read(std::uint32_t stream) = 0;
};

// Building reads names only; the bytes of a stream are read when asked for, each time anew. Not for
// use by two threads at once. Names are UTF-8.
//
// Example: store.read(*store.find({"VBA", "VBAProject", "VBA", "dir"}))
class StreamStore {
 public:
  using Node = std::size_t;
  static constexpr Node kRoot = 0;

  // The store of the database, which must live and stay in its place as long as the store.
  // A database without Access objects gives an empty root. Throws mdb::Error (kDamaged) when the
  // vessel as a whole cannot be read.
  //
  // Access 97 has no such tree; its columns are shown as if it had one:
  //   Forms/<name>/Blob, TypeInfo; Reports/ the same; Scripts/<name>/Blob; Modules/<name>/
  //   VBA/VBAProject/VBA/dir
  //   VBA/VBAProject/Modules/<name>: the code of a module, "Form_<name>" or "Report_<name>"
  static StreamStore open(const mdb::Database& database);

  // An empty root. Without a source every stream is empty.
  explicit StreamStore(std::unique_ptr<StreamSource> source = nullptr);

  // Whether the folders of objects bear the names of the objects, as in Access 97; else a list
  // leads from names to numbered folders.
  bool namedFolders() const { return namedFolders_; }
  void setNamedFolders() { namedFolders_ = true; }

  // Building, by the vessels: every node is added after its folder.
  Node addFolder(Node folder, std::string name);
  Node addStream(Node folder, std::string name, std::uint32_t stream);

  const std::string& name(Node node) const { return nodes_[node].name; }
  bool isFolder(Node node) const { return nodes_[node].folder; }
  // In the order of storage.
  const std::vector<Node>& children(Node folder) const { return nodes_[folder].children; }

  // The child of that name, an exact match first, then one without regard to case.
  std::optional<Node> child(Node folder, std::string_view name) const;
  // Down from the root.
  std::optional<Node> find(std::initializer_list<std::string_view> path) const;

  // The bytes of a stream; none of a folder. Throws mdb::Error (kDamaged).
  Bytes read(Node node) const;

 private:
  struct Entry {
    std::string name;
    bool folder = true;
    std::uint32_t stream = 0;
    std::vector<Node> children;
  };

  Node add(Node folder, Entry entry);

  std::unique_ptr<StreamSource> source_;
  std::vector<Entry> nodes_;
  bool namedFolders_ = false;
};

}  // namespace tarrowin::vba
