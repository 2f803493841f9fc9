// Opening and converting inside the process: snapshot and query conversion, without a disk for the
// output. Figures are of one core.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "access/access_host.h"
#include "core/database_opening.h"
#include "core/main_object.h"
#include "core/query_batch.h"
#include "shared/file_system.h"

namespace tarrowin {
namespace {

// Swallows what is written, so that the conversion alone is measured.
class NullFileSystem : public PosixFileSystem {
 public:
  int open(const std::string& path, Access access, Handle& handle) override {
    if (access == Access::kRead) return PosixFileSystem::open(path, access, handle);
    handle = kNull;
    return 0;
  }
  int write(Handle handle, std::string_view bytes, std::size_t& written) override {
    if (handle != kNull) return PosixFileSystem::write(handle, bytes, written);
    written = bytes.size();
    bytesWritten += bytes.size();
    return 0;
  }
  int close(Handle handle) override { return handle == kNull ? 0 : PosixFileSystem::close(handle); }
  std::size_t bytesWritten = 0;

 private:
  static constexpr Handle kNull = 1 << 20;
};

class SilentUser : public User {
 public:
  explicit SilentUser(std::string path) : path_(std::move(path)) {}
  Answer messageBox(int style, std::string_view, std::string_view) override {
    return message_style::asksYesNo(style) ? Answer::kYes : Answer::kOk;
  }
  std::string openFile(const OpenDialog&) override { return path_; }

 private:
  std::string path_;
};

// A snapshot of that many queries in a temporary folder, made once.
std::string snapshotOf(int queries) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("tarrowin-bench-" + std::to_string(queries) + ".access.json");
  std::ofstream file(path);
  file << R"({"snapshot":1,"database":{"name":"C:\\Bench.mdb","version":"4.0",)"
       << R"("properties":{"AccessVersion":"08.50"}},"queries":[)";
  for (int i = 0; i < queries; ++i) {
    file << (i ? "," : "") << R"({"name":"Orders of month )" << i << R"(","sql":")"
         << R"(SELECT Orders.OrderID, Orders.OrderDate, Customers.CompanyName\r\n)"
         << R"(FROM Customers INNER JOIN Orders ON Customers.CustomerID = Orders.CustomerID\r\n)"
         << R"(WHERE (((Orders.Region)=\"North\"));\r\n"})";
  }
  file << "]}";
  return path.string();
}

struct Session {
  explicit Session(const std::string& path)
      : user(path),
        files(fileSystem, CodePage(), "/"),
        main(user, files, AccessHost(createAccessHost()), systemNow) {
    cmdOpen_Click(main);
    main.window.txtCurDir = std::filesystem::temp_directory_path().string();
  }
  NullFileSystem fileSystem;
  SilentUser user;
  FileSlots files;
  MainObject main;
};

void openSnapshot(benchmark::State& state) {
  const std::string path = snapshotOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Session session(path);
    benchmark::DoNotOptimize(session.main.window.list(ObjectList::kQueries).size());
  }
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(path)));
}
BENCHMARK(openSnapshot)->Arg(1000)->Arg(20000)->Unit(benchmark::kMillisecond);

// TARROWIN_BENCH_MDB names a real database.
void openMdb(benchmark::State& state) {
  const char* path = std::getenv("TARROWIN_BENCH_MDB");
  if (path == nullptr) {
    state.SkipWithError("TARROWIN_BENCH_MDB is not set");
    return;
  }
  for (auto _ : state) {
    Session session{path};
    benchmark::DoNotOptimize(session.main.window.list(ObjectList::kForms).size());
  }
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(path)));
}
BENCHMARK(openMdb)->Unit(benchmark::kMillisecond);

void convertQueries(benchmark::State& state) {
  constexpr int kQueries = 2500;
  Session session(snapshotOf(kQueries));
  session.main.window.chkMultiSel = static_cast<int>(state.range(0));
  for (auto _ : state) ConvertQueries(session.main, true);
  state.SetItemsProcessed(state.iterations() * kQueries);
  state.SetBytesProcessed(static_cast<std::int64_t>(session.fileSystem.bytesWritten));
}
BENCHMARK(convertQueries)->ArgName("single_file")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarrowin

BENCHMARK_MAIN();
