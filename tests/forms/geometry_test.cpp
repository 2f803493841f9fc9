// Left and Top of controls: the section stack, the containers, and what fails on the way.
#include <gtest/gtest.h>

#include "forms/control_geometry.h"
#include "forms/form_session.h"

namespace tarrowin::test {
namespace {

// One form, open in design view as frmCurr.
class Geometry : public ::testing::Test {
 protected:
  void open(const std::vector<Json>& controls) {
    Json database = emptyDatabase();
    database["forms"] =
        Json::array({{{"name", "F"}, {"properties", Json::object()}, {"controls", controls}}});
    session.open(database);
    session.clearBoxes();
    session.main.state.gappAccess.doCmd().OpenForm("F", access_constants::acDesign);
    form = session.main.state.gappAccess.Forms("F");
    session.main.state.strCtlName = "ctl";
  }

  LateBound controlNamed(const char* name) {
    return LateBound(toObject(form.get("Controls", {Value(name)})));
  }
  std::int64_t left(const char* name) { return GetControlLeft(session.main, controlNamed(name)); }
  std::int64_t top(const char* name) { return GetFormSection(session.main, controlNamed(name)); }

  void setHeights() {
    ConversionState& s = session.main.state;
    s.intHeaderHeight = 1;
    s.intPageHeaderHeight = 20;
    s.intDetailHeight = 300;
    s.intPageFooterHeight = 4000;
    s.intFooterHeight = 9000;
  }

