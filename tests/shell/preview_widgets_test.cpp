// The widgets of a preview on surfaces made by hand: what stands for what, where, in which colours
// and in which order.
#include "shell/preview_widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "shell/preview_arrangement.h"
#include "shell/preview_colors.h"
#include "shell/preview_painted.h"
#include "shell/preview_samples.h"
#include "shell/preview_window.h"

namespace tarrowin::test {

class PreviewWidgetsTest : public QObject {
  Q_OBJECT

 private slots:
  void everyClassHasItsWidget_data();
  void everyClassHasItsWidget();
  void classNameInAnyCaseAndWithItsVersion();
  void fifteenTwipsAreAPixel();
  void comboBoxKeepsItsHeight();
  void controlWithoutSizeHasThatOfANewOne();
  void lineWithoutSizeIsNotDrawn();
  void horizontalLineIsOnePixelHigh();
  void oleColors_data();
  void oleColors();
  void colorsOfControls();
  void transparentLabelShowsWhatLiesBelow();
  void flatTextBoxHasABlackLine();
  void blackLinesOnScreensOfHighResolution_data();
  void blackLinesOnScreensOfHighResolution();
  void textBoxWithoutBorder();
  void textsComeFromTheCodePage();
  void captionsAndTheirMnemonics();
  void toolTipWithTagsIsShownAsItStands();
  void textOfTheFirstRecord();
  void enabledAndLocked();
  void membersStandInsideTheirGroup();
  void labelOfAMemberStandsInTheGroup();
  void labelOfAGroupBeginsAtItsEdge();
  void containerBehindItsMembers();
  void missingContainer();
  void containersInACircle();
  void containersTooDeep();
  void drawnControlsLieBelowThoseWithAWindow();
  void tabStripLiesBelowAll();
  void laterControlLiesAbove();
  void tabIndexMovesAControlToItsPlace();
};

void PreviewWidgetsTest::everyClassHasItsWidget_data() {
  QTest::addColumn<QString>("className");
  QTest::addColumn<bool>("isOfClass");
  const auto row = [](const char* className, auto* widget) {
    using Widget = std::remove_pointer_t<decltype(widget)>;
    PreviewSurface surface = blankForm();
    add(surface, className, "ctl", {0, 0, 1500, 750}).tabCaptions = {"One", "Two"};
    const PreviewWindow window(surface, western());
    QTest::newRow(className) << className << (dynamic_cast<Widget*>(window.widgetOf(0)) != nullptr);
  };
  row("VB.Label", static_cast<QLabel*>(nullptr));
  row("VB.TextBox", static_cast<QLineEdit*>(nullptr));
  row("VB.CommandButton", static_cast<QPushButton*>(nullptr));
  row("VB.CheckBox", static_cast<QCheckBox*>(nullptr));
  row("VB.OptionButton", static_cast<QRadioButton*>(nullptr));
  row("VB.Frame", static_cast<QGroupBox*>(nullptr));
  row("VB.PictureBox", static_cast<PictureArea*>(nullptr));
  row("VB.ListBox", static_cast<QListWidget*>(nullptr));
  row("VB.ComboBox", static_cast<QComboBox*>(nullptr));
  row("VB.Shape", static_cast<ShapeArea*>(nullptr));
  row("VB.Line", static_cast<ShapeArea*>(nullptr));
  row("VB.Image", static_cast<PicturePlaceholder*>(nullptr));
  row("VB.Data", static_cast<DataBar*>(nullptr));
  row("MSComctlLib.TabStrip", static_cast<QTabWidget*>(nullptr));
  row("MSDataGridLib.DataGrid", static_cast<QTableWidget*>(nullptr));
  row("MSCAL.Calendar.7", static_cast<ClassPlaceholder*>(nullptr));
  row("", static_cast<ClassPlaceholder*>(nullptr));
}

void PreviewWidgetsTest::everyClassHasItsWidget() {
  QFETCH(QString, className);
  QFETCH(bool, isOfClass);
  QVERIFY(isOfClass);
  PreviewSurface surface = blankForm();
  add(surface, className.toStdString(), "ctlShown", {150, 150, 1500, 750});
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  QCOMPARE(window.findChild<QWidget*>("ctlShown"), window.widgetOf(0));
  QVERIFY(window.widgetOf(0)->isVisible());
  QCOMPARE(window.widgetOf(0)->accessibleName(), QString("ctlShown"));
  QCOMPARE(window.widgetOf(0)->accessibleDescription(), className);
}

void PreviewWidgetsTest::classNameInAnyCaseAndWithItsVersion() {
  QCOMPARE(widgetClassOf("MSComctlLib.TabStrip.2").name, std::string_view("MSComctlLib.TabStrip"));
  QCOMPARE(widgetClassOf("vb.TEXTBOX").name, std::string_view("VB.TextBox"));
  QCOMPARE(widgetClassOf("VB.TextBoxes").name, std::string_view());
  QCOMPARE(widgetClassOf("VB.TextBox.").name, std::string_view());
  QCOMPARE(widgetClassOf("2").name, std::string_view());
}

void PreviewWidgetsTest::fifteenTwipsAreAPixel() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtA", {300, 1508, 2400, 285});  // 1508 / 15 = 100.53
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->geometry(), QRect(20, 101, 160, 19));
}

