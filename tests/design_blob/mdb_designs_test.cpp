// Forms and reports of databases opened as the program opens them.
#include <gtest/gtest.h>

#include "access/model/mdb_model.h"
#include "design_blob/example_design.h"
#include "mdb/file_builder.h"
#include "mdb/sample_files.h"
#include "shared/vb_error.h"

namespace tarrowin {
namespace {

using mdb::Cell;
using mdb::join;
using mdb::le32;

constexpr int kFormObject = -32768, kReportObject = -32764;  // of the catalog
constexpr std::uint32_t kSystem = 0x80000000u;

// A database of Access 2002 with the forms Good, Bad and Empty and the report Good.
class BuiltDatabase {
 public:
  explicit BuiltDatabase(bool hasRoot = true) {
    builder_.addObject(100, "Good", kFormObject);
    builder_.addObject(101, "Bad", kFormObject);
    builder_.addObject(102, "Empty", kFormObject);
    builder_.addObject(103, "Good", kReportObject);
    if (hasRoot) add(1, 1, "MSysAccessStorage_ROOT");
    add(2, 1, "Forms");
    add(3, 2,
        "\x03"
        "DirData",
        join({le32(0), entry(u"Bad", 8), entry(u"Good", 7), entry(u"Empty", 9)}));
    add(4, 2, "7");
    add(5, 4, "Blob", designBlob(20, exampleForm()));
    add(6, 2, "8");
    add(7, 6, "Blob", join({designBlob(20, exampleForm()), Bytes{0}}));
    add(8, 2, "9");
    add(9, 1, "Reports");
    add(10, 9,
        "\x03"
        "DirData",
        join({le32(0), entry(u"Good", 1)}));
    add(11, 9, "1");
    // A form where a report should be.
    add(12, 11, "Blob", designBlob(19, exampleForm()));
    builder_.addTable(
        "MSysAccessStorage",
        {{"Id", 4, 4}, {"ParentId", 4, 4}, {"Type", 4, 4}, {"Name", 10, 128}, {"Lv", 11}}, rows_,
        kSystem);
  }

  std::unique_ptr<DatabaseModel> open() {
    return makeMdbModel(mdb::Database::fromBytes(builder_.build(), "built.mdb"), CodePage());
  }

 private:
  static Bytes entry(std::u16string_view name, std::uint32_t folder) {
    const Bytes text = mdb::utf16(name);
    return join({Bytes{4, static_cast<std::uint8_t>(text.size() + 4)}, text, le32(folder)});
  }
  // A folder, or a stream with bytes.
  void add(std::uint32_t id, std::uint32_t parent, const std::string& name, Cell bytes = {}) {
    const std::uint32_t type = bytes ? 2 : 1;
    if (bytes) bytes = builder_.longInRow(*bytes);
    rows_.push_back({le32(id), le32(parent), le32(type), builder_.text(name), bytes});
  }

  mdb::FileBuilder builder_{false};
  std::vector<std::vector<Cell>> rows_;
};

const DesignModel& find(const NamedList<DesignModel>& list, const std::string& name) {
  const DesignModel* const found = list.find(name, CaseFolding(CodePage()));
  if (found == nullptr) throw std::logic_error("no such object");
  return *found;
}

std::string openErrorOf(const DesignModel& design) {
  try {
    design.body.get();
  } catch (const VbError& error) {
    return std::to_string(error.number()) + " " + error.description();
  }
  return "";
}

TEST(MdbDesigns, FormIsReadWhenItIsOpened) {
  const auto model = BuiltDatabase().open();
  const auto held = find(model->forms, "Good").body.get();
  const DesignBody& form = *held;
  ASSERT_EQ(form.controls.size(), 2u);
  EXPECT_EQ(form.controls[0].name, "A");
  EXPECT_EQ(form.controls[1].name, "L");
  EXPECT_EQ(form.controls[1].parent, 0u);
  ASSERT_TRUE(form.understood);
  EXPECT_EQ(form.understood->propertiesKnown, 15u);
}

TEST(MdbDesigns, DesignThatCannotBeReadIsAnErrorOfItsObjectAlone) {
  const auto model = BuiltDatabase().open();
  EXPECT_EQ(openErrorOf(find(model->forms, "Bad")),
            "2601 Microsoft Access can't open the form 'Bad'. Its design cannot be read: bytes are "
            "left over behind the end of the design.");
  EXPECT_EQ(
      openErrorOf(find(model->forms, "Empty")),
      "2601 Microsoft Access can't open the form 'Empty'. Its design cannot be read: the file "
      "does not hold it.");
  EXPECT_EQ(openErrorOf(find(model->forms, "Good")), "");
}

TEST(MdbDesigns, FormWhereAReportShouldBeIsRefused) {
  const auto model = BuiltDatabase().open();
  EXPECT_TRUE(openErrorOf(find(model->reports, "Good")).starts_with("2601 "));
}

// Nothing is read from where the designs are until one of them is opened.
TEST(MdbDesigns, ListingNeedsNoDesigns) {
  const auto model = BuiltDatabase(false).open();
  EXPECT_EQ(model->forms.size(), 3u);
  EXPECT_EQ(model->reports.size(), 1u);
  EXPECT_EQ(
      openErrorOf(find(model->forms, "Good")),
      "2601 Microsoft Access can't open the form 'Good'. Its design cannot be read: the table "
      "MSysAccessStorage has no root.");
}

TEST(MdbDesigns, EveryFormAndReportOfTheSamples) {
  if (mdb::sampleDatabases().empty()) GTEST_SKIP() << "no sample databases here";
  std::size_t designs = 0;
  for (const auto& path : mdb::sampleDatabases()) {
    SCOPED_TRACE(path);
    const auto model = makeMdbModel(mdb::Database::open(path.string()), CodePage());
    for (const auto* list : {&model->forms, &model->reports})
      for (const DesignModel& design : *list) {
        SCOPED_TRACE(design.name);
        const auto held = design.body.get();
        const DesignBody& body = *held;
        ++designs;
        ASSERT_TRUE(body.understood);
        EXPECT_EQ(body.controls.size(), body.understood->controls);
        EXPECT_FALSE(body.sections.empty());
      }
  }
  EXPECT_EQ(designs, 42u);
}

}  // namespace
}  // namespace tarrowin
