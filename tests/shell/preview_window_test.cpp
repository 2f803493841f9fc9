// The preview window on surfaces made by hand: its size, what the mouse and the keyboard do to it,
// and what damaged surfaces cannot do to it.
#include "shell/preview_window.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>
#include <vector>

#include "shell/preview_colors.h"
#include "shell/preview_samples.h"

namespace tarrowin::test {
namespace {

// A tab form of three pages, a text box on each, and the strip below them.
PreviewSurface tabForm() {
  PreviewSurface surface = blankForm();
  add(surface, "MSComctlLib.TabStrip", "tabPages", {150, 150, 5000, 3000}).tabCaptions = {
      "&Company", "&Person", "Orders"};
  add(surface, "VB.TextBox", "Company_Name", {450, 900, 3000, 300});
  add(surface, "VB.TextBox", "Person_Name", {450, 900, 3000, 300}, {{"Visible", false}});
  add(surface, "VB.TextBox", "Order", {450, 900, 3000, 300}, {{"Visible", false}});
  add(surface, "VB.CommandButton", "cmdClose", {450, 3600, 1200, 375});
  surface.mstrTabControls = {"0Company Name", "1Person Name", "2Order"};
  return surface;
}

QPoint centerOfTab(const QTabBar* bar, int tab) { return bar->tabRect(tab).center(); }

}  // namespace

class PreviewWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void insideOfFormIsItsSizeWithoutBorders();
  void darkDesktopDoesNotShowThrough();
  void controlIsHiddenUntilVisibleIsWritten();
  void clickOnSecondTabShowsPageIndexOne();
  void clickOnFirstTabComesBack();
  void onlyTheLastTabStripTurnsPages();
  void pageDigitWithoutTabHidesNothingElse();
  void tabKeyWalksByTabIndexAndLeavesOutTabStopFalse();
  void mnemonicOfALabelJumpsToTheNextControl();
  void escapeCloses();
  void escapeInATextBoxCloses();
  void fixedBorderHoldsTheSize();
  void sizableBorderDoesNot();
  void formBeyondTheScreenScrolls();
  void damagedValues_data();
  void damagedValues();
  void damagedForm_data();
  void damagedForm();
  void sameNameTwice();
  void emptyNames();
  void endlessTexts();
  void fiveThousandControls();
  void pictureOfTheForm();
};

void PreviewWindowTest::insideOfFormIsItsSizeWithoutBorders() {
  // 400 by 300 pixels inside: two borders of 4 pixels, a title bar and a line of 19.
  const PreviewWindow window(blankForm(6120, 4905), western());
  QCOMPARE(window.form()->size(), QSize(400, 300));
  QCOMPARE(window.size(), QSize(400, 300));
  QCOMPARE(window.objectName(), QString("Form1"));
  QCOMPARE(window.windowTitle(), QString("Customers"));
}

void PreviewWindowTest::darkDesktopDoesNotShowThrough() {
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(30, 30, 30));
  dark.setColor(QPalette::Base, Qt::black);
  QApplication::setPalette(dark);
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {0, 0, 1500, 300});
  add(surface, "VB.ListBox", "lst", {0, 450, 1500, 600});
  add(surface, "VB.CommandButton", "cmd", {0, 1500, 1500, 300});
  add(surface, "MSDataGridLib.DataGrid", "grd", {0, 2100, 1500, 900});
  add(surface, "VB.ComboBox", "cbo", {0, 3300, 1500, 315});
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  const QImage image = picture(window);
  QApplication::setPalette(before);
  QCOMPARE(image.pixelColor(390, 290), QColor(0xD4, 0xD0, 0xC8));
  QCOMPARE(image.pixelColor(90, 10), QColor(Qt::white));
  QCOMPARE(image.pixelColor(50, 50), QColor(Qt::white));
  QCOMPARE(image.pixelColor(50, 110), QColor(0xD4, 0xD0, 0xC8));
  QCOMPARE(image.pixelColor(60, 170), QColor(Qt::white));
  QCOMPARE(image.pixelColor(60, 230), QColor(Qt::white));
}

void PreviewWindowTest::controlIsHiddenUntilVisibleIsWritten() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Data", "Data1", {0, 0, 2880, 276}, {{"Visible", false}});
  PreviewControl unwritten;
  unwritten.className = "VB.TextBox";
  surface.controls.push_back(unwritten);
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(!window.widgetOf(0)->isVisible());
  QVERIFY(!window.widgetOf(1)->isVisible());
}

