// Reports inside the process, without a disk for the output. Figures are of one core.
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "bench_session.h"
#include "core/report_batch.h"

namespace tarrowin {
namespace {

constexpr int kFields = 20;
constexpr std::string_view kSections[] = {"Detail",      "ReportHeader", "ReportFooter",
                                          "PageHeader",  "PageFooter",   "GroupHeader0",
                                          "GroupFooter1"};

// A text box in the Detail or the group, a sum in a footer, a label elsewhere.
std::string item(int i) {
  const int section = i % static_cast<int>(std::size(kSections));
  const bool bound = section == 0 || section == 5, calculated = section == 2 || section == 6;
  const std::string n = std::to_string(i), field = "Field" + std::to_string(i % kFields);
  std::string text = R"({"name":")" + (bound ? field : "Item" + n) + R"(","type":)" +
                     (bound || calculated ? "109" : "100") + R"(,"properties":{"Section":)" +
                     std::to_string(section) + R"(,"Left":)" + std::to_string(60 + i % 5 * 1800) +
                     R"(,"Top":60,"Width":1500,"Height":240,"FontName":"Tahoma","FontSize":8,)" +
                     R"("FontWeight":400,"FontItalic":false,"FontUnderline":false,"TextAlign":0)";
  if (bound) text += R"(,"ControlSource":")" + field + R"(","Format":"")";
  if (calculated) {
    text += R"(,"ControlSource":"=Sum([)" + field + R"json(])","Format":"Standard")json";
  }
  if (!bound && !calculated) text += R"(,"Caption":"A caption")";
  return text + "}}";
}

std::string fields() {
  std::string text;
  for (int i = 0; i < kFields; ++i) {
    text += std::string(i ? "," : "") + R"({"name":"Field)" + std::to_string(i) +
            R"(","type":4,"size":4,"sourceTable":"Orders"})";
  }
  return "[" + text + "]";
}

std::string design(int items, const std::string& source) {
  std::string text =
      R"("properties":{"RecordSource":")" + source +
      R"(","Caption":"Orders","Width":9000,"BorderStyle":2,"GridX":24,"GridY":24,)"
      R"("FontName":"Tahoma","FontSize":8,"FontWeight":400,"FontItalic":false,"FontUnderline":false},)"
      R"("groupLevels":[{"ControlSource":"Field1","GroupHeader":true,"GroupFooter":true}],"sections":[)";
  for (int i = 0; i < static_cast<int>(std::size(kSections)); ++i) {
    text += std::string(i ? "," : "") + R"({"number":)" + std::to_string(i) +
            R"(,"properties":{"Name":")" + std::string(kSections[i]) +
            R"(","Height":300,"Visible":true,"KeepTogether":true,"ForceNewPage":0}})";
  }
  text += R"(],"controls":[)";
  for (int i = 0; i < items; ++i) text += (i ? "," : "") + item(i);
  return text + "]}";
}

constexpr std::string_view kSqlSource = "SELECT * FROM Orders WHERE Field1 > 5";

// With the source recorded, or as SQL text that has to be analysed.
std::string snapshotOf(int reports, int items, bool recorded) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("tarrowin-bench-reports-" + std::to_string(reports) + "-" +
                     std::to_string(items) + (recorded ? "r" : "s") + ".access.json");
  std::ofstream file(path);
  file << R"({"snapshot":1,"database":{"name":"C:\\Bench.mdb","version":"4.0",)"
       << R"("properties":{"AccessVersion":"08.50"}},"tables":[{"name":"Orders","fields":)"
       << fields() << "}],";
  if (recorded)
    file << R"("recordsets":[{"source":")" << kSqlSource << R"(","fields":)" << fields() << "}],";
  file << R"("reports":[)";
  for (int i = 0; i < reports; ++i) {
    // A text of its own for each report, so that no analysis serves two of them.
    const std::string source =
        recorded ? std::string(kSqlSource) : std::string(kSqlSource) + std::to_string(i);
    file << (i ? "," : "") << R"({"name":"Orders of month )" << i << "\"," << design(items, source);
  }
  file << "]}";
  return path.string();
}

// Arguments: reports, items of each, whether the source is recorded. The difference of the two is
// the cost of finding the fields of an SQL text, which is paid once for each source.
void convertReports(benchmark::State& state) {
  const int reports = static_cast<int>(state.range(0)), items = static_cast<int>(state.range(1));
  const std::string path = snapshotOf(reports, items, state.range(2) != 0);
  for (auto _ : state) {
    state.PauseTiming();
    Session session(path);
    state.ResumeTiming();
    ConvertReports(session.main, true);
    if (session.main.lastBatch.converted != reports)
      state.SkipWithError("not all reports converted");
    state.PauseTiming();
    state.counters["bytes"] = static_cast<double>(session.fileSystem.bytesWritten);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * reports);
}
BENCHMARK(convertReports)
    ->ArgNames({"reports", "items", "recorded"})
    ->Args({300, 60, 1})
    ->Args({300, 60, 0})
    ->Args({1, 2000, 1})
    ->Args({1, 8000, 1})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarrowin

BENCHMARK_MAIN();
