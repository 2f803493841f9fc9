// Code conversion: source text per second on one core, for lines that no rule touches and for lines
// that rules rewrite, for the rules alone and for a whole module with its file statements.
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "codeconv/form_code.h"
#include "codeconv/line_rewriter.h"
#include "codeconv/module_code.h"
#include "core/main_object.h"

namespace tarrowin {
namespace {

constexpr std::size_t kSourceSize = std::size_t{4} << 20;

// Code as people write it, none of it for a rule.
const std::vector<std::string> kUntouched = {
    "Private Function CountWords(strText As String) As Integer",
    "    Dim intCount As Integer, intPosition As Integer",
    "    If Len(strText) = 0 Then Exit Function",
    "    For intPosition = 1 To Len(strText)",
    "        If Mid$(strText, intPosition, 1) = \" \" Then intCount = intCount + 1",
    "    Next intPosition",
    "    CountWords = intCount + 1 ' one more than blanks",
    "    rstOrders.MoveNext",
    "    strResult = strResult & Format(rstOrders!OrderDate, \"dd/mm/yyyy\") & vbCrLf",
    "    MsgBox \"The report has been printed.\", vbInformation",
    "Exit_CountWords:",
    "    Exit Function",
};

// Lines of every rule that both kinds of code have.
const std::vector<std::string> kRewritten = {
    "    Set dbs = CurrentDb",
    "    strName = CurrentDb.Name",
    "    Dim rst As Recordset",
    "    Set rst = dbs.OpenRecordset(\"SELECT * FROM Orders\", dbOpenDynaset)",
    "    dbs.Execute \"UPDATE Orders SET Seen = True\"",
    "    Me.txtTotal = Me!txtSum",
    "    DoCmd.OpenForm \"Order List\"",
    "    DoCmd.Close acForm, \"frmOrders\"",
    "    DoCmd.Requery \"lstOrders\"",
    "    DoCmd.RunSQL strSQL",
    "    DoCmd.HourGlass True",
    "End Sub",
};

const std::vector<std::string>& linesOf(const benchmark::State& state) {
  return state.range(0) == 0 ? kUntouched : kRewritten;
}

std::string sourceOf(const std::vector<std::string>& lines) {
  std::string source;
  while (source.size() < kSourceSize) {
    for (const std::string& line : lines) source += line + "\r\n";
  }
  return source;
}

// Files in memory, so that the figures are those of the program.
class MemoryFileSystem : public FileSystem {
 public:
  int open(const std::string& path, Access access, Handle& handle) override {
    handle = static_cast<Handle>(open_.size());
    if (access == Access::kWrite) files_[path].clear();
    open_.push_back({&files_[path], 0});
    return 0;
  }
  int read(Handle handle, char* buffer, std::size_t capacity, std::size_t& count) override {
    Open& file = open_[static_cast<std::size_t>(handle)];
    count = file.content->copy(buffer, capacity, file.position);
    file.position += count;
    return 0;
  }
  int write(Handle handle, std::string_view bytes, std::size_t& written) override {
    open_[static_cast<std::size_t>(handle)].content->append(bytes);
    written = bytes.size();
    return 0;
  }
  int close(Handle) override { return 0; }
  int remove(const std::string& path) override {
    files_.erase(path);
    return 0;
  }
  int makeDirectory(const std::string&) override { return 0; }
  int status(const std::string& path, Status&) override {
    return files_.contains(path) ? 0 : ENOENT;
  }
  int list(const std::string&, std::vector<Entry>&) override { return ENOENT; }

  void put(const std::string& path, const std::string& content) { files_[path] = content; }

 private:
  struct Open {
    std::string* content;
    std::size_t position;
  };
  std::map<std::string, std::string> files_;
  std::vector<Open> open_;
};

// Access with one module, or the module of one form.
class OneModule : public AccessObject {
 public:
  OneModule(MemoryFileSystem& disk, std::string text) : disk_(disk), text_(std::move(text)) {}
  Value get(std::string_view name, Arguments) override {
    if (name == "CountOfLines") return Value(1);
    if (name == "HasModule") return Value(true);
    if (name == "Version") return Value("4.0");
    return Value(shared_from_this());
  }
  void put(std::string_view, const Value&) override {}
  Value call(std::string_view name, Arguments arguments) override {
    if (name == "OutputTo") disk_.put(toText(arguments[3]), text_);
    return {};
  }

 private:
  MemoryFileSystem& disk_;
  std::string text_;
};

class SilentUser : public User {
 public:
  Answer messageBox(int, std::string_view, std::string_view) override { return Answer::kOk; }
  std::string openFile(const OpenDialog&) override { return {}; }
};

void rules(benchmark::State& state) {
  const std::vector<std::string>& lines = linesOf(state);
  const auto kind = state.range(1) == 0 ? CodeKind::kModule : CodeKind::kForm;
  std::size_t bytes = 0, written = 0;
  ConversionState conversion;
  LineRewriter rewriter(
      kind, conversion, [&](std::string_view line) { written += line.size(); }, [](FormHeader) {});
  for (auto _ : state) {
    for (const std::string& line : lines) {
      conversion.strCodeLine = line;
      rewriter.rewrite();
      bytes += line.size() + 2;
    }
  }
  benchmark::DoNotOptimize(written);
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(rules)->ArgNames({"rewritten", "form"})->ArgsProduct({{0, 1}, {0, 1}});

void wholeCode(benchmark::State& state) {
  MemoryFileSystem disk;
  SilentUser user;
  FileSlots files(disk, CodePage(), "/");
  MainObject main(user, files, AccessHost(), systemNow);
  const std::string source = sourceOf(linesOf(state));
  const auto access = std::make_shared<OneModule>(disk, source);
  main.state.gappAccess = Application(access);
  main.state.frmCurr = LateBound(access);
  main.state.mstrOutputDir = "/out/";
  main.state.mstrModFile = "Module.bas";
  main.state.mstrFormFile = "Form.frm";
  for (auto _ : state) {
    if (state.range(1) == 0) {
      GetAccModuleCode(main);
    } else {
      files.Open("/out/Form.frm", FileMode::kOutput, kOutputFile);
      GetAccFormCode(main);
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(source.size()));
}
BENCHMARK(wholeCode)
    ->ArgNames({"rewritten", "form"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarrowin

BENCHMARK_MAIN();