void PreviewWidgetsTest::comboBoxKeepsItsHeight() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.ComboBox", "cboA", {0, 0, 1500, 1500});
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->size(), QSize(100, 21));
}

void PreviewWidgetsTest::controlWithoutSizeHasThatOfANewOne() {
  PreviewSurface surface = blankForm();
  PreviewControl control;
  control.className = "VB.TextBox";
  surface.controls.push_back(control);
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->geometry(), QRect(0, 0, 81, 33));
}

void PreviewWidgetsTest::lineWithoutSizeIsNotDrawn() {
  PreviewSurface surface = blankForm();
  PreviewControl line;
  line.className = "VB.Line";
  line.put("Visible", true);
  surface.controls.push_back(line);
  PreviewWindow window(surface, western());
  window.show();
  QVERIFY(window.widgetOf(0)->size().isEmpty());
}

void PreviewWidgetsTest::horizontalLineIsOnePixelHigh() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Line", "lin", {150, 150, 1500, 0});
  PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->geometry(), QRect(10, 10, 100, 1));
  QCOMPARE(pixel(*window.form(), {10, 10}), QColor(Qt::black));
  QCOMPARE(pixel(*window.form(), {109, 10}), QColor(Qt::black));
  QCOMPARE(pixel(*window.form(), {110, 10}), systemColor(SystemColor::kButtonFace));
}

void PreviewWidgetsTest::oleColors_data() {
  QTest::addColumn<double>("number");
  QTest::addColumn<QString>("color");  // empty: none
  QTest::newRow("red is the lowest byte") << 255.0 << "#ff0000";
  QTest::newRow("green") << 65280.0 << "#00ff00";
  QTest::newRow("blue") << 16711680.0 << "#0000ff";
  QTest::newRow("white") << 16777215.0 << "#ffffff";
  QTest::newRow("nearest palette colour") << double{0x020000FF} << "#ff0000";
  QTest::newRow("button face as a Long") << -2147483633.0 << "#d4d0c8";
  QTest::newRow("button face unsigned") << double{0x8000000F} << "#d4d0c8";
  QTest::newRow("window background") << -2147483643.0 << "#ffffff";
  QTest::newRow("desktop") << -2147483647.0 << "#3a6ea5";
  QTest::newRow("last system colour") << double{0x80000018} << "#ffffe1";
  QTest::newRow("behind the last system colour") << double{0x80000019} << "";
  QTest::newRow("-1") << -1.0 << "";
  QTest::newRow("other flags") << double{0x01000000} << "";
  QTest::newRow("2^32") << 4294967296.0 << "";
  QTest::newRow("below a Long") << -2147483649.0 << "";
  QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "";
  QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "";
}

void PreviewWidgetsTest::oleColors() {
  QFETCH(double, number);
  QFETCH(QString, color);
  const std::optional<QColor> read = oleColor(number);
  QCOMPARE(read ? read->name() : QString(), color);
}

void PreviewWidgetsTest::colorsOfControls() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {0, 0, 1500, 300},
      {{"BackColor", 0x00FFFF}, {"ForeColor", 0xFF0000}});
  add(surface, "VB.Label", "lbl", {0, 600, 1500, 300}, {{"BackColor", 0x0000FF}});
  add(surface, "VB.Frame", "fra", {0, 1200, 1500, 600}, {{"BackColor", 0x008000}});
  add(surface, "VB.Shape", "shp", {0, 2100, 1500, 300},
      {{"BackColor", 0xFF00FF}, {"BackStyle", 1}});
  add(surface, "VB.PictureBox", "pic", {0, 2700, 1500, 300}, {{"BackColor", -2147483643}});
  add(surface, "VB.CheckBox", "chk", {0, 3300, 1500, 300}, {{"BackColor", 0xFF0000}});
  PreviewWindow window(surface, western());
  QWidget& form = *window.form();
  QCOMPARE(pixel(form, {90, 10}), QColor(255, 255, 0));
  QCOMPARE(window.widgetOf(0)->palette().color(QPalette::Active, QPalette::Text),
           QColor(0, 0, 255));
  QCOMPARE(pixel(form, {90, 50}), QColor(255, 0, 0));
  QCOMPARE(pixel(form, {90, 100}), QColor(0, 128, 0));
  QCOMPARE(pixel(form, {90, 150}), QColor(255, 0, 255));
  QCOMPARE(pixel(form, {90, 190}), QColor(255, 255, 255));
  QCOMPARE(pixel(form, {90, 230}), QColor(0, 0, 255));
}

