// The forms, reports, macros and modules of a database by name, and the streams of each.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "access/mdb/mdb_database.h"
#include "access/vba/stream_store.h"

namespace tarrowin::vba {

enum class Container { kForms, kReports, kMacros, kModules };

// One object of a container.
struct StoredObject {
  std::string name;  // UTF-8
  StreamStore::Node folder = StreamStore::kRoot;
};

class ObjectTree {
 public:
  // The database must live and stay in its place as long as the tree. Throws mdb::Error (kDamaged)
  // when the vessel as a whole cannot be read.
  static ObjectTree open(const mdb::Database& database);
  explicit ObjectTree(StreamStore store) : store_(std::move(store)) {}

  const StreamStore& store() const { return store_; }

  // The objects of a container in stored order. Objects deleted but not yet cleared away
  // ("~TMP...") are among them: go by the catalog of the database. Throws mdb::Error (kDamaged).
  const std::vector<StoredObject>& objects(Container container) const;
  // An exact match first, then one without regard to case; or nullptr. Throws mdb::Error
  // (kDamaged).
  const StoredObject* find(Container container, std::string_view name) const;

  // The bytes of a stream of the object: "Blob" (the design), "TypeInfo", "BlobDelta". Nothing when
  // the object has no such stream. Throws mdb::Error (kDamaged).
  std::optional<Bytes> stream(const StoredObject& object, std::string_view name) const;

  // Whether the form or report has code behind it. Throws mdb::Error (kDamaged).
  bool hasModule(Container container, std::string_view name) const;

 private:
  std::vector<StoredObject> readObjects(Container container) const;

  StreamStore store_;
  mutable std::array<std::optional<std::vector<StoredObject>>, 4> objects_;  // by container
};

}  // namespace tarrowin::vba
