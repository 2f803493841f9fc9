// The balloon of every control, by right clicks and by the keyboard.
#include <QAbstractItemView>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "shell/opened_session.h"

namespace tarrowin::test {

class RightClickTest : public QObject {
  Q_OBJECT

 private slots:
  void everyControlAnswersARightClick_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("heading");
    const auto row = [](int tab, const char* control, const char* heading) {
      QTest::newRow(control) << tab << control << heading;
    };
    row(1, "cmdAllForms", "Convert All Forms");
    row(3, "cmdAllMacros", "Convert All Macros");
    row(4, "cmdAllMods", "Convert All Modules");
    row(5, "cmdAllObjs", "Convert All Objects");
    row(0, "cmdAllQrys", "Convert All Queries");
    row(2, "cmdAllReports", "Convert All Reports");
    row(0, "cmdBrowse", "Browse Folders");
    row(1, "cmdConvertFrm", "Convert Selected Forms");
    row(3, "cmdConvertMac", "Convert Selected Macros");
    row(4, "cmdConvertMod", "Convert Selected Modules");
    row(5, "cmdConvertObj", "Convert Selected Objects");
    row(0, "cmdConvertQry", "Convert Selected Queries");
    row(2, "cmdConvertRpt", "Convert Selected Reports");
    row(1, "cmdObjProps", "Preview Access Forms");
    row(0, "cmdOpen", "Open Access Database");
    row(5, "lblSelectVBStartupForm", "Select VB StartUp Form");
    row(1, "lstForms", "Forms List");
    row(3, "lstMacros", "Macros List");
    row(4, "lstModules", "Modules List");
    row(5, "lstObjects", "Forms and Modules List");
    row(0, "lstQueries", "Queries List");
    row(2, "lstReports", "Reports List");
    row(1, "optContinuous(0)", "Convert Continuous Forms");
    row(1, "optContinuous(1)", "Convert Continuous Forms");
    row(1, "optMultiPage(0)", "Convert Multi-Page Forms");
    row(1, "optMultiPage(1)", "Convert Multi-Page Forms");
    row(0, "chkMultiSel", "Convert Multiple Query Selections");
    row(0, "txtCurDir", "Save in Folder");
    row(0, "Toolbar1", "About Tarrowin");
  }
  void everyControlAnswersARightClick() {
    QFETCH(int, tab);
    QFETCH(QString, control);
    QFETCH(QString, heading);
    OpenedSession session;
    session.turnTo(tab);
    session.dialogs().forget();
    session.rightClick(control.toLatin1());
    const auto balloons = session.dialogs().seen("balloon");
    QCOMPARE(balloons.size(), std::size_t{1});
    QCOMPARE(balloons[0].title, heading);
    QVERIFY(!balloons[0].text.isEmpty());
  }

  void disabledControlsAnswerARightClickToo() {
    WindowSession session;
    session.openWith({});
    session.dialogs().forget();
    session.rightClick("cmdConvertQry");
    QCOMPARE(session.dialogs().seen("balloon").size(), std::size_t{1});
  }

  void theTabUnderThePointerTellsItsTopic() {
    OpenedSession session;
    auto* const bar = session.find<QTabWidget>("tabSelect")->tabBar();
    const QStringList headings = {"Query Selections",  "Form Selections",
                                  "Report Selections", "Macro Selections",
                                  "Module Selections", "Form and Module Selections",
                                  "Tab Selections"};
    for (int tab = 0; tab < headings.size(); ++tab) {
      session.dialogs().forget();
      session.rightClickAt(bar, bar->tabRect(tab).center());
      QCOMPARE(session.dialogs().seen("balloon").back().title, headings[tab]);
    }
  }

  void aLabelOfABalloonLeadsOn() {
    OpenedSession session;
    session.turnTo(1);
    session.dialogs().forget();
    session.dialogs().answer(QStringLiteral("1"));
    session.rightClick("optContinuous(1)");
    const auto balloons = session.dialogs().seen("balloon");
    QCOMPARE(balloons.size(), std::size_t{2});
    QCOMPARE(balloons[1].title, QStringLiteral("Using the DataRepeater Control"));
  }

  void helpByKeyboard() {
    OpenedSession session;
    session.select("lstQueries", {0});
    session.find<QAbstractItemView>("lstQueries")->setFocus();
    session.dialogs().forget();
    QTest::keyClick(session.find<QAbstractItemView>("lstQueries"), Qt::Key_F1);
    QCOMPARE(session.dialogs().seen("balloon").back().title, QStringLiteral("Queries List"));
  }
};

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::RightClickTest)
#include "right_click_test.moc"
