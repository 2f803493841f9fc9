// Every form and report of every sample, through each source that has it: it converts, and how much
// of its design is understood.
#include <cstddef>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "samples/samples_fixture.h"

namespace tarrowin::test {
namespace {

struct Sample {
  std::string path;
  std::string age;
  std::size_t forms, reports;  // as the inventory of the samples counts them
};

const std::string k97 = "Access 97", k2000 = "Access 2000", k2002 = "Access 2002-2003",
                  kExports = "Exports";

const std::vector<Sample> kSamples = {
    {"mdb/ailtonz__MSACCESS/MinimizaApp.mdb", k97, 0, 0},
    {"mdb/ailtonz__vba_msaccess/BalemAgenda97.mdb", k97, 5, 0},
    {"mdb/ailtonz__vba_msaccess/CodBarra39Etiquetas.mdb", k97, 1, 1},
    {"mdb/ailtonz__vba_msaccess/BalemAgenda2000.mdb", k2000, 5, 0},
    {"mdb/MattFisher__AccessVCS/TestDB.mdb", k2000, 3, 1},
    {"mdb/ailtonz__MSACCESS/MinimizaApp_2003.mdb", k2002, 0, 0},
    {"mdb/ailtonz__vba_msaccess/CodBarra39Etiquetas_2003.mdb", k2002, 1, 1},
    {"mdb/mnieto__MSAccess-VCS/asvnTest2003.mdb", k2002, 3, 1},
    {"mdb/solondon__MSAccess2010InsideOutSampleCode/Reports.mdb", k2002, 6, 14},
    {"exports/joyfullservice__msaccess-vcs-addin/Testing.accdb.src", kExports, 1, 2},
    {"exports/maria-neelyc__Accounting/source", kExports, 31, 24},
    {"exports/MattFisher__AccessVCS/TestDB/src", kExports, 3, 1},
    {"exports/msaccess-vcs-integration__msaccess-vcs-integration/demo/source", kExports, 1, 1},
    {"exports/TheArtist__uplan/source", kExports, 28, 12},
};

// What is known of all, and all there is.
struct Share {
  std::size_t known = 0, all = 0;

  void add(const Json& share) {
    known += share["known"].get<std::size_t>();
    all += share["all"].get<std::size_t>();
  }
  std::size_t unknown() const { return all - known; }
};

std::ostream& operator<<(std::ostream& out, const Share& share) {
  return out << share.known << " of " << share.all;
}

struct Totals {
  std::size_t designs = 0;
  Share controls, properties;
};

class EverySample : public Samples {
 protected:
  void addUnderstood(const std::string& source, Totals& totals) const {
    const ProgramResult result = run({"list", "--detail", "--json", source});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json detail = Json::parse(result.out)["detail"];
    for (const char* const kind : {"forms", "reports"})
      for (const Json& design : detail[kind]) {
        ASSERT_TRUE(design.contains("understood")) << design.dump();
        ++totals.designs;
        totals.controls.add(design["understood"]["controls"]);
        totals.properties.add(design["understood"]["properties"]);
      }
  }

  // All of the kind, each into a file that ends so. One more form shows the reports of a project.
  void expectConverted(const std::string& source, const std::string& kind, std::size_t count,
                       const std::string& ending, std::size_t filesOfEach) const {
    const std::string out = path("out-" + kind).string();
    const ProgramResult result = run({"convert", "--json", source, "--to", out, "--" + kind});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json answer = Json::parse(result.out);
    EXPECT_EQ(answer["complete"], true);
    EXPECT_EQ(answer["batches"][0]["selected"], count);
    EXPECT_EQ(answer["batches"][0]["converted"], count);
    std::size_t files = 0;
    for (const std::string& name : fileNames(out))
      if (name.ends_with(ending)) {
        ++files;
        EXPECT_GT(std::filesystem::file_size(std::filesystem::path(out) / name), 0u) << name;
      }
    EXPECT_EQ(files, count * filesOfEach);
    std::filesystem::remove_all(out);
  }
};

TEST_F(EverySample, ConvertsAllItsFormsAndReports) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.path);
    const std::string source = copied(sample.path);
    expectConverted(source, "forms", sample.forms, ".frm", 1);
    expectConverted(source, "reports", sample.reports, ".dsr", 2);  // the data, and the page
  }
}

TEST_F(EverySample, HasItsDesignsUnderstood) {
  std::map<std::string, Totals> byAge;
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.path);
    const std::size_t before = byAge[sample.age].designs;
    addUnderstood(copied(sample.path), byAge[sample.age]);
    EXPECT_EQ(byAge[sample.age].designs - before, sample.forms + sample.reports);
  }
  for (const auto& [age, totals] : byAge) {
    SCOPED_TRACE(age);
    std::cout << age << ": " << totals.designs << " designs, understood " << totals.controls
              << " controls, " << totals.properties << " properties\n";
    EXPECT_EQ(totals.controls.unknown(), 0u);
  }
  // The designs of one application in three ages have the same controls.
  EXPECT_EQ(byAge[k97].controls.all, 249u + 18u);
  EXPECT_EQ(byAge[k2000].controls.all, 249u + 41u);
  EXPECT_EQ(byAge[k2002].controls.all, 18u + 50u + 278u);
  // 2,613 blocks of controls, and 19 that share one with a combo box.
  EXPECT_EQ(byAge[kExports].controls.all, 2632u);
  for (const std::string& age : {k97, k2000, kExports})
    EXPECT_EQ(byAge[age].properties.unknown(), 0u) << age;
  // Stored by later versions of Access under the code 0: no properties, and in no text export.
  EXPECT_LE(byAge[k2002].properties.unknown(), 138u);
  EXPECT_GE(byAge[k2002].properties.known, 5609u);
}

}  // namespace
}  // namespace tarrowin::test