void PreviewWindowTest::clickOnSecondTabShowsPageIndexOne() {
  PreviewWindow window(tabForm(), western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QVERIFY(window.widgetOf(1)->isVisible());
  QVERIFY(!window.widgetOf(2)->isVisible());
  auto* bar = window.findChild<QTabBar*>();
  QCOMPARE(bar->count(), 3);
  QCOMPARE(bar->tabText(1), QString("&Person"));
  QTest::mouseClick(bar, Qt::LeftButton, {}, centerOfTab(bar, 1));
  QVERIFY(!window.widgetOf(1)->isVisible());
  QVERIFY(window.widgetOf(2)->isVisible());
  QVERIFY(!window.widgetOf(3)->isVisible());
  QVERIFY(window.widgetOf(4)->isVisible());  // stands on no page
  QCOMPARE(*window.surface().controls[2].find("Visible"), Value(true));
}

void PreviewWindowTest::clickOnFirstTabComesBack() {
  PreviewWindow window(tabForm(), western());
  window.show();
  auto* bar = window.findChild<QTabBar*>();
  QTest::mouseClick(bar, Qt::LeftButton, {}, centerOfTab(bar, 2));
  QVERIFY(window.widgetOf(3)->isVisible());
  QTest::mouseClick(bar, Qt::LeftButton, {}, centerOfTab(bar, 0));
  QVERIFY(window.widgetOf(1)->isVisible());
  QVERIFY(!window.widgetOf(3)->isVisible());
}

void PreviewWindowTest::onlyTheLastTabStripTurnsPages() {
  PreviewSurface surface = tabForm();
  add(surface, "MSComctlLib.TabStrip", "tabSecond", {150, 3200, 3000, 900}).tabCaptions = {"A",
                                                                                           "B"};
  PreviewWindow window(surface, western());
  window.show();
  const auto barOf = [&](std::size_t control) {
    return static_cast<QTabWidget*>(window.widgetOf(control))->tabBar();
  };
  QTest::mouseClick(barOf(0), Qt::LeftButton, {}, centerOfTab(barOf(0), 1));
  QVERIFY(window.widgetOf(1)->isVisible());
  QTest::mouseClick(barOf(5), Qt::LeftButton, {}, centerOfTab(barOf(5), 1));
  QVERIFY(!window.widgetOf(1)->isVisible());
  QVERIFY(window.widgetOf(2)->isVisible());
}

void PreviewWindowTest::pageDigitWithoutTabHidesNothingElse() {
  PreviewSurface surface = tabForm();
  surface.controls[0].tabCaptions.clear();
  surface.mstrTabControls = {"", "xCompany Name", "7cmdClose"};
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(window.widgetOf(1)->isVisible());
  QVERIFY(window.widgetOf(4)->isVisible());
}

void PreviewWindowTest::tabKeyWalksByTabIndexAndLeavesOutTabStopFalse() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtThird", {0, 0, 900, 300});
  add(surface, "VB.TextBox", "txtFirst", {0, 600, 900, 300}, {{"TabIndex", 0}});
  add(surface, "VB.TextBox", "txtSkipped", {0, 1200, 900, 300},
      {{"TabIndex", 1}, {"TabStop", false}});
  add(surface, "VB.CommandButton", "cmdSecond", {0, 1800, 900, 300}, {{"TabIndex", 2}});
  PreviewWindow window(surface, western());
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  window.widgetOf(1)->setFocus();
  QStringList walked;
  for (int step = 0; step < 4; ++step) {
    walked << window.focusWidget()->objectName();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(walked, (QStringList{"txtFirst", "cmdSecond", "txtThird", "txtFirst"}));
}

void PreviewWindowTest::mnemonicOfALabelJumpsToTheNextControl() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtOther", {0, 0, 900, 300});
  add(surface, "VB.Label", "lblCity", {0, 600, 900, 300}, {{"Caption", "&City"}});
  add(surface, "VB.TextBox", "txtCity", {900, 600, 900, 300});
  PreviewWindow window(surface, western());
  window.show();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  window.widgetOf(0)->setFocus();
  QTest::keyClick(window.widgetOf(0), Qt::Key_C, Qt::AltModifier);
  QCOMPARE(window.focusWidget(), window.widgetOf(2));
}

void PreviewWindowTest::escapeCloses() {
  PreviewWindow window(blankForm(), western());
  window.show();
  QTest::keyClick(&window, Qt::Key_Escape);
  QVERIFY(!window.isVisible());
}

