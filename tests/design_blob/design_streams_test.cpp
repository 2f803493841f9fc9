// Finding designs in trees of streams made by hand.
#include "access/design_blob/design_streams.h"

#include <gtest/gtest.h>

#include "design_blob/example_design.h"
#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin {
namespace {

using mdb::join;
using mdb::le32;
using vba::Container;
using vba::StreamStore;

const CodePage kUtf8(CodePage::kUtf8);
const std::string kNames =
    "\x03"
    "DirData";

Bytes nameEntry(std::u16string_view name, std::uint32_t folder) {
  const Bytes text = mdb::utf16(name);
  return join({Bytes{4, static_cast<std::uint8_t>(text.size() + 4)}, text, le32(folder)});
}

Bytes settings(std::uint32_t hasModule) {
  return join({le32(0), Bytes{2}, le32(1), le32(hasModule)});
}

Lazy<CodePage> noAnsiPage() {
  return Lazy<CodePage>([]() -> CodePage { throw std::logic_error("nobody should ask for it"); });
}

// The tree of Access 2000 and later: form "Orders" in folder 7, report "Orders" in folder 3.
class NumberedFolders : public testing::Test {
 protected:
  NumberedFolders() {
    vba::addStream(tree_, forms_, kNames, join({le32(0), nameEntry(u"Orders", 7)}));
    vba::addStream(tree_, reports_, kNames, join({le32(0), nameEntry(u"Orders", 3)}));
  }
  StoredDesign read(Container container, std::string_view name = "Orders",
                    Lazy<CodePage> ansi = noAnsiPage()) {
    const vba::ObjectTree objects(std::move(tree_.store));
    return readStoredDesign(objects, container, name, ansi, kUtf8);
  }

  vba::MemoryTree tree_ = vba::emptyTree();
  StreamStore::Node forms_ = tree_.store.addFolder(StreamStore::kRoot, "Forms");
  StreamStore::Node reports_ = tree_.store.addFolder(StreamStore::kRoot, "Reports");
  StreamStore::Node form_ = tree_.store.addFolder(forms_, "7");
  StreamStore::Node report_ = tree_.store.addFolder(reports_, "3");
};

TEST_F(NumberedFolders, DesignOfTheForm) {
  vba::addStream(tree_, form_, "Blob", designBlob(19, exampleForm()));
  vba::addStream(tree_, form_, "PropData", settings(1));
  vba::addStream(tree_, form_, "BlobDelta", designBlob(20, {150, {}, {}}));
  const StoredDesign design = read(Container::kForms, "orders");
  EXPECT_EQ(listing(design.root), kExampleListing);
  EXPECT_TRUE(design.hasModule);
}

TEST_F(NumberedFolders, DesignOfTheReport) {
  vba::addStream(tree_, form_, "Blob", designBlob(19, exampleForm()));
  vba::addStream(tree_, report_, "Blob", designBlob(20, {151, {}, {}}));
  const StoredDesign design = read(Container::kReports);
  EXPECT_EQ(listing(design.root), "Report\n");
  EXPECT_FALSE(design.hasModule);
}

TEST_F(NumberedFolders, OnlyDesignsOfAccess97AskForTheAnsiPage) {
  vba::addStream(tree_, form_, "Blob", designBlob(17, {150, {textValue(221, u"\u00C4")}, {}}));
  const StoredDesign design = read(Container::kForms, "Orders", Lazy<CodePage>(CodePage(1251)));
  EXPECT_EQ(listing(design.root), "Form Caption=\"Д\"\n");
}

TEST_F(NumberedFolders, ObjectWithoutADesign) {
  EXPECT_EQ(vba::damageOf([&] { read(Container::kForms); }), "the file does not hold it");
}

TEST_F(NumberedFolders, ObjectWithoutAFolder) {
  EXPECT_EQ(vba::damageOf([&] { read(Container::kForms, "Customers"); }),
            "the file does not hold it");
}

TEST_F(NumberedFolders, EmptyDesign) {
  vba::addStream(tree_, form_, "Blob", {});
  EXPECT_EQ(vba::damageOf([&] { read(Container::kForms); }), "the file does not hold it");
}

TEST_F(NumberedFolders, DamagedDesign) {
  Bytes blob = designBlob(19, exampleForm());
  blob.push_back(0);
  vba::addStream(tree_, form_, "Blob", blob);
  EXPECT_EQ(vba::damageOf([&] { read(Container::kForms); }),
            "bytes are left over behind the end of the design");
}

TEST(NamedFolders, DesignOfAccess97HasAModuleWhereItsCodeIs) {
  vba::MemoryTree tree = vba::emptyTree();
  tree.store.setNamedFolders();
  const auto forms = tree.store.addFolder(StreamStore::kRoot, "Forms");
  const Bytes blob = designBlob(17, exampleForm());
  vba::addStream(tree, tree.store.addFolder(forms, "A"), "Blob", blob);
  vba::addStream(tree, tree.store.addFolder(forms, "B"), "Blob", blob);
  const auto project =
      tree.store.addFolder(tree.store.addFolder(StreamStore::kRoot, "VBA"), "VBAProject");
  vba::addStream(tree, tree.store.addFolder(project, "Modules"), "Form_B", {});
  const vba::ObjectTree objects(std::move(tree.store));
  const Lazy<CodePage> ansi{CodePage()};
  EXPECT_FALSE(readStoredDesign(objects, Container::kForms, "A", ansi, kUtf8).hasModule);
  EXPECT_TRUE(readStoredDesign(objects, Container::kForms, "B", ansi, kUtf8).hasModule);
}

}  // namespace
}  // namespace tarrowin
