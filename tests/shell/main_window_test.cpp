// Every event of the window by real clicks: what each control starts, and what a person sees of it.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <array>
#include <filesystem>

#include "shell/main_toolbar.h"
#include "shell/opened_session.h"
#include "shell/written_files_panel.h"

namespace tarrowin::test {

namespace {

const QString kTitle = QStringLiteral("Access to Visual Basic Tarrowin");

}  // namespace

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void theOpenDialogComesUpAtOnceAndOffersEverySource() {
    WindowSession session;
    session.openWith({});
    const auto seen = session.dialogs().seen("file");
    QCOMPARE(seen.size(), std::size_t{1});
    QCOMPARE(seen[0].title, QStringLiteral("Open a Microsoft Access Database"));
    QVERIFY(seen[0].text.startsWith(QStringLiteral("Access MDB Files (*.mdb)")));
    QVERIFY(seen[0].text.contains(QStringLiteral("*.access.json")));
    QCOMPARE(session.view().windowTitle(),
             QStringLiteral("Microsoft Access to Visual Basic Tarrowin"));
    QCOMPARE(session.main().window.mousePointer, 0);
  }

  void anOpenedDatabaseFillsListsTotalsAndButtons() {
    OpenedSession session;
    QCOMPARE(session.view().windowTitle(), kTitle + " - [small.access.json] Access v08.50");
    QCOMPARE(session.find<QLabel>("lblCurDb")->text(), session.path("small.access.json"));
    for (const char* const list :
         {"lstQueries", "lstForms", "lstReports", "lstMacros", "lstModules"})
      QCOMPARE(session.find<QAbstractItemView>(list)->model()->rowCount(), 2);
    QCOMPARE(session.find<QAbstractItemView>("lstObjects")->model()->rowCount(), 4);
    QCOMPARE(session.find<QLabel>("lblQueryTime")->text(), QStringLiteral("Total Queries: 2"));
    QCOMPARE(session.find<QLabel>("lblObjectTime")->text(),
             QStringLiteral("Total Forms and Modules: 4"));
    QCOMPARE(session.find<QLabel>("LblQuerySel")->text(),
             QStringLiteral("Select Queries to Convert"));
    QVERIFY(session.find<QAbstractButton>("cmdAllForms")->isEnabled());
    QCOMPARE(session.find<QComboBox>("cboFormNames")->currentText(), QStringLiteral("F One"));
  }

  void withoutADatabaseNothingCanBeConverted() {
    WindowSession session;
    session.openWith({});
    for (const char* const button :
         {"cmdConvertQry", "cmdAllQrys", "cmdConvertFrm", "cmdAllForms", "cmdObjProps",
          "cmdConvertRpt", "cmdAllReports", "cmdConvertMac", "cmdAllMacros", "cmdConvertMod",
          "cmdAllMods", "cmdConvertObj", "cmdAllObjs", "cmdBrowse"})
      QVERIFY2(!session.find<QAbstractButton>(button)->isEnabled(), button);
  }

