// Runs the sessions of tests/golden, one test a folder, and compares what they leave behind with
// what was written by hand.
#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "cli/expected_database.h"
#include "cli/run_program.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

namespace fs = std::filesystem;

const fs::path& goldenFolder() {
  static const fs::path folder = fs::path(TARROWIN_SOURCE_DIR) / "tests" / "golden";
  return folder;
}

// Every folder with a script, sorted.
std::vector<std::string> caseNames() {
  std::vector<std::string> names;
  if (!fs::exists(goldenFolder())) return names;
  for (const auto& entry : fs::directory_iterator(goldenFolder())) {
    if (fs::exists(entry.path() / "script.json")) names.push_back(entry.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Belongs to the case, not to the session.
bool isExpectation(const fs::path& name) {
  return name == "expected" || name == "expected_transcript.jsonl" ||
         name == "expected_database.json" || name == "README.md";
}

// The recording that a session may change, where the case says what it must then hold.
constexpr std::string_view kChangedDatabase = "database.access.json";

// Files below the folder with their content; directories with an empty one and "/" behind the name.
std::map<std::string, std::string> tree(const fs::path& folder) {
  std::map<std::string, std::string> files;
  if (!fs::exists(folder)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = fs::relative(entry.path(), folder).string();
    if (entry.is_directory()) {
      files[name + "/"] = "";
    } else {
      files[name] = fileContent(entry.path());
    }
  }
  return files;
}

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

bool isCompared(const nlohmann::json& event) {
  const std::string kind = event.value("event", "");
  return kind == "message" || kind == "caption" || kind == "lists" || kind == "preview";
}

// The text with the elapsed time, which ends it, as its placeholder.
std::string withElapsedPlaceholder(const std::string& text) {
  constexpr std::string_view kBefore = "Conversion completed in: ";
  const std::size_t at = text.rfind(kBefore);
  if (at == std::string::npos) return text;
  std::string time = text.substr(at + kBefore.size());
  for (char& c : time) {
    if (c >= '0' && c <= '9') c = '0';
  }
  if (time != "00:00 seconds." && time != "00:00 second.") return text;
  return text.substr(0, at + kBefore.size()) + "{elapsed} seconds.";
}

// The compared events, one a line with sorted keys, and the elapsed time as its placeholder.
std::string comparable(const std::string& transcript) {
  std::istringstream lines(transcript);
  std::string text;
  for (std::string line; std::getline(lines, line);) {
    nlohmann::json event = nlohmann::json::parse(line);
    if (!isCompared(event)) continue;
    if (event.contains("text")) {
      event["text"] = withElapsedPlaceholder(event["text"]);
    }
    text += event.dump() + "\n";
  }
  return text;
}

std::string unifiedDiff(const std::string& expected, const std::string& actual,
                        const fs::path& folder) {
  return runProgram("diff", {"-ruaN", expected, actual},
                    {.workingDirectory = folder.string(), .inChild = [] {}})
      .out;
}

class Golden : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    for (const auto& entry : fs::directory_iterator(golden())) {
      if (isExpectation(entry.path().filename())) continue;
      fs::copy(entry.path(), work() / entry.path().filename(), fs::copy_options::recursive);
    }
  }

  fs::path golden() const { return goldenFolder() / GetParam(); }
  const fs::path& work() const { return work_.path(); }

 private:
  TemporaryFolder work_;
};

TEST_P(Golden, LeavesWhatIsExpected) {
  std::map<std::string, std::string> untouched = tree(work());
  const ProgramResult run = runCli({"script", (work() / "script.json").string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");

  const bool writes = fs::exists(golden() / "expected");
  EXPECT_EQ(fs::exists(work() / "out"), writes);
  EXPECT_TRUE(tree(golden() / "expected") == tree(work() / "out"))
      << unifiedDiff((golden() / "expected").string(), "out", work());

  TemporaryFolder transcripts;
  std::string expected = fileContent(golden() / "expected_transcript.jsonl");
  replaceAll(expected, "{case}", work().string());
  expected = comparable(expected);
  const std::string actual = comparable(run.out);
  writeFile(transcripts.path() / "expected", expected);
  writeFile(transcripts.path() / "actual", actual);
  EXPECT_TRUE(expected == actual) << unifiedDiff("expected", "actual", transcripts.path());

  const fs::path database = golden() / "expected_database.json";
  const bool changes = fs::exists(database);
  if (changes) {
    expectDatabase(nlohmann::json::parse(fileContent(database)),
                   nlohmann::json::parse(fileContent(work() / kChangedDatabase)));
  }
  // Nothing but the output directory and that database changed.
  std::map<std::string, std::string> after = tree(work());
  const auto mayChange = [changes](const auto& entry) {
    return entry.first.starts_with("out/") || (changes && entry.first == kChangedDatabase);
  };
  std::erase_if(untouched, mayChange);
  std::erase_if(after, mayChange);
  EXPECT_TRUE(untouched == after) << "the session changed files beside its output directory";
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(caseNames()),
                         [](const auto& test) { return test.param; });

TEST(GoldenCases, AreThere) { EXPECT_FALSE(caseNames().empty()); }

}  // namespace
}  // namespace tarrowin::test
