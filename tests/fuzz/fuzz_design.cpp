// libFuzzer target: any bytes as the design of a form or report; what can be read is completed to
// what Access would report. Before the run it writes seeds into the folder that the environment
// names: the tests' own designs and those of the real databases.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

#include "access/design_blob/design_blob.h"
#include "access/design_blob/ole_data.h"
#include "access/designs/design_completion.h"
#include "access/mdb/mdb_database.h"
#include "access/mdb/mdb_error.h"
#include "access/vba/object_tree.h"
#include "design_blob/example_design.h"
#include "mdb/sample_files.h"

namespace {

using namespace tarrowin;

bool isReadable(std::span<const std::uint8_t> bytes, const CodePage& page) {
  try {
    readDesignBlob(bytes, page, page);
    return true;
  } catch (const mdb::Error&) {
    return false;
  }
}

void lookIntoObjects(const StoredBlock& block) {
  for (const StoredProperty& property : block.properties)
    if (const Value* const value = std::get_if<Value>(&property.value))
      if (property.keyword == "OleData" && value->bytes() != nullptr) oleTypeOf(*value->bytes());
  for (const StoredBlock& child : block.children) lookIntoObjects(child);
}

void writeSeed(const std::filesystem::path& folder, const std::string& name, const Bytes& bytes) {
  std::ofstream(folder / name, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

void writeSampleSeeds(const std::filesystem::path& folder) {
  mdb::Options options;
  options.allowNewerFormat = true;
  for (const auto& path : mdb::sampleDatabases(true)) {
    const mdb::Database database = mdb::Database::open(path.string(), options);
    const vba::ObjectTree tree = vba::ObjectTree::open(database);
    std::size_t number = 0;
    for (const auto container : {vba::Container::kForms, vba::Container::kReports})
      for (const vba::StoredObject& object : tree.objects(container))
        if (const auto blob = tree.stream(object, "Blob"))
          writeSeed(folder, path.stem().string() + std::to_string(number++), *blob);
  }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  const char* const folder = std::getenv("TARROWIN_SEED_FOLDER");
  if (folder == nullptr) return 0;
  for (const int version : {17, 19, 20})
    writeSeed(folder, "example" + std::to_string(version),
              designBlob(static_cast<std::uint16_t>(version), exampleForm()));
  writeSampleSeeds(folder);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const CodePage page;
  const std::span bytes(data, size);
  StoredDesign design;
  try {
    design = readDesignBlob(bytes, page, page);
  } catch (const mdb::Error&) {
    return 0;
  }
  // A design ends where its bytes end.
  if (isReadable(bytes.first(size - 1), page)) std::abort();
  if (design.understood.propertiesKnown > design.understood.properties) std::abort();
  if (design.understood.controlsKnown > design.understood.controls) std::abort();
  lookIntoObjects(design.root);
  DatabaseModel database(page);
  completeDesign(design, "Form1", database.names);
  return 0;
}
