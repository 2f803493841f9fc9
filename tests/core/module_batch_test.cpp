// ConvertModules from the list to the files, the boxes and the state that it leaves.
#include "core/module_batch.h"

#include <gtest/gtest.h>

#include "core/statement.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

constexpr std::string_view kTime = "Conversion completed in: 00:00 seconds.";

Json module(std::string_view name, std::string_view text, int type = 0) {
  return {{"name", name}, {"type", type}, {"text", text}};
}

Json databaseOf(const std::vector<Json>& modules) {
  Json database = emptyDatabase();
  for (const Json& entry : modules) database["modules"].push_back(entry);
  return database;
}

std::string directoryOf(const TestSession& session) { return session.out().string() + "/"; }

Box information(const std::string& text) { return {64, text, "Access to Visual Basic Tarrowin"}; }

bool isOpen(TestSession& session, std::string_view name) {
  return ignoringErrors([&] { session.main.state.gappAccess.Modules(name).Type(); });
}

TEST(ModuleBatch, OneModule) {
  TestSession session;
  session.open(databaseOf({module("My Tools", "Option Compare Database\r\nSub A()\r\nEnd Sub\r\n"),
                           module("Other", "x = 1\r\n")}));
  session.select(ObjectList::kModules, {"My Tools"});
  ConvertModules(session.main, false);
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"My_Tools.bas"});
  EXPECT_EQ(fileContent(session.out() / "My_Tools.bas"), "Sub A()\r\nEnd Sub\r\n\r\n");
  EXPECT_EQ(session.onlyBox(),
            information("Successfully converted Access Module: My Tools to Visual Basic Module: "
                        "My_Tools.bas.\r\n\r\nConverted Module is saved in directory: " +
                        directoryOf(session) + "\r\n\r\n" + std::string(kTime)));
  EXPECT_EQ(session.main.lastBatch.selected, 1);
  EXPECT_EQ(session.main.lastBatch.converted, 1);
}

TEST(ModuleBatch, SeveralModulesAndClassModules) {
  TestSession session;
  session.open(databaseOf({module("A", "x = 1\r\n"), module("B", "y = 1\r\n", 1),
                           module("C", "z = 1\r\n"), module("D", "Me.x = 1\r\n", 2)}));
  session.main.state.mstrVbClasses.append("Earlier.cls");
  ConvertModules(session.main, true);
  EXPECT_EQ(fileNames(session.out()),
            (std::vector<std::string>{"A.bas", "B.cls", "C.bas", "D.cls"}));
  const auto classes = session.main.state.mstrVbClasses.entries();
  EXPECT_EQ(std::vector<std::string>(classes.begin(), classes.end()),
            (std::vector<std::string>{"B.cls", "D.cls"}));
  EXPECT_EQ(session.onlyBox(),
            information("Successfully converted 4 Access Modules to Visual Basic Modules. "
                        "\r\n\r\nConverted Modules are saved in directory: " +
                        directoryOf(session) + "\r\n\r\n" + std::string(kTime)));
}

TEST(ModuleBatch, AModuleThatAMacroBecame) {
  TestSession session;
  session.open(databaseOf({module("Converted Macro- Open Orders", "x = 1\r\n")}));
  ConvertModules(session.main, true);
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"Macro_Open_Orders.bas"});
}

TEST(ModuleBatch, AModuleWithoutLinesIsNotConverted) {
  TestSession session;
  session.open(databaseOf({module("Empty", "")}));
  ConvertModules(session.main, true);
  EXPECT_TRUE(fileNames(session.out()).empty());
  EXPECT_EQ(session.onlyBox(),
            information("Unable to convert Access Modules to Visual Basic Modules.\r\n\r\n"));
  EXPECT_FALSE(session.main.state.mblnModuleConverted);
}

TEST(ModuleBatch, ConvertedOnceStaysConvertedInLaterBatches) {
  TestSession session;
  session.open(databaseOf({module("A", "x = 1\r\n"), module("Empty", "")}));
  EXPECT_FALSE(session.main.state.mblnModuleConverted);
  session.select(ObjectList::kModules, {"A"});
  ConvertModules(session.main, false);
  EXPECT_TRUE(session.main.state.mblnModuleConverted);
  session.select(ObjectList::kModules, {"Empty"});
  ConvertModules(session.main, false);
  EXPECT_TRUE(session.main.state.mblnModuleConverted);
}

TEST(ModuleBatch, TheNameInTheSummaryIsThatOfTheLastSelected) {
  TestSession session;
  session.open(databaseOf({module("A", "x = 1\r\n"), module("Empty", ""), module("Z", "x")}));
  session.select(ObjectList::kModules, {"A", "Empty"});
  ConvertModules(session.main, false);
  EXPECT_EQ(session.onlyBox().text.substr(0, 90),
            std::string("Successfully converted Access Module: Empty to Visual Basic Module: "
                        "Empty.bas.\r\n\r\nConverted Module")
                .substr(0, 90));
}