void PreviewWidgetsTest::transparentLabelShowsWhatLiesBelow() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Shape", "shp", {0, 0, 1500, 300}, {{"BackColor", 0x0000FF}, {"BackStyle", 1}});
  add(surface, "VB.Label", "lbl", {150, 0, 1350, 300}, {{"BackColor", 0}, {"BackStyle", 0}});
  PreviewWindow window(surface, western());
  QCOMPARE(pixel(*window.form(), {50, 10}), QColor(255, 0, 0));
}

void PreviewWidgetsTest::flatTextBoxHasABlackLine() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtFlat", {150, 150, 1500, 300}, {{"Appearance", 0}});
  add(surface, "VB.TextBox", "txt3D", {150, 600, 1500, 300}, {{"Appearance", 1}});
  PreviewWindow window(surface, western());
  const QImage image = picture(*window.form());
  QCOMPARE(image.pixelColor(50, 10), QColor(Qt::black));
  QCOMPARE(image.pixelColor(50, 40), systemColor(SystemColor::kButtonShadow));
  QCOMPARE(image.pixelColor(50, 41), systemColor(SystemColor::kButtonDarkShadow));
}

void PreviewWidgetsTest::blackLinesOnScreensOfHighResolution_data() {
  QTest::addColumn<double>("ratio");
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    QTest::addRow("%g", ratio) << ratio;
  }
}

void PreviewWidgetsTest::blackLinesOnScreensOfHighResolution() {
  QFETCH(double, ratio);
  PreviewSurface surface = blankForm();
  add(surface, "VB.Shape", "shp", {0, 0, 1500, 600}, {{"BackStyle", 0}});
  add(surface, "VB.TextBox", "txt", {0, 750, 1500, 600}, {{"Appearance", 0}});
  PreviewWindow window(surface, western());
  for (const std::size_t control : {0, 1}) {
    QWidget& widget = *window.widgetOf(control);
    const QImage image = picture(widget, ratio);
    const QPoint middle(image.width() / 2, image.height() / 2);
    QCOMPARE(image.pixelColor(0, middle.y()), QColor(Qt::black));
    QCOMPARE(image.pixelColor(middle.x(), 0), QColor(Qt::black));
    QCOMPARE(image.pixelColor(image.width() - 1, middle.y()), QColor(Qt::black));
    QCOMPARE(image.pixelColor(middle.x(), image.height() - 1), QColor(Qt::black));
    QVERIFY(image.pixelColor(middle) != QColor(Qt::black));
  }
}

void PreviewWidgetsTest::textBoxWithoutBorder() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {150, 150, 1500, 300}, {{"BorderStyle", 0}});
  PreviewWindow window(surface, western());
  QCOMPARE(pixel(*window.form(), {50, 10}), QColor(Qt::white));
}

void PreviewWidgetsTest::textsComeFromTheCodePage() {
  PreviewSurface surface = blankForm();
  surface.put("Caption", "Caf\xE9");
  add(surface, "VB.TextBox",
      "Stra\xDF"
      "e",
      {0, 0, 1500, 300}, {{"Text", "\x80 12"}, {"ToolTipText", "\xFC"}});
  const PreviewWindow window(surface, western());
  QCOMPARE(window.windowTitle(), QString::fromUtf8("Café"));
  QCOMPARE(window.widgetOf(0)->objectName(), QString::fromUtf8("Straße"));
  QCOMPARE(static_cast<QLineEdit*>(window.widgetOf(0))->text(), QString::fromUtf8("€ 12"));
  QCOMPARE(window.widgetOf(0)->toolTip(), QString::fromUtf8("ü"));
}

