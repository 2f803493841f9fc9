// File names of forms, designers and modules.
#include "core/output_naming.h"

#include <gtest/gtest.h>

#include "shared/text_procedures.h"
#include "support/test_session.h"

namespace tarrowin::test {
namespace {

class OutputNaming : public testing::Test {
 protected:
  OutputNaming() { session.main.state.mstrOutputDir = session.out().string() + "/"; }

  void openModules(const std::vector<std::pair<std::string, int>>& modules) {
    Json database = emptyDatabase();
    for (const auto& [name, type] : modules) {
      database["modules"].push_back(
          {{"name", name}, {"type", type}, {"text", "Option Explicit\r\n"}});
    }
    session.open(database);
    for (const auto& [name, type] : modules) session.main.state.gappAccess.doCmd().OpenModule(name);
  }

  TestSession session;
  ConversionState& state = session.main.state;
};

TEST_F(OutputNaming, AFormsFileStandsOpenForAppend) {
  writeFile(session.out() / "Order_Form.frm", "old");
  state.intDataCtlNum = 3;
  state.intAdoCtlNum = 4;
  SetupFormNames(session.main, " Order Form ");
  EXPECT_EQ(state.mstrObjName, "Order Form");
  EXPECT_EQ(state.mstrBaseName, "Order_Form");
  EXPECT_EQ(state.mstrFormFile, "Order_Form.frm");
  EXPECT_EQ(state.gstrFormFile, "Order_Form.frm");
  EXPECT_EQ(state.intDataCtlNum, 0);
  EXPECT_EQ(state.intAdoCtlNum, 0);
  ASSERT_TRUE(session.files.IsOpen(kOutputFile));
  session.files.Print(kOutputFile, "new");
  session.files.Close(kOutputFile);
  EXPECT_EQ(fileContent(session.out() / "Order_Form.frm"), "new\r\n");
}

TEST_F(OutputNaming, ModesChooseTheExtension) {
  state.mblnReportMode = true;
  SetupFormNames(session.main, "Sales");
  session.files.Close(kOutputFile);
  EXPECT_EQ(state.gstrFormFile, "Sales.dsr");
  SetupDesignerName(session.main, "Sales");
  session.files.Close(kOutputFile);
  EXPECT_EQ(state.gstrFormFile, "Sales.dsr");
  state.mblnUserControl = true;
  SetupFormNames(session.main, "Sales");
  session.files.Close(kOutputFile);
  EXPECT_EQ(state.mstrFormFile, "Sales.ctl");
  EXPECT_EQ(fileNames(session.out()),
            (std::vector<std::string>{"Sales.dsr", "ctlSales.ctl", "deSales.dsr"}));
}

TEST_F(OutputNaming, ATakenSlotIsReportedUnderTheProceduresName) {
  SetupFormNames(session.main, "A");
  SetupFormNames(session.main, "B");
  EXPECT_EQ(session.onlyBox().text, "SetupFormNames() - Error #55\r\nFile already open");
  EXPECT_EQ(state.gstrFormFile, "B.frm");
  SetupDesignerName(session.main, "C");
  EXPECT_EQ(session.onlyBox().text, "SetupDesignerName() - Error #55\r\nFile already open");
}

TEST_F(OutputNaming, ModulesAreStandardOrClass) {
  openModules({{"Utilities", 0}, {"Stack Of Things", 1}});
  state.mstrOutputDir = session.out().string() + "/";
  writeFile(session.out() / "Utilities.bas", "old");
  state.intAdoCtlNum = 7;
  SetupModNames(session.main, "Utilities");
  EXPECT_EQ(state.gstrModuleFile, "Utilities.bas");
  EXPECT_EQ(state.mstrVbClasses.count(), 0);
  EXPECT_EQ(state.intAdoCtlNum, 7);
  EXPECT_TRUE(fileNames(session.out()).empty());
  SetupModNames(session.main, "Stack Of Things");
  EXPECT_EQ(state.mstrModFile, "Stack_Of_Things.cls");
  ASSERT_EQ(state.mstrVbClasses.count(), 1);
  EXPECT_EQ(state.mstrVbClasses[1], "Stack_Of_Things.cls");
  EXPECT_FALSE(session.files.IsOpen(kOutputFile));
}

TEST_F(OutputNaming, AModuleThatWasAMacroKeepsTheMacrosName) {
  const std::string longName = "Converted Macro- " + std::string(40, 'b');
  openModules({{"Converted Macro- Open Orders", 0}, {longName, 0}});
  SetupModNames(session.main, "Converted Macro- Open Orders");
  EXPECT_EQ(state.gstrModuleFile, "Macro_Open_Orders.bas");
  // The limit of 40 characters counts "Macro_".
  SetupModNames(session.main, longName);
  EXPECT_EQ(state.gstrModuleFile, "Macro_" + std::string(34, 'b') + ".bas");
}

TEST_F(OutputNaming, TheMacroTextInTheMiddleOfANameCutsAtCharacter18AllTheSame) {
  openModules({{"Old Converted Macro- Open", 0}});
  SetupModNames(session.main, "Old Converted Macro- Open");
  EXPECT_EQ(state.gstrModuleFile, "Macro_ro__Open.bas");
}

TEST_F(OutputNaming, AModuleThatIsNotOpenIsReported) {
  openModules({});
  SetupModNames(session.main, "Gone");
  EXPECT_EQ(session.onlyBox().text.substr(0, 31), "SetupModNames() - Error #7961\r\n");
}

TEST_F(OutputNaming, ANameOf41CharactersLosesItsTailBeforeAnyReplacement) {
  SetupFormNames(session.main, std::string(39, 'a') + "  tail");
  EXPECT_EQ(state.mstrBaseName, std::string(39, 'a') + "_");
}

}  // namespace
}  // namespace tarrowin::test
