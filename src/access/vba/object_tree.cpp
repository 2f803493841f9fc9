// Names and settings of objects out of the tree of streams.
// See object_tree.h.
#include "access/vba/object_tree.h"

#include <utility>

#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"
#include "access/mdb/text.h"
#include "access/vba/wide_text.h"

namespace tarrowin::vba {
namespace {

using Node = StreamStore::Node;

constexpr std::string_view kNames =
    "\x03"
    "DirData";
constexpr std::string_view kSettings = "PropData";

// Kinds of entries in both.
constexpr std::uint8_t kNumber = 2;
constexpr std::uint8_t kName = 4;
constexpr std::uint32_t kHasModule = 1;  // id in PropData

std::string_view folderName(Container container) {
  switch (container) {
    case Container::kForms:
      return "Forms";
    case Container::kReports:
      return "Reports";
    case Container::kMacros:
      return "Scripts";
    case Container::kModules:
      break;
  }
  return "Modules";
}

}  // namespace

ObjectTree ObjectTree::open(const mdb::Database& database) {
  return ObjectTree(StreamStore::open(database));
}

const std::vector<StoredObject>& ObjectTree::objects(Container container) const {
  auto& objects = objects_[static_cast<std::size_t>(container)];
  if (!objects) objects = readObjects(container);
  return *objects;
}

std::vector<StoredObject> ObjectTree::readObjects(Container container) const {
  std::vector<StoredObject> objects;
  const auto parent = store_.child(StreamStore::kRoot, folderName(container));
  if (!parent) return objects;
  if (store_.namedFolders()) {
    for (Node node : store_.children(*parent)) objects.push_back({store_.name(node), node});
    return objects;
  }
  const auto names = store_.child(*parent, kNames);
  if (!names) return objects;  // there never was an object

  const Bytes bytes = store_.read(*names);
  const mdb::ByteView view(bytes, {"list of object names"});
  std::size_t at = 4;
  while (at < view.size()) {
    if (view.u8(at) != kName) mdb::raiseDamaged("the list of object names has an unknown entry");
    const std::size_t size = view.u8(at + 1);
    if (size < 4) mdb::raiseDamaged("the list of object names has an entry that is too short");
    const mdb::ByteView entry = view.sub(at + 2, size);
    at += 2 + size;
    const auto folder = store_.child(*parent, std::to_string(entry.u32(size - 4)));
    if (folder && store_.isFolder(*folder)) {
      objects.push_back({wideText(entry.sub(0, size - 4).bytes()), *folder});
    }
  }
  return objects;
}

const StoredObject* ObjectTree::find(Container container, std::string_view name) const {
  const std::vector<StoredObject>& all = objects(container);
  for (const StoredObject& object : all)
    if (object.name == name) return &object;
  for (const StoredObject& object : all)
    if (mdb::compareIgnoringCase(object.name, name) == 0) return &object;
  return nullptr;
}

std::optional<Bytes> ObjectTree::stream(const StoredObject& object, std::string_view name) const {
  const auto node = store_.child(object.folder, name);
  if (!node) return std::nullopt;
  return store_.read(*node);
}

bool ObjectTree::hasModule(Container container, std::string_view name) const {
  // Access 97 keeps the code under the object's name and no settings.
  if (store_.namedFolders()) {
    const auto code = store_.find({"VBA", "VBAProject", "Modules"});
    const std::string prefix = container == Container::kForms     ? "Form_"
                               : container == Container::kReports ? "Report_"
                                                                  : "";
    return code && store_.child(*code, prefix + std::string(name)).has_value();
  }
  const StoredObject* object = find(container, name);
  if (object == nullptr) return false;
  const std::optional<Bytes> settings = stream(*object, kSettings);
  if (!settings) return false;
  const mdb::ByteView view(*settings, {"object settings"});
  for (std::size_t at = 4; at < view.size() && view.u8(at) == kNumber; at += 9) {
    if (view.u32(at + 1) == kHasModule) return view.u32(at + 5) != 0;
  }
  return false;
}

}  // namespace tarrowin::vba