void PreviewWindowTest::escapeInATextBoxCloses() {
  for (const char* className :
       {"VB.TextBox", "VB.ComboBox", "VB.ListBox", "VB.CommandButton", "MSDataGridLib.DataGrid"}) {
    PreviewSurface surface = blankForm();
    add(surface, className, "ctl", {0, 0, 1500, 900});
    PreviewWindow window(surface, western());
    window.show();
    QTest::keyClick(window.widgetOf(0), Qt::Key_Escape);
    QVERIFY2(!window.isVisible(), className);
  }
}

void PreviewWindowTest::fixedBorderHoldsTheSize() {
  PreviewSurface surface = blankForm();
  surface.put("BorderStyle", 1);
  PreviewWindow window(surface, western());
  window.resize(700, 700);
  QCOMPARE(window.size(), QSize(400, 300));
  window.resize(200, 200);
  QCOMPARE(window.size(), QSize(400, 300));
}

void PreviewWindowTest::sizableBorderDoesNot() {
  PreviewWindow window(blankForm(), western());
  window.show();
  window.resize(700, 500);
  QCOMPARE(window.size(), QSize(700, 500));
  QCOMPARE(window.form()->size(), QSize(400, 300));
  QCOMPARE(pixel(window, {690, 490}), systemColor(SystemColor::kButtonFace));
}

void PreviewWindowTest::formBeyondTheScreenScrolls() {
  for (const int borderStyle : {1, 2}) {
    PreviewSurface surface = blankForm(45000 + 120, 60000 + 405);
    surface.put("BorderStyle", borderStyle);
    PreviewWindow window(surface, western());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.form()->size(), QSize(3000, 4000));
    QVERIFY(window.width() < window.screen()->availableSize().width());
    QVERIFY(window.height() < window.screen()->availableSize().height());
    auto* scroll = window.findChild<QScrollArea*>();
    QVERIFY(scroll->verticalScrollBar()->isVisible());
    QCOMPARE(scroll->verticalScrollBar()->maximum(), 4000 - scroll->viewport()->height());
  }
}

void PreviewWindowTest::damagedValues_data() {
  QTest::addColumn<int>("odd");
  QTest::newRow("empty") << 0;
  QTest::newRow("null") << 1;
  QTest::newRow("text") << 2;
  QTest::newRow("bytes") << 3;
  QTest::newRow("no object") << 4;
  QTest::newRow("least Long") << 5;
  QTest::newRow("greatest Long") << 6;
  QTest::newRow("2^31") << 7;
  QTest::newRow("1e300") << 8;
  QTest::newRow("no number") << 9;
  QTest::newRow("infinite") << 10;
  QTest::newRow("-1") << 11;
  QTest::newRow("date") << 12;
  QTest::newRow("true") << 13;
}

void PreviewWindowTest::damagedValues() {
  static const std::vector<Value> kOdd{
      Value(),
      Value(Value::Null{}),
      "&<b>\0\xFF",
      Bytes{0, 1, 255},
      ObjectRef(),
      std::numeric_limits<std::int32_t>::min(),
      std::numeric_limits<std::int32_t>::max(),
      2147483648.0,
      1e300,
      std::numeric_limits<double>::quiet_NaN(),
      -std::numeric_limits<double>::infinity(),
      -1,
      Date{1e9},
      true,
  };
  QFETCH(int, odd);
  const Value& value = kOdd[static_cast<std::size_t>(odd)];
  PreviewSurface surface = blankForm();
  for (const char* className :
       {"VB.Label", "VB.TextBox", "VB.CommandButton", "VB.CheckBox", "VB.OptionButton", "VB.Frame",
        "VB.PictureBox", "VB.ListBox", "VB.ComboBox", "VB.Shape", "VB.Line", "VB.Image", "VB.Data",
        "MSComctlLib.TabStrip", "MSDataGridLib.DataGrid", "Other.Class.1"}) {
    for (const char* property :
         {"Left", "Top", "Width", "Height", "Caption", "BackColor", "ForeColor", "BackStyle",
          "BorderStyle", "Appearance", "Enabled", "Locked", "Text", "TabIndex", "TabStop",
          "ToolTipText", "Visible"}) {
      add(surface, className, std::string(className) + property, {150, 150, 1500, 600},
          {{property, value}});
    }
  }
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QVERIFY(!window.grab().isNull());
  for (std::size_t control = 0; control < surface.controls.size(); ++control) {
    const QRect place = window.widgetOf(control)->geometry();
    QVERIFY(place.width() >= 0 && place.width() <= 16384);
    QVERIFY(place.height() >= 0 && place.height() <= 16384);
    QVERIFY(std::abs(place.x()) <= 16384 && std::abs(place.y()) <= 16384);
  }
}

