// Opening and converting inside the process: snapshot and query conversion, without a disk for the
// output. Figures are of one core.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "bench_session.h"
#include "core/query_batch.h"

namespace tarrowin {
namespace {

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
