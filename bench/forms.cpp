// Forms inside the process, without a disk for the output. Figures are of one core.
#include <filesystem>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include "bench_session.h"
#include "core/form_batch.h"

namespace tarrowin {
namespace {

std::string property(const std::string& name, int value) {
  return ",\"" + name + "\":" + std::to_string(value);
}

std::string position(int i, int section) {
  return property("Section", section) + property("Left", 60 + i % 5 * 1800) +
         property("Top", 60 + i / 5 * 300) + property("Width", 1500) + property("Height", 240);
}

const std::string kCommon =
    R"(,"Visible":true,"Enabled":true,"Locked":false,"TabStop":true,"TabIndex":3,)"
    R"("HelpContextID":0,"Tag":"","ToolTipText":"Shown to the user","ControlTipText":"",)"
    R"("StatusBarText":"","SpecialEffect":2,"BackStyle":1,"BackColor":16777215,"ForeColor":0,)"
    R"("BorderStyle":0,"BorderColor":0,"BorderWidth":0,"FontName":"MS Sans Serif","FontSize":8,)"
    R"("FontWeight":400,"FontItalic":false,"FontUnderline":false,"TextAlign":0,"EventProcPrefix":"x")";

std::string control(const std::string& name, int type, const std::string& parent,
                    const std::string& properties) {
  std::string text = R"({"name":")" + name + R"(","type":)" + std::to_string(type);
  if (!parent.empty()) text += R"(,"parent":")" + parent + '"';
  return text + R"(,"properties":{"ControlSource":"Field","Caption":"A caption")" + properties +
         kCommon + "}}";
}

// Labels with their text boxes and, in every tenth place, a button, a check box or a group of two.
std::string controls(int count) {
  std::string text;
  const auto add = [&text](const std::string& entry) { text += (text.empty() ? "" : ",") + entry; };
  for (int i = 0; i < count; ++i) {
    const std::string n = std::to_string(i);
    const std::string place = position(i, i % 10 == 9 ? 2 : 0);
    if (i % 10 == 0 && i + 2 < count) {
      add(control("grp" + n, 107, "", place));
      add(control("opt" + n, 105, "grp" + n, place + property("OptionValue", 1)));
      add(control("optLabel" + n, 100, "opt" + n, place));
      i += 2;
    } else if (i % 10 == 4) {
      add(control("cmd" + n, 104, "", place + R"(,"Picture":"","Cancel":false,"Default":false)"));
    } else if (i % 2) {
      add(control("txt" + n, 109, "", place));
    } else {
      add(control("lbl" + n, 100, "", place));
    }
  }
  return text;
}

std::ofstream newSnapshot(const std::filesystem::path& path) {
  std::ofstream file(path);
  file << R"({"snapshot":1,"database":{"name":"C:\\Bench.mdb","version":"4.0",)"
       << R"("properties":{"AccessVersion":"08.50"}},"forms":[)";
  return file;
}

std::string design(const std::string& controlList) {
  return R"("properties":{"DefaultView":0,"RecordSource":"Orders","Caption":"Orders","Width":9000,)"
         R"("BorderStyle":2,"HelpContextID":0,"KeyPreview":false,"MinMaxButtons":3,"Tag":""},)"
         R"("sections":[{"number":0,"properties":{"Height":3000,"BackColor":12632256,"SpecialEffect":0}},)"
         R"({"number":1,"properties":{"Height":300,"BackColor":0,"SpecialEffect":0}},)"
         R"({"number":2,"properties":{"Height":300,"BackColor":0,"SpecialEffect":0}}],"controls":[)" +
         controlList + "]}";
}

std::string snapshotOf(int forms, int controlsOfEach) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("tarrowin-bench-forms-" + std::to_string(forms) + "-" +
                     std::to_string(controlsOfEach) + ".access.json");
  std::ofstream file = newSnapshot(path);
  const std::string designText = design(controls(controlsOfEach));
  for (int i = 0; i < forms; ++i)
    file << (i ? "," : "") << R"({"name":"Orders of month )" << i << "\"," << designText;
  file << "]}";
  return path.string();
}

// A form whose controls have the names of those in its subform, which are all found twice.
std::string snapshotWithSubform(int count) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("tarrowin-bench-subform-" + std::to_string(count) + ".access.json");
  std::ofstream file = newSnapshot(path);
  const std::string inner = controls(count);
  const std::string sub =
      control("sub", 112, "", position(0, 0) + R"(,"SourceObject":"Form.Inner")");
  file << R"({"name":"Inner",)" << design(inner) << R"(,{"name":"Outer",)"
       << design(sub + "," + inner) << "]}";
  return path.string();
}

// Argument: controls of the subform.
void convertSubform(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  Session session(snapshotWithSubform(count));
  session.main.window.list(ObjectList::kForms)[1].selected = true;
  for (auto _ : state) ConvertForms(session.main, false);
  if (session.main.lastBatch.converted != 1) state.SkipWithError("the form was not converted");
  state.counters["controls/s"] = benchmark::Counter(
      static_cast<double>(state.iterations()) * 2 * count, benchmark::Counter::kIsRate);
}
BENCHMARK(convertSubform)
    ->Arg(1250)
    ->Arg(2500)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

// Arguments: forms, controls of each.
void convertForms(benchmark::State& state) {
  const int forms = static_cast<int>(state.range(0)), count = static_cast<int>(state.range(1));
  Session session(snapshotOf(forms, count));
  for (auto _ : state) ConvertForms(session.main, true);
  if (session.main.lastBatch.converted != forms) state.SkipWithError("not all forms converted");
  state.SetItemsProcessed(state.iterations() * forms);
  state.SetBytesProcessed(static_cast<std::int64_t>(session.fileSystem.bytesWritten));
  state.counters["controls/s"] = benchmark::Counter(
      static_cast<double>(state.iterations()) * forms * count, benchmark::Counter::kIsRate);
}
BENCHMARK(convertForms)
    ->ArgNames({"forms", "controls"})
    ->Args({300, 50})
    ->Args({1, 2500})
    ->Args({1, 5000})
    ->Args({1, 10000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarrowin

BENCHMARK_MAIN();
