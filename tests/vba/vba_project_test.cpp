// Projects in trees made by hand: kinds of modules, texts, and what damage to one of them does.
#include "access/vba/vba_project.h"

#include <gtest/gtest.h>

#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using mdb::join;

constexpr std::string_view kClassHead =
    "Attribute VB_Name = \"x\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = True\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n";

// A database whose catalog has the module "Form_Helper", which is a class, and the form "Orders".
class Project : public testing::Test {
 protected:
  Project() : database_(makeDatabase()), tree_(emptyTree()) {
    const auto vba = tree_.store.addFolder(StreamStore::kRoot, "VBA");
    const auto project = tree_.store.addFolder(vba, "VBAProject");
    folder_ = tree_.store.addFolder(project, "VBA");
  }

  static mdb::Database makeDatabase() {
    mdb::FileBuilder builder(false);
    builder.addObject(20, "Form_Helper", -32761);
    builder.addObject(21, "Orders", -32768);
    return mdb::Database::fromBytes(builder.build(), "built");
  }

  void addModule(const std::string& name, const Bytes& stream, std::uint32_t offset = 0,
                 bool isClass = false) {
    addStream(tree_, folder_, "S_" + name, stream);
    modules_ = join({modules_, moduleRecords(name, "S_" + name, offset, isClass)});
  }
  void addModule(const std::string& name, const std::string& code) {
    addModule(name, compressed("Attribute VB_Name = \"" + name + "\"\r\n" + code));
  }

  VbaProject openWith(const Bytes& directoryStream) {
    addStream(tree_, folder_, "dir", directoryStream);
    return VbaProject::open(database_, std::make_shared<const ObjectTree>(std::move(tree_.store)));
  }
  VbaProject open() { return openWith(compressed(directory({modules_}))); }

  mdb::Database database_;
  MemoryTree tree_;
  StreamStore::Node folder_ = 0;
  Bytes modules_;
};

TEST_F(Project, KindsOfModules) {
  const Bytes text = compressed(std::string(kClassHead));
  addModule("Utilities", text, 0, false);
  addModule("Form_Standard", text, 0, false);
  addModule("Counter", text, 0, true);
  addModule("Form_Helper", text, 0, true);
  addModule("Form_Orders", text, 0, true);
  addModule("Report_Sales", text, 0, true);
  const VbaProject project = open();
  std::vector<std::pair<std::string, ModuleKind>> kinds;
  for (const Module& module : project.modules()) kinds.emplace_back(module.name, module.kind);
  const std::vector<std::pair<std::string, ModuleKind>> expected{
      {"Counter", ModuleKind::kClass},       {"Form_Helper", ModuleKind::kClass},
      {"Form_Orders", ModuleKind::kForm},    {"Form_Standard", ModuleKind::kStandard},
      {"Report_Sales", ModuleKind::kReport}, {"Utilities", ModuleKind::kStandard}};
  EXPECT_EQ(kinds, expected);
}

TEST_F(Project, TextsByNameWithoutRegardToCase) {
  addModule("Main", "Option Explicit\r\nSub A()\r\nEnd Sub\r\n");
  const VbaProject project = open();
  EXPECT_EQ(project.moduleText("Main"), "Option Explicit\r\nSub A()\r\nEnd Sub\r\n");
  EXPECT_EQ(project.moduleText("MAIN"), project.moduleText("Main"));
  EXPECT_EQ(project.countOfLines("main"), 3u);
  EXPECT_EQ(project.sourceText("Main").substr(0, 27), "Attribute VB_Name = \"Main\"\r");
}

TEST_F(Project, ClassKeepsTheLinesOfItsExport) {
  addModule("Form_Orders", compressed(std::string(kClassHead) + "Option Explicit\r\n"), 0, true);
  const VbaProject project = open();
  EXPECT_EQ(project.moduleText("Form_Orders"),
            std::string(kClassHead.substr(kClassHead.find('\n') + 1)) + "Option Explicit\r\n");
  EXPECT_EQ(project.countOfLines("Form_Orders"), 1u);
}

TEST_F(Project, TextInTheCodePageOfTheProject) {
  addModule("Main", "' \x80 and \xE9\r\n");
  EXPECT_EQ(open().moduleText("Main"), "' € and é\r\n");
}

TEST_F(Project, TextInAnUnknownCodePageIsAnErrorOfThatModule) {
  addModule("Ascii", "Option Explicit\r\n");
  addModule("Other", "' \x82\xA0\r\n");
  const VbaProject project =
      openWith(compressed(join({record(0x03, mdb::le16(932)), modules_, record(0x10, {})})));
  EXPECT_EQ(project.codePage(), 932);
  EXPECT_EQ(project.moduleText("Ascii"), "Option Explicit\r\n");
  EXPECT_EQ(damageOf([&] { project.moduleText("Other"); }),
            "module \"Other\": the code page 932 of the code is not known");
}

TEST_F(Project, SourceBehindOtherDataOfTheStream) {
  addModule("Main", join({Bytes(77, 0x55), compressed("Attribute VB_Name = \"Main\"\r\nA\r\n")}),
            77);
  EXPECT_EQ(open().moduleText("Main"), "A\r\n");
}

TEST_F(Project, WrongOffsetIsMadeUpFor) {
  const Bytes stream = join({Bytes(77, 0x55), compressed("Attribute VB_Name = \"Main\"\r\nA\r\n")});
  addModule("Low", stream, 3);
  addModule("High", stream, 0xFFFFFFFF);
  // Here stands something else that is compressed.
  addModule("Else", join({compressed("else"), stream}), 0);
  const VbaProject project = open();
  EXPECT_EQ(project.moduleText("Low"), "A\r\n");
  EXPECT_EQ(project.moduleText("High"), "A\r\n");
  EXPECT_EQ(project.moduleText("Else"), "A\r\n");
}

