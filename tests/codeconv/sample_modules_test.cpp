// Code that people wrote: every module among the sample exports, as module and as form, with an
// account of its lines.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "codeconv/code_rules.h"
#include "codeconv/code_session.h"
#include "codeconv/do_cmd_mapping.h"
#include "codeconv/form_code.h"
#include "codeconv/module_code.h"
#include "core/module_batch.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

namespace fs = std::filesystem;

fs::path exportsFolder() {
  if (const char* named = std::getenv("TARROWIN_SAMPLES")) return fs::path(named) / "exports";
  return fs::path(TARROWIN_SOURCE_DIR).parent_path() / "shared" / "samples" / "exports";
}

// Exports of modules, of forms and of macros share one extension; all are text.
std::vector<fs::path> sampleModules() {
  std::vector<fs::path> found;
  if (!fs::is_directory(exportsFolder())) return found;
  for (const auto& entry : fs::recursive_directory_iterator(exportsFolder())) {
    if (entry.path().extension() == ".bas") found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    std::string line = text.substr(start, end - start);
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
    start = end + 1;
  }
  return lines;
}

int linesWritten(CodeKind kind, const std::string& line) {
  for (const CodeRule& rule : codeRules()) {
    if (!matches(rule, line)) continue;
    switch (rule.action(kind)) {
      case LineAction::kNotListed:
        continue;
      case LineAction::kDrop:
        return 0;
      case LineAction::kKeepAndBlank:
      case LineAction::kCommentTwice:
      case LineAction::kKeepAndDotted:
        return 2;
      case LineAction::kKeepDottedAndComment:
        return 3;
      case LineAction::kDoCmd: {
        int count = 0;
        std::string method;
        convertDoCmdLine(kind, line, method, [&](std::string_view) { ++count; });
        return count;
      }
      default:
        return 1;
    }
  }
  return 1;
}

TEST(SampleModules, AllConvertAndEveryLineIsAccountedFor) {
  const std::vector<fs::path> modules = sampleModules();
  if (modules.empty()) GTEST_SKIP() << "no samples at " << exportsFolder();
  std::size_t linesRead = 0;
  for (const fs::path& path : modules) {
    SCOPED_TRACE(path);
    const std::string source = fileContent(path);
    for (const CodeKind kind : {CodeKind::kModule, CodeKind::kForm}) {
      int expected = 0;
      for (const std::string& line : linesOf(source)) {
        expected += linesWritten(kind, line);
        ++linesRead;
      }
      CodeSession session;
      session.access->text = source;
      std::string result;
      if (kind == CodeKind::kModule) {
        GetAccModuleCode(session.main);
        result = session.content("Utilities.bas");
      } else {
        session.files.Open(session.path("Sales_Form.frm").string(), FileMode::kAppend, kOutputFile);
        GetAccFormCode(session.main);
        result = session.content("Sales_Form.frm");
      }
      EXPECT_EQ(session.user.boxes, std::vector<Box>{});
      EXPECT_EQ(static_cast<int>(linesOf(result).size()), expected);
    }
  }
  EXPECT_GT(linesRead, 10000u);
}

// The modules of real databases, from the click to the files.
TEST(SampleModules, ThoseOfDatabasesConvertAndEveryLineIsAccountedFor) {
  const fs::path folder = exportsFolder().parent_path() / "mdb";
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no samples at " << folder;
  int modules = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() != ".mdb") continue;
    SCOPED_TRACE(entry.path());
    TestSession session;
    session.openPath(entry.path().string());
    const std::vector<ListItem> list = session.main.window.list(ObjectList::kModules);
    if (list.empty()) continue;
    session.main.window.txtCurDir = session.out().string();
    ConvertModules(session.main, true);
    // Nothing but the summary.
    EXPECT_EQ(session.onlyBox().text.find("Successfully converted "), 0u);
    for (const ListItem& item : list) {
      const std::string exported = session.folder() + "/exported.txt";
      session.main.state.gappAccess.doCmd().OpenModule(item.text);
      session.main.state.gappAccess.doCmd().call(
          "OutputTo",
          {Value(access_constants::acModule), Value(item.text), Value(""), Value(exported)});
      int expected = 0;
      for (const std::string& line : linesOf(fileContent(exported))) {
        expected += linesWritten(CodeKind::kModule, line);
      }
      session.select(ObjectList::kModules, {item.text});
      ConvertModules(session.main, false);
      session.clearBoxes();
      const std::string name = CodePage().toUtf8(session.main.state.gstrModuleFile);
      EXPECT_EQ(linesOf(fileContent(session.out() / name)).size(),
                static_cast<std::size_t>(expected))
          << name;
      ++modules;
    }
  }
  EXPECT_GT(modules, 20);
}

// Copies of a real database with one byte changed in many places: what is damaged says so in a box
// of its own, and the other modules convert all the same.
TEST(SampleModules, DamageCostsOnlyTheModulesThatItTouches) {
  const fs::path sample =
      exportsFolder().parent_path() / "mdb/ailtonz__vba_msaccess/BalemAgenda2000.mdb";
  if (!fs::exists(sample)) GTEST_SKIP() << "no sample at " << sample;
  const std::string intact = fileContent(sample);
  constexpr int kModules = 7;
  constexpr int kCopies = 150;
  int partly = 0;
  for (int copy = 0; copy < kCopies; ++copy) {
    // From page 1 on, spread over the whole file; the head decides whether it opens at all.
    const std::size_t at =
        4096 + (intact.size() - 4096) / kCopies * static_cast<std::size_t>(copy) + 777;
    std::string damaged = intact;
    for (std::size_t i = at; i < std::min(at + 512, damaged.size()); i += 7) damaged[i] ^= 0x55;
    TestSession session;
    writeFile(session.folder() + "/damaged.mdb", damaged);
    session.openPath(session.folder() + "/damaged.mdb");
    if (session.main.window.list(ObjectList::kModules).size() != kModules) continue;
    session.clearBoxes();
    session.main.window.txtCurDir = session.out().string();
    ConvertModules(session.main, true);
    for (const Box& box : session.user.boxes) {
      EXPECT_TRUE(box.style == message_style::kInformation ||
                  box.text.starts_with("ConvertModules() - Error #3049") ||
                  box.text.starts_with("GetAccModuleCode("))
          << box.text;
    }
    const int converted = session.main.lastBatch.converted;
    EXPECT_EQ(fileNames(session.out()).size(), static_cast<std::size_t>(converted));
    if (converted > 0 && converted < kModules) ++partly;
  }
  EXPECT_GT(partly, 0);
}

}  // namespace
}  // namespace tarrowin::test
