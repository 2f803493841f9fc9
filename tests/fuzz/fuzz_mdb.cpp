// libFuzzer target: any bytes, filled up to whole pages, as a database file; everything is read.
// Seeds: small real databases. Run with -max_len of some 300 kB and -timeout=2.
#include <cstddef>
#include <cstdint>
#include <utility>

#include "access/mdb/mdb_database.h"
#include "mdb/walk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarrowin;
  mdb::Options options;
  options.ignorePassword = true;
  options.allowNewerFormat = true;
  constexpr std::size_t kPageSize = 4096;  // of Jet 4, two of Jet 3
  Bytes bytes(data, data + size);
  bytes.resize((size + kPageSize - 1) / kPageSize * kPageSize);
  try {
    mdb::walkEverything(mdb::Database::fromBytes(std::move(bytes), "input", options));
  } catch (const mdb::Error&) {
  }
  return 0;
}
