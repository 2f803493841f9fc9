// Splash, notice and marker file, as the window program shows them.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QTest>

#include "shared/temporary_directory.h"
#include "shell/dialog_driver.h"
#include "shell/shell.h"

namespace tarrowin::test {

class StartTest : public QObject {
  Q_OBJECT

 private:
  struct Started {
    TemporaryDirectory directory;
    DialogDriver dialogs;

    ShellPlaces places() const {
      ShellPlaces places;
      places.settingsFile = QString::fromStdString(directory / "tarrowin.ini");
      places.markerFile = QString::fromStdString(directory / "tnmsg.srg");
      places.openFolder = QString::fromStdString(directory.path()) + QLatin1Char('/');
      places.currentDirectory = QString::fromStdString(directory.path());
      return places;
    }
  };

  static QWidget* splash() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String("frmTarrowinStartup") && widget->isVisible())
        return widget;
    }
    return nullptr;
  }

 private slots:
  void theSplashGoesWhenTheMainWindowComes() {
    Started started;
    started.directory.write("tnmsg.srg", "0\r\n");
    Shell shell(started.places());
    shell.start();
    QVERIFY(splash() != nullptr);
    QVERIFY(!shell.view().isVisible());
    QTRY_VERIFY(shell.view().isVisible());
    QTRY_COMPARE(started.dialogs.seen("file").size(), std::size_t{1});
    QVERIFY(splash() == nullptr);
    QVERIFY(started.dialogs.seen("notice").empty());
    shell.view().close();
  }

  void withoutAMarkerTheNoticeIsShownAndTheMarkerMade() {
    Started started;
    Shell shell(started.places());
    started.dialogs.answer(QStringLiteral("OK"));
    shell.openWindows();
    const auto notices = started.dialogs.seen("notice");
    QCOMPARE(notices.size(), std::size_t{1});
    QCOMPARE(notices[0].title, QStringLiteral("Microsoft Access to Visual Basic Tarrowin"));
    QVERIFY(notices[0].text.startsWith(
        QStringLiteral("The Tarrowin cannot open Microsoft Access databases prior to Access "
                       "97.\n\nIt is highly recommended")));
    QVERIFY(notices[0].text.contains(QStringLiteral("CONVERSION TIME:\nThe total time")));
    QVERIFY(shell.view().isVisible());
    QCOMPARE(QString::fromStdString(started.directory.read("tnmsg.srg")), QStringLiteral("1\r\n"));
    shell.view().close();
  }

  void theTickedBoxKeepsTheNoticeAway() {
    Started started;
    started.directory.write("tnmsg.srg", "1\r\n");
    {
      Shell shell(started.places());
      started.dialogs.look = [](QWidget& dialog) {
        if (auto* const box = dialog.findChild<QCheckBox*>(QStringLiteral("chkShowMessage")))
          QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
      };
      started.dialogs.answer(QStringLiteral("OK"));
      shell.openWindows();
      shell.view().close();
    }
    QCOMPARE(QString::fromStdString(started.directory.read("tnmsg.srg")), QStringLiteral("0\r\n"));
    started.dialogs.forget();
    Shell next(started.places());
    next.openWindows();
    QVERIFY(started.dialogs.seen("notice").empty());
    QVERIFY(next.view().isVisible());
    next.view().close();
  }

  void aNoticeClosedWithoutOkStillLeadsToTheMainWindow() {
    Started started;
    Shell shell(started.places());
    shell.openWindows();
    QVERIFY(shell.view().isVisible());
    QCOMPARE(QString::fromStdString(started.directory.read("tnmsg.srg")), QStringLiteral("1\r\n"));
    shell.view().close();
  }

  void aMarkerThatCannotBeReadIsToldAndTheStartGoesOn() {
    Started started;
    ShellPlaces places = started.places();
    places.markerFile = QString::fromStdString(started.directory / "no/such/folder/tnmsg.srg");
    Shell shell(places);
    shell.openWindows();
    const auto boxes = started.dialogs.seen("box");
    QCOMPARE(boxes.size(), std::size_t{1});
    QVERIFY2(boxes[0].text.startsWith(QStringLiteral("TarrowinOpen() - Error #76\n")),
             qPrintable(boxes[0].text));
    QVERIFY(shell.view().isVisible());
    shell.view().close();
  }

  void aSecondInstanceRunsBesideTheFirst() {
    Started started;
    started.directory.write("tnmsg.srg", "0\r\n");
    started.directory.write("one.access.json",
                            R"({"snapshot": 1, "database": {"name": "one.mdb", "version": "4.0",
      "properties": {"AccessVersion": "08.50"}}, "queries": [{"name": "Q", "sql": "SELECT 1;"}]})");
    const QString database = QString::fromStdString(started.directory / "one.access.json");
    Shell first(started.places());
    Shell second(started.places());
    first.openSource(database);
    second.openSource(database);
    for (Shell* const shell : {&first, &second}) {
      QCOMPARE(shell->main().window.list(ObjectList::kQueries).size(), std::size_t{1});
      QVERIFY(!shell->main().state.mblnOpenFailed);
    }
    QCOMPARE(Settings(started.places().settingsFile).recentFiles(), QStringList{database});
  }

  void sizeAndDirectoriesAreRememberedForTheNextRun() {
    Started started;
    started.directory.write("tnmsg.srg", "0\r\n");
    {
      Shell shell(started.places());
      shell.openWindows();
      QVERIFY(QTest::qWaitForWindowExposed(&shell.view()));
      shell.view().resize(1111, 777);
      QTRY_COMPARE(shell.view().size(), QSize(1111, 777));
      shell.view().close();
    }
    Shell next(started.places());
    QCOMPARE(next.view().size(), QSize(1111, 777));
  }
};

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::StartTest)
#include "start_test.moc"
