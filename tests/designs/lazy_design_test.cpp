// Designs that are decoded when they are opened, and those that cannot be.
#include "access/designs/lazy_design.h"

#include <memory>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "access/model/application_object.h"
#include "access/model/design_objects.h"
#include "access/model/new_form.h"
#include "designs/stored_builder.h"

namespace tarrowin {
namespace {

class LazyDesignTest : public testing::Test {
 protected:
  void addForm(const std::string& name, std::function<StoredDesign()> read) {
    auto& database = session_->tree();
    database.forms.add(lazyDesign(database, name, DesignKind::kForm, std::move(read)));
  }
  std::shared_ptr<OpenDesign> open(std::string_view name) {
    const DatabaseModel& database = session_->model();
    return std::make_shared<OpenDesign>(*database.forms.find(name, database.folding), false);
  }
  Value read(const std::shared_ptr<OpenDesign>& design, std::string_view member) {
    return makeDesign(session_, design)->get(member);
  }
  VbError errorOfOpening(std::string_view name) {
    try {
      open(name);
    } catch (const VbError& error) {
      return error;
    }
    return VbError(0, "(no error)");
  }

  std::shared_ptr<Session> session_ =
      std::make_shared<Session>(std::make_unique<DatabaseModel>(CodePage()));
};

TEST_F(LazyDesignTest, IsReadOnceAndOnlyWhenOpened) {
  int reads = 0;
  addForm("frmA", [&reads] {
    ++reads;
    return formWith({named("TextBox", "txtA")});
  });
  EXPECT_EQ(session_->model().forms[0].name, "frmA");
  EXPECT_EQ(reads, 0);
  const auto held = open("frmA");
  EXPECT_EQ(read(held, "Name"), Value("frmA"));
  EXPECT_EQ(read(open("FRMA"), "Width"), Value(7200));
  EXPECT_EQ(reads, 1);
}

TEST_F(LazyDesignTest, IsForgottenWhenNobodyHasItOpen) {
  int reads = 0;
  addForm("frmA", [&reads] {
    ++reads;
    return formWith({named("TextBox", "txtA")});
  });
  EXPECT_EQ(read(open("frmA"), "Width"), Value(7200));
  EXPECT_EQ(read(open("frmA"), "Width"), Value(7200));
  EXPECT_EQ(reads, 2);
}

TEST_F(LazyDesignTest, ChangesAreGoneWithTheOneWhoMadeThem) {
  addForm("frmA", [] { return formWith({named("TextBox", "txtA")}); });
  const auto changed = open("frmA");
  const auto other = open("frmA");
  makeDesign(session_, changed)->put("Width", Value(100));
  EXPECT_EQ(read(changed, "Width"), Value(100));
  EXPECT_EQ(read(other, "Width"), Value(7200));
  EXPECT_EQ(read(open("frmA"), "Width"), Value(7200));
}

TEST_F(LazyDesignTest, AFailingReaderRefusesThisOneObject) {
  addForm("frmBad", []() -> StoredDesign { throw VbError(3049, "It is cut short."); });
  addForm("frmGood", [] { return formWith({}); });
  const VbError error = errorOfOpening("frmBad");
  EXPECT_EQ(error.number(), 2601);
  EXPECT_EQ(error.description(), "Microsoft Access can't open the form 'frmBad'. It is cut short.");
  EXPECT_EQ(errorOfOpening("frmBad").number(), 2601);
  EXPECT_EQ(errorOfOpening("frmGood").number(), 0);
}

TEST_F(LazyDesignTest, OtherExceptionsAreReasonsToo) {
  addForm("frmUtf8", []() -> StoredDesign { throw std::runtime_error("Caf\xC3\xA9."); });
  addForm("frmBig", []() -> StoredDesign { throw std::bad_alloc(); });
  EXPECT_EQ(errorOfOpening("frmUtf8").description(),
            "Microsoft Access can't open the form 'frmUtf8'. Caf\xE9.");
  EXPECT_EQ(errorOfOpening("frmBig").description(),
            "Microsoft Access can't open the form 'frmBig'. There is not enough memory.");
}

TEST_F(LazyDesignTest, AReportUnderAFormsNameIsRefused) {
  addForm("frmReport", [] {
    StoredDesign stored;
    stored.root = block("Report");
    return stored;
  });
  EXPECT_EQ(errorOfOpening("frmReport").description(),
            "Microsoft Access can't open the form 'frmReport'. Its design is not that of a form.");
}

TEST_F(LazyDesignTest, ASubformThatCannotBeReadIsNotThere) {
  addForm("frmMain", [] {
    return formWith({named("Subform", "good", {kept("SourceObject", "Form.frmGood")}),
                     named("Subform", "bad", {kept("SourceObject", "Form.frmBad")})});
  });
  addForm("frmGood", [] { return formWith({named("Label", "inside")}); });
  addForm("frmBad", []() -> StoredDesign { throw VbError(2601, "No."); });
  const auto form = open("frmMain");
  const ObjectRef good = makeControl(session_, form, 0), bad = makeControl(session_, form, 1);
  EXPECT_EQ(toObject(good->get("Form"))->get("Name"), Value("frmGood"));
  const Reading reading = bad->tryGet("Form");
  ASSERT_TRUE(reading.error);
  EXPECT_EQ(reading.error->number(), 2467);
}

TEST_F(LazyDesignTest, ServesAsTemplateOfANewForm) {
  addForm("frmOld", [] {
    StoredDesign stored = formWith({named("Label", "l")});
    stored.root.properties = {kept("Caption", "Orders")};
    return stored;
  });
  const std::shared_ptr<OpenDesign> created = createForm(*session_, "frmOld");
  EXPECT_EQ(read(created, "Caption"), Value("Orders"));
  EXPECT_EQ(read(created, "Name"), Value("Form1"));
  EXPECT_EQ(toLong(read(created, "Count")), 0);
}

TEST_F(LazyDesignTest, ChangesStayInTheOpenDesign) {
  addForm("frmA", [] { return formWith({}); });
  const auto changed = open("frmA");
  makeDesign(session_, changed)->put("Caption", Value("New"));
  EXPECT_EQ(read(changed, "Caption"), Value("New"));
  EXPECT_EQ(read(open("frmA"), "Caption"), Value(""));
}

TEST_F(LazyDesignTest, TheReasonIsLeftOutWhereThereIsNone) {
  EXPECT_EQ(*cannotOpenDesign(DesignKind::kReport, "rptA").description,
            "Microsoft Access can't open the report 'rptA'.");
}

}  // namespace
}  // namespace tarrowin