  TestSession session;
  LateBound form;
};

TEST_F(Geometry, TheSectionsAreStacked) {
  open({control("header", 109, at(0, 7, 1)), control("pageHeader", 109, at(0, 7, 3)),
        control("detail", 109, at(0, 7, 0)), control("pageFooter", 109, at(0, 7, 4)),
        control("footer", 109, at(0, 7, 2)), control("elsewhere", 109, at(0, 7, 5))});
  setHeights();
  EXPECT_EQ(top("header"), 7);
  EXPECT_EQ(top("pageHeader"), 8);
  EXPECT_EQ(top("detail"), 28);
  EXPECT_EQ(top("pageFooter"), 328);
  EXPECT_EQ(top("footer"), 4328);
  EXPECT_EQ(top("elsewhere"), 0);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(Geometry, FramesAndTabsCarryTheStackAndASubformHasItsOwn) {
  open({control("footer", 109, at(0, 7, 2)), control("header", 109, at(0, 7, 1))});
  setHeights();
  ConversionState& s = session.main.state;
  s.intSubHeaderHeight = 500;
  s.intSubPageHeaderHeight = 60;
  s.intSubDetailHeight = 7;
  s.intSubPageFooterHeight = 1;
  s.blnInSubForm = true;
  EXPECT_EQ(top("footer"), 7 + 568 + 120);
  EXPECT_EQ(top("header"), 7);
  s.blnInTab = true;
  EXPECT_EQ(top("footer"), 7);
  s.blnInTab = false;
  s.blnInOptionGroup = true;
  EXPECT_EQ(top("footer"), 7);
}

TEST_F(Geometry, ALabelAttachedToAnOptionButtonAtTheTopOfItsGroup) {
  open({control("grp", 107, at(100, 500)), control("opt", 105, at(150, 500), "grp"),
        control("lbl", 100, at(200, 500), "opt"), control("lower", 100, at(50, 501), "opt")});
  session.main.state.blnInOptionGroup = true;
  EXPECT_EQ(top("lbl"), 0);
  EXPECT_EQ(top("lower"), 1 + 120);
  EXPECT_EQ(left("lbl"), 100);
  EXPECT_EQ(left("lower"), 0);
}

TEST_F(Geometry, ALabelAttachedToACheckBoxOnAPlainForm) {
  open({control("chk", 106, at(100, 500)), control("lbl", 100, at(200, 530), "chk")});
  EXPECT_EQ(top("lbl"), 530 + 40);
  EXPECT_EQ(left("lbl"), 200);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(Geometry, ControlsOnTheFirstAndTheSecondPageOfATab) {
  open({control("tab", 123, at(500, 600)), control("p1", 124, at(510, 900), "tab"),
        control("txt", 109, at(2000, 1000), "p1"), control("lbl", 100, at(1900, 1000), "txt")});
  session.main.state.blnInTab = true;
  EXPECT_EQ(left("txt"), 1500);
  EXPECT_EQ(top("txt"), 400);
  // An attached label hangs on the text box, its page is one link further up.
  EXPECT_EQ(left("lbl"), 1400);
  EXPECT_EQ(top("lbl"), 400);
  session.main.state.intTabPageNum = 1;
  EXPECT_EQ(left("txt"), -73500);
  EXPECT_EQ(left("lbl"), -73600);
  EXPECT_EQ(top("txt"), 400);
}

TEST_F(Geometry, MembersOfAGroupAndWhatElseStandsInIt) {
  open({control("grp", 107, at(100, 500)), control("tgl", 122, at(90, 700), "grp"),
        control("opt", 105, at(150, 500), "grp"), control("txt", 109, at(150, 700), "grp")});
  session.main.state.blnInOptionGroup = true;
  EXPECT_EQ(left("tgl"), 0);
  EXPECT_EQ(top("tgl"), 200 + 120);
  EXPECT_EQ(left("opt"), 50);
  EXPECT_EQ(top("opt"), 0);
  EXPECT_EQ(left("txt"), 150);
  EXPECT_EQ(top("txt"), 700);
}

TEST_F(Geometry, ButtonsAndSubformLabelsOnATabPage) {
  open({control("tab", 123, at(500, 600)), control("p1", 124, at(510, 900), "tab"),
        control("chk", 106, at(2000, 1000), "p1"), control("lbl", 100, at(2100, 1000), "chk"),
        control("sub", 112, at(2000, 1000), "p1"), control("cap", 100, at(2000, 800), "sub")});
  session.main.state.blnInTab = true;
  EXPECT_EQ(left("lbl"), 1600);
  EXPECT_EQ(top("lbl"), 400 + 120);
  EXPECT_EQ(left("cap"), 1500);
  EXPECT_EQ(top("cap"), 200);
}

TEST_F(Geometry, AParentBeyond16BitsGives32767) {
  open({control("tab", 123, at(40000, 40000)), control("p1", 124, at(1, 1), "tab"),
        control("txt", 109, at(2000, 1000), "p1"), control("grp", 107, at(40000, 40000)),
        control("opt", 105, at(41000, 41000), "grp")});
  EXPECT_EQ(left("txt"), 32767);
  EXPECT_EQ(top("txt"), 32767);
  EXPECT_EQ(left("opt"), 32767);
  EXPECT_EQ(top("opt"), 32767 + 120);
  EXPECT_TRUE(session.user.boxes.empty());
}

TEST_F(Geometry, AnOwnPositionThatCannotBeReadHasABoxAndCountsAsZero) {
  const Json gone = {{"error", 2186}}, refused = {{"error", 3000}, {"description", "Refused."}};
  open({control("tolerated", 109, at(gone, gone)), control("other", 109, at(refused, refused)),
        control("nothing", 109, at(nullptr, nullptr))});
  setHeights();
  EXPECT_EQ(left("tolerated"), 0);
  EXPECT_EQ(top("tolerated"), 0);
  EXPECT_TRUE(session.user.boxes.empty());
  EXPECT_EQ(left("other"), 0);
  EXPECT_EQ(session.onlyBox().text, "GetControlLeft(ctl) - Error #3000 Refused.");
  EXPECT_EQ(top("other"), 0);
  EXPECT_EQ(session.onlyBox(), (Box{16, "GetFormSection(ctl) - Error #3000 Refused.",
                                    "Access to Visual Basic Tarrowin"}));
  EXPECT_EQ(left("nothing"), 0);
  EXPECT_EQ(session.onlyBox().text, "GetControlLeft(ctl) - Error #94 Invalid use of Null");
}

}  // namespace
}  // namespace tarrowin::test