void PreviewWidgetsTest::captionsAndTheirMnemonics() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Label", "lblPlain", {0, 0, 3000, 300}, {{"Caption", "Name:"}});
  add(surface, "VB.Label", "lblKey", {0, 600, 3000, 300}, {{"Caption", "&Name:"}});
  add(surface, "VB.Label", "lblAnd", {0, 1200, 3000, 300}, {{"Caption", "R&&D"}});
  add(surface, "VB.CommandButton", "cmdLast", {0, 1800, 3000, 300}, {{"Caption", "End&"}});
  PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(1)->accessibleName(), QString("Name:"));
  QCOMPARE(window.widgetOf(2)->accessibleName(), QString("R&D"));
  QCOMPARE(window.widgetOf(3)->accessibleName(), QString("End"));
  const QImage plain = picture(*window.widgetOf(0));
  QVERIFY(plain != picture(*window.widgetOf(1)));  // the line below the N
  window.widgetOf(1)->setProperty("text", "Name:");
  QCOMPARE(picture(*window.widgetOf(1)), plain);
}

void PreviewWidgetsTest::toolTipWithTagsIsShownAsItStands() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {0, 0, 1500, 300}, {{"ToolTipText", "<b>Price</b>"}});
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->toolTip(), QString("&lt;b&gt;Price&lt;/b&gt;"));
}

void PreviewWidgetsTest::textOfTheFirstRecord() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {0, 0, 1500, 300}, {{"Text", "one\r\ntwo"}});
  add(surface, "VB.ComboBox", "cbo", {0, 600, 1500, 300}, {{"Text", "Berlin"}});
  add(surface, "VB.TextBox", "txtNull", {0, 0, 1500, 300}, {{"Text", Value(Value::Null{})}});
  add(surface, "VB.TextBox", "txtNumber", {0, 0, 1500, 300}, {{"Text", 12.5}});
  const PreviewWindow window(surface, western());
  QCOMPARE(static_cast<QLineEdit*>(window.widgetOf(0))->text(), QString("one two"));
  QCOMPARE(static_cast<QComboBox*>(window.widgetOf(1))->currentText(), QString("Berlin"));
  QCOMPARE(static_cast<QLineEdit*>(window.widgetOf(2))->text(), QString());
  QCOMPARE(static_cast<QLineEdit*>(window.widgetOf(3))->text(), QString("12.5"));
}

void PreviewWidgetsTest::enabledAndLocked() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtOff", {0, 0, 1500, 300}, {{"Enabled", false}});
  add(surface, "VB.TextBox", "txtLocked", {0, 600, 1500, 300}, {{"Locked", true}});
  add(surface, "VB.TextBox", "txtUsual", {0, 1200, 1500, 300});
  const PreviewWindow window(surface, western());
  QVERIFY(!window.widgetOf(0)->isEnabled());
  QVERIFY(window.widgetOf(1)->isEnabled());
  QVERIFY(static_cast<QLineEdit*>(window.widgetOf(1))->isReadOnly());
  QVERIFY(window.widgetOf(2)->isEnabled());
  QVERIFY(!static_cast<QLineEdit*>(window.widgetOf(2))->isReadOnly());
}

void PreviewWidgetsTest::membersStandInsideTheirGroup() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Frame", "grpKind", {1500, 750, 3000, 2250}, {{"Caption", "Kind"}});
  add(surface, "VB.OptionButton", "optA", {150, 300, 300, 240}, {}, "grpKind");
  add(surface, "VB.Frame", "grpInner", {150, 750, 1500, 1200}, {}, "GRPKIND");
  add(surface, "VB.CheckBox", "chkA", {75, 300, 300, 240}, {}, "grpInner");
  PreviewWindow window(surface, western());
  window.show();
  QCOMPARE(window.widgetOf(1)->parentWidget(), window.widgetOf(0));
  QCOMPARE(window.widgetOf(1)->pos(), QPoint(10, 20));
  QCOMPARE(window.widgetOf(3)->parentWidget(), window.widgetOf(2));
  QCOMPARE(window.widgetOf(3)->mapTo(window.form(), QPoint()), QPoint(100 + 10 + 5, 50 + 50 + 20));
  QVERIFY(window.widgetOf(3)->isVisible());
}

void PreviewWidgetsTest::labelOfAMemberStandsInTheGroup() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Frame", "grp", {0, 0, 3000, 2250});
  add(surface, "VB.OptionButton", "opt", {150, 300, 300, 240}, {}, "grp");
  add(surface, "VB.Label", "lbl", {450, 300, 900, 240}, {}, "opt");
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(2)->parentWidget(), window.widgetOf(0));
}

void PreviewWidgetsTest::labelOfAGroupBeginsAtItsEdge() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Frame", "grp", {750, 750, 3000, 2250});
  add(surface, "VB.Label", "lblGroup", {150, -120, 900, 240}, {{"Caption", "Kind"}}, "grp");
  add(surface, "VB.Label", "lblForm", {-150, -120, 900, 240}, {{"Caption", "Kind"}});
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(1)->pos(), QPoint(10, 0));
  QCOMPARE(window.widgetOf(2)->pos(), QPoint(-10, -8));
}