TEST(ModuleBatch, OnlyTheModuleOfTheLastItemIsClosedSelectedOrNot) {
  TestSession session;
  session.open(
      databaseOf({module("A", "x = 1\r\n"), module("B", "x = 1\r\n"), module("C", "x = 1\r\n")}));
  session.main.state.gappAccess.doCmd().OpenModule("C");
  session.select(ObjectList::kModules, {"A", "B"});
  ConvertModules(session.main, false);
  EXPECT_TRUE(isOpen(session, "A"));
  EXPECT_TRUE(isOpen(session, "B"));
  EXPECT_FALSE(isOpen(session, "C"));
  ConvertModules(session.main, true);
  EXPECT_TRUE(isOpen(session, "A"));
  EXPECT_FALSE(isOpen(session, "C"));
}

TEST(ModuleBatch, NoPermissionIsToldAndTheBatchGoesOn) {
  TestSession session;
  Json refused = module("Secret", "x = 1\r\n");
  refused["openError"] = 2601;
  session.open(databaseOf({module("A", "x = 1\r\n"), refused, module("B", "x = 1\r\n")}));
  ConvertModules(session.main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0], information("You don't have permission to open Module Secret."));
  EXPECT_EQ(session.user.boxes[1].text.substr(0, 40), "Successfully converted 2 Access Modules ");
  EXPECT_EQ(fileNames(session.out()), (std::vector<std::string>{"A.bas", "B.bas"}));
}

TEST(ModuleBatch, Number7961IsSkippedSilently) {
  TestSession session;
  Json refused = module("Gone", "x = 1\r\n");
  refused["openError"] = 7961;
  session.open(databaseOf({refused}));
  ConvertModules(session.main, true);
  EXPECT_EQ(session.onlyBox().text,
            "Unable to convert Access Modules to Visual Basic Modules.\r\n\r\n");
  EXPECT_EQ(session.main.state.mstrModName, "");
}

TEST(ModuleBatch, TheBusyServerIsSilentAndTheModuleIsTriedAllTheSame) {
  TestSession session;
  Json busy = module("Busy", "x = 1\r\n");
  busy["openError"] = -2147417851;
  session.open(databaseOf({busy}));
  ConvertModules(session.main, true);
  // It is not open, so neither its type nor its lines can be read: the naming tells so.
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0].text.substr(0, 29), "SetupModNames() - Error #7961");
  EXPECT_EQ(session.main.state.mstrModName, "Busy");
  EXPECT_TRUE(fileNames(session.out()).empty());
}

TEST(ModuleBatch, AnyOtherNumberIsReportedAndTheBatchGoesOn) {
  TestSession session;
  Json broken = module("Broken", "x = 1\r\n");
  broken["openError"] = {{"error", 2501}, {"description", "Cancelled."}};
  session.open(databaseOf({broken, module("B", "x = 1\r\n")}));
  ConvertModules(session.main, true);
  ASSERT_EQ(session.user.boxes.size(), 3u);
  EXPECT_EQ(session.user.boxes[0], (Box{16, "ConvertModules() - Error #2501\r\nCancelled.",
                                        "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(fileNames(session.out()), std::vector<std::string>{"B.bas"});
}

TEST(ModuleBatch, ARefusedExportIsReportedAndTheModuleCounts) {
  TestSession session;
  Json refused = module("A", "x = 1\r\n");
  refused["exportError"] = {{"error", 2302}, {"description", "Not saved."}};
  session.open(databaseOf({refused}));
  ConvertModules(session.main, true);
  ASSERT_EQ(session.user.boxes.size(), 2u);
  EXPECT_EQ(session.user.boxes[0], (Box{16, "GetAccModuleCode(A) - Error #2302 Not saved.",
                                        "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(session.main.lastBatch.converted, 1);
  EXPECT_EQ(fileContent(session.out() / "A.bas"), "");
}

TEST(ModuleBatch, NothingSelectedIsSaidBeforeTheDirectoryIsLookedAt) {
  TestSession session;
  session.open(databaseOf({module("A", "x = 1\r\n")}));
  session.main.window.txtCurDir = "";
  ConvertModules(session.main, false);
  EXPECT_EQ(session.onlyBox(),
            information("Please select a Module to convert from the displayed list first."));
}

TEST(ModuleBatch, ConvertAllOnAnEmptyListAsksForTheDirectoryFirst) {
  TestSession session;
  session.open(emptyDatabase());
  session.main.window.txtCurDir = "";
  ConvertModules(session.main, true);
  EXPECT_EQ(session.onlyBox().text, "Please specify an output directory for converted Forms.");
  ConvertModules(session.main, true);
  EXPECT_EQ(session.onlyBox().text, "There are no Modules to convert.");
}

TEST(ModuleBatch, TheLabelLagsOneSelectedItemBehindAndTheFocusComesBack) {
  TestSession session;
  session.open(databaseOf({module("A", "x"), module("B", "x"), module("C", "x")}));
  session.main.window.focus = "txtCurDir";
  ConvertModules(session.main, true);
  EXPECT_EQ(session.user.progressLabels,
            (std::vector<std::string>{"Module: ", "Module: A", "Module: B"}));
  EXPECT_EQ(session.main.window.focus, "frmTarrowin");
  const ProgressBar& bar = session.main.window.ProgressBar1[4];
  EXPECT_EQ(bar.max, 3);
  EXPECT_EQ(bar.value, bar.min);
  EXPECT_FALSE(bar.visible);
  EXPECT_TRUE(session.main.window.lblPct.visible);
  EXPECT_EQ(session.main.window.lblPct.caption, "");
  EXPECT_EQ(session.main.window.mousePointer, 0);
}

}  // namespace
}  // namespace tarrowin::test