  // The convert button of each list converts what is selected there.
  void convertButtonConvertsTheSelection_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QString>("file");
    QTest::newRow("queries") << 0 << "lstQueries"
                             << "cmdConvertQry"
                             << "Q Two"
                             << "Q_Two.bas";
    QTest::newRow("forms") << 1 << "lstForms"
                           << "cmdConvertFrm"
                           << "F Two"
                           << "F_Two.frm";
    QTest::newRow("reports") << 2 << "lstReports"
                             << "cmdConvertRpt"
                             << "R Two"
                             << "R_Two.dsr";
    QTest::newRow("modules") << 4 << "lstModules"
                             << "cmdConvertMod"
                             << "B Two"
                             << "B_Two.bas";
    QTest::newRow("objects") << 5 << "lstObjects"
                             << "cmdConvertObj"
                             << "F Two"
                             << "F_Two.frm";
  }
  void convertButtonConvertsTheSelection() {
    QFETCH(int, tab);
    QFETCH(QString, list);
    QFETCH(QString, button);
    QFETCH(QString, summary);
    QFETCH(QString, file);
    OpenedSession session;
    session.turnTo(tab);
    session.select(list.toLatin1(), {1});
    session.click(button.toLatin1());
    const auto boxes = session.dialogs().seen("box");
    QVERIFY(!boxes.empty());
    QVERIFY2(boxes.back().text.contains(summary), qPrintable(boxes.back().text));
    QCOMPARE(boxes.back().title, kTitle);
    QVERIFY2(session.written().contains(file), qPrintable(session.written().join(' ')));
  }

  void convertMacrosMakesModules() {
    OpenedSession session;
    session.turnTo(3);
    session.select("lstMacros", {0});
    session.click("cmdConvertMac");
    QCOMPARE(session.find<QAbstractItemView>("lstModules")->model()->rowCount(), 3);
  }

  void theAllButtonConvertsTheWholeList_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("queries") << 0 << "cmdAllQrys" << QStringList{"Q_One.bas", "Q_Two.bas"};
    QTest::newRow("forms") << 1 << "cmdAllForms" << QStringList{"F_One.frm", "F_Two.frm"};
    QTest::newRow("reports") << 2 << "cmdAllReports" << QStringList{"R_One.dsr", "R_Two.dsr"};
    QTest::newRow("modules") << 4 << "cmdAllMods" << QStringList{"B_One.bas", "B_Two.bas"};
    QTest::newRow("objects") << 5 << "cmdAllObjs"
                             << QStringList{"F_One.frm", "F_Two.frm", "B_One.bas", "B_Two.bas"};
  }
  void theAllButtonConvertsTheWholeList() {
    QFETCH(int, tab);
    QFETCH(QString, button);
    QFETCH(QStringList, files);
    OpenedSession session;
    session.turnTo(tab);
    session.click(button.toLatin1());
    for (const QString& file : files)
      QVERIFY2(session.written().contains(file), qPrintable(session.written().join(' ')));
  }

  void convertAllLeavesTheWholeListSelected() {
    OpenedSession session;
    session.click("cmdAllQrys");
    auto* const list = session.find<QAbstractItemView>("lstQueries");
    QCOMPARE(list->selectionModel()->selectedIndexes().size(), 2);
    session.dialogs().forget();
    session.click("cmdBrowse");
    QCOMPARE(session.dialogs().seen("folder").back().title,
             QStringLiteral("Save Queries in Folder..."));
  }

  void theFocusGoesToTheOutputDirectoryThatIsMissing() {
    OpenedSession session;
    session.find<QLineEdit>("txtCurDir")->setText(session.path("nowhere"));
    session.dialogs().answer(QStringLiteral("No"));
    session.click("cmdAllQrys");
    QCOMPARE(session.view().focusWidget(), session.find<QLineEdit>("txtCurDir"));
  }

  void theHowToTabHasItsOwnTitleUntilAPageIsTurned() {
    OpenedSession session;
    session.turnTo(6);
    QCOMPARE(session.find<QLabel>("lblTitle")->text(), QStringLiteral("Using the Tarrowin"));
  }

  void allMacrosBecomeModules() {
    OpenedSession session;
    session.turnTo(3);
    session.click("cmdAllMacros");
    QCOMPARE(session.find<QAbstractItemView>("lstModules")->model()->rowCount(), 4);
  }

  void convertAllReportsSetsThePagerBackToItsStart() {
    OpenedSession session;
    session.turnTo(6);
    session.click("cmdNext");
    QCOMPARE(session.find<QLabel>("lblCurrentPage")->text(), QStringLiteral("1"));
    session.turnTo(2);
    session.click("cmdAllReports");
    QCOMPARE(session.find<QLabel>("lblCurrentPage")->text(), QStringLiteral("0"));
    QCOMPARE(session.find<QLabel>("lblLastPage")->text(), QStringLiteral("6"));
    QVERIFY(!session.find<QAbstractButton>("cmdPrev")->isEnabled());
  }

  void aDoubleClickConvertsTheItemAlone() {
    OpenedSession session;
    session.select("lstQueries", {0, 1});
    session.doubleClick("lstQueries", 1);
    QCOMPARE(session.written(), QStringList{"Q_Two.bas"});
  }

  void aDoubleClickOnEachListStartsItsDriver() {
    OpenedSession session;
    constexpr std::array<const char*, 6> kLists = {"lstQueries", "lstForms",   "lstReports",
                                                   "lstMacros",  "lstModules", "lstObjects"};
    for (std::size_t tab = 0; tab < kLists.size(); ++tab) {
      session.turnTo(static_cast<int>(tab));
      session.doubleClick(kLists[tab], 0);
    }
    for (const char* const file : {"Q_One.bas", "F_One.frm", "R_One.dsr", "B_One.bas"})
      QVERIFY2(session.written().contains(QString::fromLatin1(file)), file);
    QCOMPARE(session.find<QAbstractItemView>("lstModules")->model()->rowCount(), 3);
  }

  void enterInAListConvertsItsSelection() {
    OpenedSession session;
    session.select("lstQueries", {0});
    QTest::keyClick(session.find<QAbstractItemView>("lstQueries"), Qt::Key_Return);
    QCOMPARE(session.written(), QStringList{"Q_One.bas"});
  }

  void multipleQueriesGoIntoOneModuleWhenTheBoxIsTicked() {
    OpenedSession session;
    session.click("chkMultiSel");
    session.click("cmdAllQrys");
    QCOMPARE(session.written().size(), 1);
  }

  void optionsReachTheMainObject() {
    OpenedSession session;
    session.turnTo(1);
    session.click("optMultiPage(1)");
    session.click("optContinuous(1)");
    session.select("lstForms", {0});
    session.click("cmdConvertFrm");
    QCOMPARE(session.main().window.optMultiPage, 1);
    QCOMPARE(session.main().window.optContinuous, 1);
  }

  void previewShowsAWindowForTheFirstSelectedForm() {
    OpenedSession session;
    session.turnTo(1);
    session.select("lstForms", {1});
    session.click("cmdObjProps");
    QWidget* preview = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String("Form1") && widget->isVisible()) preview = widget;
    }
    QVERIFY(preview != nullptr);
    QCOMPARE(preview->windowTitle(), QStringLiteral("Two"));
  }

  void browseTellsTheKindAndTheNumberInItsTitle_data() {
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("several");
    QTest::newRow("queries") << 0 << "lstQueries"
                             << "Save Query in Folder..."
                             << "Save Queries in Folder...";
    QTest::newRow("forms") << 1 << "lstForms"
                           << "Save Form in Folder..."
                           << "Save Forms in Folder...";
    QTest::newRow("reports") << 2 << "lstReports"
                             << "Save Report in Folder..."
                             << "Save Reports in Folder...";
    QTest::newRow("macros") << 3 << "lstMacros"
                            << "Save Macro in Folder..."
                            << "Save Macros in Folder...";
    QTest::newRow("modules") << 4 << "lstModules"
                             << "Save Module in Folder..."
                             << "Save Modules in Folder...";
    QTest::newRow("objects") << 5 << "lstObjects"
                             << "Save Object in Folder..."
                             << "Save Objects in Folder...";
  }
  void browseTellsTheKindAndTheNumberInItsTitle() {
    QFETCH(int, tab);
    QFETCH(QString, list);
    QFETCH(QString, one);
    QFETCH(QString, several);
    OpenedSession session;
    session.turnTo(tab);
    session.select(list.toLatin1(), {0});
    session.click("cmdBrowse");
    session.select(list.toLatin1(), {0, 1});
    session.click("cmdBrowse");
    const auto seen = session.dialogs().seen("folder");
    QCOMPARE(seen.size(), std::size_t{2});
    QCOMPARE(seen[0].title, one);
    QCOMPARE(seen[1].title, several);
  }

  void aFolderChosenByBrowseBecomesTheOutputDirectory() {
    OpenedSession session;
    std::filesystem::create_directory(session.path("other").toStdString());
    session.dialogs().answer(session.path("other"));
    session.click("cmdBrowse");
    QCOMPARE(session.find<QLineEdit>("txtCurDir")->text(), session.path("other"));
    // A cancelled dialog changes nothing.
    session.click("cmdBrowse");
    QCOMPARE(session.find<QLineEdit>("txtCurDir")->text(), session.path("other"));
  }

  void findPathTakesTheLibraryOfThatName() {
    OpenedSession session;
    session.turnTo(2);
    session.dialogs().answer(QStringLiteral("C:\\dll\\msderun.dll"));
    session.click("cmdFindPath(0)");
    QCOMPARE(session.find<QLabel>("lblFindPath(2)")->text(), QStringLiteral("C:\\dll\\"));
    session.dialogs().answer(QStringLiteral("C:\\dll\\MSADO15.DLL"));
    session.click("cmdFindPath(1)");
    QCOMPARE(session.dialogs().seen("box").back().text,
             QStringLiteral("Please select the MSADO15.DLL file."));
  }

  void theToolbarTurnsTheTabs() {
    OpenedSession session;
    constexpr std::array<const char*, 6> kKeys = {"keyQueries", "keyForms",   "keyReports",
                                                  "keyMacros",  "keyModules", "keyVBProject"};
    for (int tab = 5; tab >= 0; --tab) {
      session.view().findChild<QAction*>(kKeys[static_cast<std::size_t>(tab)])->trigger();
      QCOMPARE(session.find<QTabWidget>("tabSelect")->currentIndex(), tab);
      QCOMPARE(session.main().window.tabSelect, tab);
    }
  }

  void theToolbarOpensHelpsAndSupports() {
    OpenedSession session;
    session.view().findChild<QAction*>("keyMDBs")->trigger();
    QCOMPARE(session.dialogs().seen().back().kind, QStringLiteral("file"));
    session.view().findChild<QAction*>("keyHelp")->trigger();
    QCOMPARE(session.dialogs().seen().back().title, QStringLiteral("Tarrowin"));
    session.view().findChild<QAction*>("keySupport")->trigger();
    QCOMPARE(session.dialogs().seen().back().title, QStringLiteral("Tarrowin Support"));
  }

  void cmdOpenOpensAnotherDatabase() {
    OpenedSession session;
    session.dialogs().answer(session.sample());
    session.click("cmdOpen");
    QCOMPARE(session.find<QAbstractItemView>("lstForms")->model()->rowCount(), 16);
    QVERIFY(session.view().windowTitle().contains(QStringLiteral("[northport.access.json]")));
  }

  void theHowToTabTurnsItsPages() {
    OpenedSession session;
    session.turnTo(6);
    const QStringList titles = {"Overview",
                                "Converting Queries",
                                "Converting Forms",
                                "Converting Reports",
                                "Converting Macros",
                                "Converting Modules",
                                "Creating Visual Basic Projects"};
    for (int page = 1; page < titles.size(); ++page) {
      session.click("cmdNext");
      QCOMPARE(session.find<QLabel>("lblTitle")->text(), titles[page]);
      QVERIFY(!session.find<QLabel>("lblInfo(0)")->text().isEmpty());
    }
    QVERIFY(!session.find<QAbstractButton>("cmdNext")->isEnabled());
    for (int page = 5; page >= 0; --page) {
      session.click("cmdPrev");
      QCOMPARE(session.find<QLabel>("lblTitle")->text(), titles[page]);
    }
    QVERIFY(!session.find<QAbstractButton>("cmdPrev")->isEnabled());
  }

  // Leaving.

  void exitAsksFirst() {
    OpenedSession session;
    session.dialogs().answer(QStringLiteral("No"));
    session.view().findChild<QAction*>("keyExit")->trigger();
    const auto boxes = session.dialogs().seen("box");
    QCOMPARE(boxes.back().text, QStringLiteral("Exit Tarrowin?"));
    QCOMPARE(boxes.back().title, kTitle);
    QVERIFY(session.view().isVisible());
    QVERIFY(bool(session.main().state.gappAccess));
    session.dialogs().answer(QStringLiteral("Yes"));
    session.view().findChild<QAction*>("keyExit")->trigger();
    QVERIFY(!session.view().isVisible());
    QVERIFY(!session.main().state.gappAccess);
  }

  // What goes wrong.

  void aDatabaseThatWasDeletedMeanwhileDoesNotEndTheProgram() {
    OpenedSession session;
    std::filesystem::remove(session.path("small.access.json").toStdString());
    session.click("cmdAllQrys");
    QCOMPARE(session.written(), (QStringList{"Q_One.bas", "Q_Two.bas"}));
    session.turnTo(3);
    session.dialogs().forget();
    session.click("cmdAllMacros");
    // New modules have nowhere to go: that is told, and none is listed.
    QVERIFY(!session.dialogs().seen("box").empty());
    QCOMPARE(session.find<QAbstractItemView>("lstModules")->model()->rowCount(), 2);
  }

  void anOutputDirectoryThatVanishedIsAskedFor() {
    OpenedSession session;
    std::filesystem::remove_all(session.path("out").toStdString());
    session.dialogs().answer(QStringLiteral("Yes"));
    session.click("cmdAllQrys");
    QVERIFY(session.dialogs().seen("box").front().text.contains(
        QStringLiteral("does not exist.  Do you want to create it?")));
    QCOMPARE(session.written(), (QStringList{"Q_One.bas", "Q_Two.bas"}));
  }

  void aRecentFileThatIsGoneIsForgotten() {
    OpenedSession session;
    session.shell().openSource(session.path("gone.mdb"));
    QVERIFY(session.dialogs().seen("box").back().text.startsWith(
        QStringLiteral("Unable to open database gone.mdb.")));
    QVERIFY(session.view().isVisible());
    const Settings settings(session.path("tarrowin.ini"));
    QCOMPARE(settings.recentFiles(), QStringList{session.path("small.access.json")});
  }

  // Beyond the described window.

  void aDatabaseDroppedOntoTheWindowIsOpened() {
    OpenedSession session;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(session.sample())});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&session.view(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&session.view(), &drop);
    QTRY_COMPARE(session.find<QAbstractItemView>("lstForms")->model()->rowCount(), 16);
  }

  void textDroppedOntoTheWindowIsRefused() {
    OpenedSession session;
    QMimeData data;
    data.setText(QStringLiteral("no file"));
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&session.view(), &enter);
    QVERIFY(!enter.isAccepted());
  }

  void aRecentDatabaseIsOpenedFromTheMenu() {
    OpenedSession session;
    session.shell().openSource(session.sample());
    QAction* recent = nullptr;
    for (QAction* const action : session.view().toolbar().findChildren<QAction*>()) {
      if (action->text().endsWith(QStringLiteral("small.access.json"))) recent = action;
    }
    QVERIFY(recent != nullptr);
    recent->trigger();
    QCOMPARE(session.find<QAbstractItemView>("lstForms")->model()->rowCount(), 2);
  }

  void theFilesOfABatchAreListed() {
    OpenedSession session;
    QVERIFY(!session.view().writtenFiles().isVisible());
    session.click("cmdAllQrys");
    QVERIFY(session.view().writtenFiles().isVisible());
    QCOMPARE(session.view().writtenFiles().files(),
             (QStringList{session.path("out/Q_One.bas"), session.path("out/Q_Two.bas")}));
  }

  void theTextOfABoxCanBeCopied() {
    OpenedSession session;
    bool open = false;
    session.dialogs().look = [&](QWidget& dialog) {
      for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>("cmdCopy"))
        QTest::mouseClick(button, Qt::LeftButton);
      open = dialog.isVisible();
    };
    session.click("cmdAllQrys");
    QVERIFY(open);
    QCOMPARE(QApplication::clipboard()->text(), session.dialogs().seen("box").back().text);
  }

  void everythingIsReachedByTheTabKey() {
    OpenedSession session;
    session.find<QTabWidget>("tabSelect")->setFocus();
    QStringList reached;
    for (int step = 0; step < 30; ++step) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      reached.append(QApplication::focusWidget()->objectName());
    }
    for (const char* const name : {"lstQueries", "cmdConvertQry", "cmdAllQrys", "chkMultiSel",
                                   "txtCurDir", "cmdBrowse", "cmdOpen"})
      QVERIFY2(reached.contains(QString::fromLatin1(name)), name);
  }

  void screenReadersHearANameForEveryControl() {
    OpenedSession session;
    for (QWidget* const widget : session.view().findChildren<QWidget*>()) {
      if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) continue;
      if (!widget->isVisible()) continue;
      const auto* const button = qobject_cast<QAbstractButton*>(widget);
      const bool named = !widget->accessibleName().isEmpty() ||
                         (button != nullptr && !button->text().isEmpty()) ||
                         widget->objectName() == QLatin1String("tabSelect") ||
                         qobject_cast<QTabBar*>(widget) != nullptr ||
                         // Read by its own text.
                         qobject_cast<QLabel*>(widget) != nullptr;
      QVERIFY2(named, qPrintable(widget->objectName() + ' ' + widget->metaObject()->className()));
    }
  }
};

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::MainWindowTest)
#include "main_window_test.moc"