void PreviewWidgetsTest::containerBehindItsMembers() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.OptionButton", "opt", {150, 300, 300, 240}, {}, "grp");
  add(surface, "VB.Frame", "grp", {0, 0, 3000, 2250});
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->parentWidget(), window.widgetOf(1));
}

void PreviewWidgetsTest::missingContainer() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.OptionButton", "opt", {150, 300, 300, 240}, {}, "gone");
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->parentWidget(), window.form());
}

void PreviewWidgetsTest::containersInACircle() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Frame", "a", {0, 0, 1500, 1500}, {}, "b");
  add(surface, "VB.Frame", "b", {0, 0, 1500, 1500}, {}, "a");
  add(surface, "VB.Frame", "self", {0, 0, 1500, 1500}, {}, "self");
  add(surface, "VB.TextBox", "txt", {0, 0, 900, 300}, {}, "self");
  const PreviewWindow window(surface, western());
  QCOMPARE(window.widgetOf(0)->parentWidget(), window.form());
  QCOMPARE(window.widgetOf(1)->parentWidget(), window.form());
  QCOMPARE(window.widgetOf(2)->parentWidget(), window.form());
  QCOMPARE(window.widgetOf(3)->parentWidget(), window.form());
}

void PreviewWidgetsTest::containersTooDeep() {
  PreviewSurface surface = blankForm();
  for (int depth = 0; depth < 2000; ++depth) {
    add(surface, "VB.Frame", "fra" + std::to_string(depth), {15, 15, 3000, 3000}, {},
        depth == 0 ? "" : "fra" + std::to_string(depth - 1));
  }
  PreviewWindow window(surface, western());
  window.show();
  QCOMPARE(window.widgetOf(5)->parentWidget(), window.widgetOf(4));
  QCOMPARE(window.widgetOf(1999)->parentWidget(), window.form());
}

void PreviewWidgetsTest::drawnControlsLieBelowThoseWithAWindow() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txt", {0, 0, 1500, 300});
  add(surface, "VB.Shape", "shp", {0, 0, 3000, 3000}, {{"BackColor", 0}, {"BackStyle", 1}});
  add(surface, "VB.Label", "lbl", {0, 0, 3000, 3000}, {{"BackColor", 0}});
  PreviewWindow window(surface, western());
  QCOMPARE(window.form()->childAt(50, 10), window.widgetOf(0));
  QCOMPARE(pixel(*window.form(), {50, 10}), QColor(Qt::white));
}

void PreviewWidgetsTest::tabStripLiesBelowAll() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.Label", "lbl", {300, 900, 1500, 300}, {{"BackColor", 0x0000FF}});
  add(surface, "MSComctlLib.TabStrip", "tab", {0, 0, 3000, 3000}).tabCaptions = {"One"};
  PreviewWindow window(surface, western());
  QCOMPARE(pixel(*window.form(), {100, 70}), QColor(255, 0, 0));
}

void PreviewWidgetsTest::laterControlLiesAbove() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "txtLow", {0, 0, 1500, 300});
  add(surface, "VB.CommandButton", "cmdHigh", {0, 0, 1500, 300});
  PreviewWindow window(surface, western());
  QCOMPARE(window.form()->childAt(50, 10), window.widgetOf(1));
}

void PreviewWidgetsTest::tabIndexMovesAControlToItsPlace() {
  PreviewSurface surface = blankForm();
  add(surface, "VB.TextBox", "a", {0, 0, 900, 300}, {{"TabIndex", 0}});
  add(surface, "VB.Shape", "shape", {0, 0, 900, 300}, {{"TabIndex", 0}});  // has none
  add(surface, "VB.TextBox", "b", {0, 0, 900, 300}, {{"TabIndex", 0}});
  add(surface, "VB.TextBox", "c", {0, 0, 900, 300});
  add(surface, "VB.TextBox", "d", {0, 0, 900, 300}, {{"TabIndex", 1}});
  add(surface, "VB.TextBox", "e", {0, 0, 900, 300}, {{"TabIndex", 2147483647}});
  add(surface, "VB.TextBox", "f", {0, 0, 900, 300}, {{"TabIndex", -1}});
  // b; b a; b a c; b d a c; e and f stay where they joined.
  QCOMPARE(tabOrderOf(surface), (std::vector<std::size_t>{2, 4, 0, 3, 5, 6}));
}

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::PreviewWidgetsTest)
#include "preview_widgets_test.moc"
