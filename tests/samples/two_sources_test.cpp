// One database through both of its sources: the file, and the export of the same moment.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "samples/samples_fixture.h"

namespace tarrowin::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr const char* kDatabase = "mdb/MattFisher__AccessVCS/TestDB.mdb";
constexpr const char* kExport = "exports/MattFisher__AccessVCS/TestDB/src";

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

// "file: line | line" for each line that differs; the name alone of a file that only one folder has
// or that has more lines there.
std::vector<std::string> differences(const fs::path& first, const fs::path& second) {
  std::vector<std::string> found;
  const std::vector<std::string> names = fileNames(first), others = fileNames(second);
  std::ranges::set_symmetric_difference(names, others, std::back_inserter(found));
  for (const std::string& name : names) {
    if (!std::ranges::binary_search(others, name)) continue;
    const std::vector<std::string> left = linesOf(fileContent(first / name)),
                                   right = linesOf(fileContent(second / name));
    if (left.size() != right.size()) {
      found.push_back(name);
      continue;
    }
    for (std::size_t i = 0; i < left.size(); ++i)
      if (left[i] != right[i]) found.push_back(name + ": " + left[i] + " | " + right[i]);
  }
  return found;
}

class TwoSources : public Samples {
 protected:
  void convert(const std::vector<std::string>& source, const char* out) const {
    std::vector<std::string> arguments = {"convert", "--all", "--to", path(out).string()};
    arguments.insert(arguments.end(), source.begin(), source.end());
    const ProgramResult result = run(arguments);
    ASSERT_EQ(result.status, 0) << result.err;
  }
  static std::string connection(const std::string& database) {
    return "      ConnectionSource = \"Provider=Microsoft.Jet.OLEDB.4.0;Persist Security "
           "Info=False;"
           "Data Source=" +
           database + "\"";
  }
};

// The export lies beside its database, as it would, so that even the paths agree.
TEST_F(TwoSources, GiveTheSameFiles) {
  const std::string database = copiedTo(kDatabase, "TestDB.mdb");
  const std::string exported = copiedTo(kExport, "TestDB.mdb.src");
  convert({database}, "of-file");
  fs::remove(database + ".tarrowin.access.json");  // the macros' modules, for the next run
  convert({database, "--designs", "export"}, "of-designs");
  fs::remove(database + ".tarrowin.access.json");
  convert({exported}, "of-export");
  EXPECT_EQ(fileNames(path("of-file")).size(), 13u);
  EXPECT_THAT(differences(path("of-file"), path("of-designs")), ElementsAre());
  EXPECT_THAT(differences(path("of-file"), path("of-export")), ElementsAre());
}

// Where they lie apart, the data connection of a report names the database where the export would
// have it.
TEST_F(TwoSources, DifferInThePathOfTheDatabaseAlone) {
  const std::string database = copiedTo(kDatabase, "here/TestDB.mdb");
  const std::string exported = copiedTo(kExport, "there/TestDB/src");
  convert({database}, "of-file");
  convert({exported}, "of-export");
  EXPECT_THAT(differences(path("of-file"), path("of-export")),
              ElementsAre("deTestRpt.dsr: " + connection(database) + "\r | " +
                          connection(path("there/TestDB/TestDB.mdb").string()) + "\r"));
}

TEST_F(TwoSources, HoldTheSameObjectsButForBlankLinesThatTheToolCutOff) {
  const ProgramResult result = run({"compare", "--json", copied(kDatabase), copied(kExport)});
  EXPECT_EQ(result.status, 1) << result.err;
  const Json answer = Json::parse(result.out);
  EXPECT_EQ(answer["onlyInFirst"], 0);
  EXPECT_EQ(answer["onlyInSecond"], 0);
  ASSERT_EQ(answer["objects"].size(), 1u) << result.out;
  const Json& module = answer["objects"][0];
  EXPECT_EQ(module["kind"], "module");
  EXPECT_EQ(module["name"], "TestClass");
  ASSERT_EQ(module["differences"].size(), 1u) << result.out;
  const Json& text = module["differences"][0];
  EXPECT_EQ(text["first"].get<std::string>(), text["second"].get<std::string>() + "\r\n");
}

}  // namespace
}  // namespace tarrowin::test