TEST_F(Project, TextOfManyChunks) {
  std::string code;
  for (int i = 0; i < 20000; ++i) code += "x = " + std::to_string(i) + "\r\n";
  addModule("Main", code);
  const VbaProject project = open();
  EXPECT_EQ(project.moduleText("Main"), code);
  EXPECT_EQ(project.countOfLines("Main"), 20000u);
}

TEST_F(Project, LineOfAMegabyteWithoutAnEnd) {
  const std::string code(1u << 20, 'x');
  addModule("Main", code);
  EXPECT_EQ(open().moduleText("Main"), code);
}

// A plain chunk always has 4,096 bytes.
TEST_F(Project, ZerosThatFillThePlainLastChunkAreNoText) {
  Bytes plain = bytesOf("Attribute VB_Name = \"Main\"\r\nEnd\r\n");
  plain.resize(4096);
  addModule("Main", container({mdb::le16(0x3FFF), plain}));
  EXPECT_EQ(open().moduleText("Main"), "End\r\n");
}

TEST_F(Project, ZeroByteInTheTextIsAnErrorOfThatModule) {
  addModule("Main", std::string("a\0b\r\n", 5));
  addModule("Other", "A\r\n");
  const VbaProject project = open();
  EXPECT_EQ(damageOf([&] { project.moduleText("Main"); }),
            "module \"Main\": its text holds a zero byte");
  EXPECT_EQ(project.moduleText("Other"), "A\r\n");
}

TEST_F(Project, DamagedChunkIsAnErrorOfThatModule) {
  Bytes stream = compressed("Attribute VB_Name = \"Bad\"\r\nA\r\n");
  stream.pop_back();
  addModule("Bad", stream);
  addModule("Good", "A\r\n");
  const VbaProject project = open();
  EXPECT_FALSE(project.damage());
  EXPECT_NE(damageOf([&] { project.moduleText("Bad"); }), "");
  EXPECT_NE(damageOf([&] { project.countOfLines("Bad"); }), "");
  EXPECT_EQ(project.moduleText("Good"), "A\r\n");
}

// As in an MDE, which keeps the compiled code only.
TEST_F(Project, StreamWithoutSourceTextIsAnErrorOfThatModule) {
  addModule("Compiled", Bytes(500, 0x55), 600);
  addModule("Empty", Bytes{}, 0);
  const VbaProject project = open();
  EXPECT_EQ(damageOf([&] { project.moduleText("Compiled"); }),
            "module \"Compiled\": it holds no source text");
  EXPECT_EQ(damageOf([&] { project.moduleText("Empty"); }),
            "module \"Empty\": it holds no source text");
}

TEST_F(Project, MissingStreamIsAnErrorOfThatModule) {
  modules_ = moduleRecords("Main", "nowhere", 0, false);
  EXPECT_EQ(damageOf([&, project = open()] { project.moduleText("Main"); }),
            "module \"Main\": its stream is missing");
}

TEST_F(Project, UnknownModuleIsAnError) {
  EXPECT_EQ(damageOf([&, project = open()] { project.moduleText("Nothing"); }),
            "module \"Nothing\": the Visual Basic project has no such module");
}

TEST_F(Project, DirectoryCutShortKeepsTheModulesBeforeTheDamage) {
  addModule("First", "A\r\n");
  addModule("Second", "B\r\n");
  Bytes cut = directory({modules_});
  cut.resize(cut.size() - 10);
  const VbaProject project = openWith(compressed(cut));
  ASSERT_TRUE(project.damage());
  EXPECT_EQ(project.moduleText("First"), "A\r\n");
  EXPECT_NE(damageOf([&] { project.moduleText("Second"); }).find("module \"Second\": "),
            std::string::npos);
}

TEST_F(Project, DirectoryThatIsNotCompressedIsDamage) {
  addModule("Main", "A\r\n");
  const VbaProject project = openWith(directory({modules_}));
  ASSERT_TRUE(project.damage());
  EXPECT_TRUE(project.modules().empty());
  EXPECT_EQ(damageOf([&] { project.moduleText("Main"); }),
            "module \"Main\": the compressed data lacks its start byte");
}

// Some 28 kB of stream that would give 8 MB.
TEST_F(Project, DirectoryThatGrowsWithoutEndIsDamage) {
  Bytes stream{1};
  const Bytes full = chunk(join({Bytes{0x02, 'x'}, mdb::le16(4095 - 3)}));
  for (int i = 0; i < 2048; ++i) stream.insert(stream.end(), full.begin(), full.end());
  const VbaProject project = openWith(stream);
  ASSERT_TRUE(project.damage());
  EXPECT_EQ(project.damage()->message(), "the decompressed data is too long");
}

TEST_F(Project, WithoutADirectoryThereIsNoCode) {
  const VbaProject project =
      VbaProject::open(database_, std::make_shared<const ObjectTree>(std::move(tree_.store)));
  EXPECT_FALSE(project.damage());
  EXPECT_TRUE(project.modules().empty());
}

TEST_F(Project, DatabaseWithoutAccessObjectsHasNoCode) {
  const VbaProject project = VbaProject::open(database_);
  EXPECT_FALSE(project.damage());
  EXPECT_TRUE(project.modules().empty());
}

}  // namespace
}  // namespace tarrowin::vba