void PreviewWindowTest::damagedForm_data() {
  QTest::addColumn<double>("twips");
  QTest::newRow("negative") << -5000.0;
  QTest::newRow("0") << 0.0;
  QTest::newRow("2^31") << 2147483648.0;
  QTest::newRow("1e300") << 1e300;
  QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
  QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void PreviewWindowTest::damagedForm() {
  QFETCH(double, twips);
  PreviewSurface surface = blankForm();
  for (const char* property : {"Width", "Height", "BorderStyle", "Caption"}) {
    surface.put(property, twips);
  }
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QVERIFY(window.width() >= 120 && window.height() >= 40);
  QVERIFY(window.width() <= window.screen()->availableSize().width());
  QVERIFY(window.form()->width() <= 16384 && window.form()->height() <= 16384);
  PreviewWindow bare(PreviewSurface(), western());
  bare.show();
  QVERIFY(QTest::qWaitForWindowExposed(&bare));
}

void PreviewWindowTest::sameNameTwice() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Frame", "twin", {0, 0, 1500, 1500});
  add(surface, "VB.Frame", "twin", {1500, 0, 1500, 1500});
  add(surface, "VB.TextBox", "txt", {0, 0, 900, 300}, {}, "twin");
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(2)->parentWidget(), window.widgetOf(0));
}

void PreviewWindowTest::emptyNames() {
  PreviewSurface surface = blankForm();
  surface.accessName.clear();
  surface.put("Caption", "");
  surface.mstrTabControls = {"", "0", "1"};
  add(surface, "", "", {0, 0, 900, 300});
  add(surface, "VB.TextBox", "", {0, 600, 900, 300});
  PreviewWindow window(surface, western());
  window.show();
  QCOMPARE(window.widgetOf(1)->parentWidget(), window.form());
}

void PreviewWindowTest::endlessTexts() {
  PreviewSurface surface = blankForm();
  const std::string endless(2'000'000, 'x');
  add(surface, "VB.Label", "lbl", {0, 0, 900, 300}, {{"Caption", endless}});
  add(surface, "VB.TextBox", "txt", {0, 600, 900, 300}, {{"Text", endless}});
  add(surface, "MSComctlLib.TabStrip", "tab", {0, 1200, 900, 900}).tabCaptions.assign(10'000, "x");
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QCOMPARE(static_cast<QLineEdit*>(window.widgetOf(1))->text().size(), qsizetype{32767});
}

void PreviewWindowTest::fiveThousandControls() {
  static constexpr const char* kClasses[] = {"VB.TextBox",      "VB.Label", "VB.CheckBox",
                                             "VB.ComboBox",     "VB.Shape", "VB.CommandButton",
                                             "VB.OptionButton", "VB.Frame", "VB.ListBox"};
  PreviewSurface surface = blankForm(31680, 150000);
  for (int index = 0; index < 5000; ++index) {
    add(surface, kClasses[index % std::size(kClasses)], "ctl" + std::to_string(index),
        {index % 20 * 1500, index / 20 * 600, 1400, 300},
        {{"Caption", "Caption"}, {"Text", "Text"}, {"TabIndex", 0}});
  }
  const std::clock_t start = std::clock();
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  QVERIFY2(seconds < 5, std::to_string(seconds).c_str());
}

void PreviewWindowTest::pictureOfTheForm() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Label", "lblName", {150, 180, 1200, 240}, {{"Caption", "&Name:"}});
  add(surface, "VB.TextBox", "txtName", {1500, 150, 3000, 300}, {{"Text", "Maria Anders"}});
  add(surface, "VB.CommandButton", "cmdSave", {150, 900, 1500, 375}, {{"Caption", "&Save"}});
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  const QImage image = picture(window);
  const auto darkPixels = [&](const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        count += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
      }
    }
    return count;
  };
  QVERIFY(darkPixels({10, 12, 80, 16}) > 20);    // the letters of the label
  QVERIFY(darkPixels({104, 13, 90, 14}) > 40);   // of the text box
  QVERIFY(darkPixels({30, 64, 60, 16}) > 15);    // of the button
  QCOMPARE(darkPixels({10, 100, 380, 190}), 0);  // the ground below them
}

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::PreviewWindowTest)
#include "preview_window_test.moc"
