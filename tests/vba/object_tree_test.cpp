// Names and settings of objects, out of trees made by hand.
#include "access/vba/object_tree.h"

#include <gtest/gtest.h>

#include "mdb/file_builder.h"
#include "vba/expect_damage.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using mdb::join;
using mdb::le32;
using mdb::utf16;

const std::string kNames =
    "\x03"
    "DirData";

Bytes nameEntry(std::u16string_view name, std::uint32_t folder) {
  const Bytes text = utf16(name);
  return join({Bytes{4, static_cast<std::uint8_t>(text.size() + 4)}, text, le32(folder)});
}

Bytes setting(std::uint32_t id, std::uint32_t value) {
  return join({Bytes{2}, le32(id), le32(value)});
}

// Forms "ABC" in folder 7 and "Bestellung" in folder 12.
struct Forms {
  MemoryTree tree = emptyTree();
  StreamStore::Node forms = tree.store.addFolder(StreamStore::kRoot, "Forms");
  StreamStore::Node abc = tree.store.addFolder(forms, "7");
  StreamStore::Node order = tree.store.addFolder(forms, "12");

  ObjectTree open(Bytes names) {
    addStream(tree, forms, kNames, std::move(names));
    return ObjectTree(std::move(tree.store));
  }
};

Bytes bothNames() {
  return join({le32(0), nameEntry(u"ABC", 7), nameEntry(u"Bestellung ä/1", 12)});
}

TEST(ObjectTree, NamesLeadToFolders) {
  Forms forms;
  addStream(forms.tree, forms.order, "Blob", bytesOf("design"));
  const ObjectTree tree = forms.open(bothNames());
  ASSERT_EQ(tree.objects(Container::kForms).size(), 2u);
  EXPECT_EQ(tree.objects(Container::kForms)[0].name, "ABC");
  const StoredObject* order = tree.find(Container::kForms, "bestellung Ä/1");
  ASSERT_NE(order, nullptr);
  EXPECT_EQ(order->name, "Bestellung ä/1");
  EXPECT_EQ(tree.stream(*order, "Blob"), bytesOf("design"));
  EXPECT_EQ(tree.stream(*order, "TypeInfo"), std::nullopt);
  EXPECT_EQ(tree.find(Container::kForms, "Other"), nullptr);
  EXPECT_EQ(tree.find(Container::kReports, "ABC"), nullptr);
}

TEST(ObjectTree, ExactNameComesBeforeOneInOtherLetters) {
  Forms forms;
  const ObjectTree tree = forms.open(join({le32(0), nameEntry(u"abc", 12), nameEntry(u"ABC", 7)}));
  EXPECT_EQ(tree.find(Container::kForms, "ABC")->folder, forms.abc);
}

TEST(ObjectTree, BackupOfTheNamesIsNotRead) {
  Forms forms;
  addStream(forms.tree, forms.forms, kNames + "Copy", nameEntry(u"Old", 7));
  const ObjectTree tree = forms.open(join({le32(0), nameEntry(u"New", 7)}));
  EXPECT_EQ(tree.find(Container::kForms, "Old"), nullptr);
  EXPECT_NE(tree.find(Container::kForms, "New"), nullptr);
}

TEST(ObjectTree, NameWithoutItsFolderIsLeftOut) {
  Forms forms;
  const ObjectTree tree = forms.open(join({le32(0), nameEntry(u"Gone", 8)}));
  EXPECT_TRUE(tree.objects(Container::kForms).empty());
}

TEST(ObjectTree, HasModuleByItsSetting) {
  Forms forms;
  addStream(forms.tree, forms.abc, "PropData", join({le32(0), setting(0, 8), setting(1, 1)}));
  addStream(forms.tree, forms.order, "PropData", join({le32(0), setting(1, 0)}));
  const ObjectTree tree = forms.open(bothNames());
  EXPECT_TRUE(tree.hasModule(Container::kForms, "ABC"));
  EXPECT_FALSE(tree.hasModule(Container::kForms, "Bestellung ä/1"));
  EXPECT_FALSE(tree.hasModule(Container::kForms, "Other"));
}

TEST(ObjectTree, WithoutTheSettingThereIsNoModule) {
  Forms forms;
  addStream(forms.tree, forms.abc, "PropData", le32(0));
  const ObjectTree tree = forms.open(bothNames());
  EXPECT_FALSE(tree.hasModule(Container::kForms, "ABC"));
  EXPECT_FALSE(tree.hasModule(Container::kForms, "Bestellung ä/1"));
}

// Behind an entry of another kind nothing is known of the lengths.
TEST(ObjectTree, SettingsEndAtAnEntryOfAnotherKind) {
  Forms forms;
  addStream(forms.tree, forms.abc, "PropData", join({le32(0), Bytes{5, 3, 1, 'x'}, setting(1, 1)}));
  EXPECT_FALSE(forms.open(bothNames()).hasModule(Container::kForms, "ABC"));
}

TEST(ObjectTree, SettingCutShortIsDamage) {
  Forms forms;
  Bytes settings = join({le32(0), setting(1, 1)});
  settings.pop_back();
  addStream(forms.tree, forms.abc, "PropData", settings);
  const ObjectTree tree = forms.open(bothNames());
  EXPECT_NE(damageOf([&] { tree.hasModule(Container::kForms, "ABC"); }), "");
}

TEST(ObjectTree, NamesCutShortAreDamage) {
  Bytes names = bothNames();
  names.pop_back();
  Forms forms;
  const ObjectTree tree = forms.open(names);
  EXPECT_NE(damageOf([&] { tree.objects(Container::kForms); }), "");
  EXPECT_TRUE(tree.objects(Container::kReports).empty());
}

TEST(ObjectTree, NameOfAnImpossibleLengthIsDamage) {
  Forms forms;
  const ObjectTree tree = forms.open(join({le32(0), Bytes{4, 3, 0, 0, 0}}));
  EXPECT_EQ(damageOf([&] { tree.objects(Container::kForms); }),
            "the list of object names has an entry that is too short");
}

TEST(ObjectTree, UnknownEntryAmongTheNamesIsDamage) {
  Forms forms;
  const ObjectTree tree = forms.open(join({le32(0), Bytes{9, 4, 0, 0, 0, 0}}));
  EXPECT_EQ(damageOf([&] { tree.objects(Container::kForms); }),
            "the list of object names has an unknown entry");
}

TEST(ObjectTree, EmptyListOfNames) {
  Forms forms;
  EXPECT_TRUE(forms.open({}).objects(Container::kForms).empty());
}

TEST(ObjectTree, ContainerThatNeverHadAnObjectHasNoList) {
  Forms forms;
  const ObjectTree tree(std::move(forms.tree.store));
  EXPECT_TRUE(tree.objects(Container::kForms).empty());
}

TEST(StreamStore, FindsFromTheRoot) {
  MemoryTree tree = emptyTree();
  const auto folder = tree.store.addFolder(StreamStore::kRoot, "VBA");
  const auto stream = addStream(tree, folder, "dir", bytesOf("x"));
  EXPECT_EQ(tree.store.find({"vba", "DIR"}), stream);
  EXPECT_EQ(tree.store.find({"VBA", "other"}), std::nullopt);
  EXPECT_EQ(tree.store.find({"VBA", "dir", "inside"}), std::nullopt);
  EXPECT_EQ(tree.store.find({}), StreamStore::kRoot);
  EXPECT_EQ(tree.store.read(stream), bytesOf("x"));
  EXPECT_TRUE(tree.store.read(folder).empty());
}

}  // namespace
}  // namespace tarrowin::vba
