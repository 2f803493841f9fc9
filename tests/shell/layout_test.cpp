// The window at the sizes, scales and palettes that it is used in.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>

#include "shell/window_session.h"

namespace tarrowin::test {

// The difference between the lightest and the darkest spot, of 255.
int contrastIn(const QImage& picture) {
  int lightest = 0, darkest = 255;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int lightness = picture.pixelColor(x, y).lightness();
      lightest = std::max(lightest, lightness);
      darkest = std::min(darkest, lightness);
    }
  }
  return lightest - darkest;
}

class LayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void controlsOfATabStandAtTheirFractionOfItsWidth_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(1024, 700);
    QTest::newRow("large") << QSize(1900, 1000);
  }
  void controlsOfATabStandAtTheirFractionOfItsWidth() {
    QFETCH(QSize, size);
    WindowSession session;
    session.openWith({});
    session.view().resize(size);
    QTRY_COMPARE(session.view().size(), size);
    struct Place {
      int tab;
      const char* control;
      double fraction;
    };
    constexpr std::array kPlaces = {
        Place{0, "lstQueries", 0.03},    Place{0, "cmdConvertQry", 0.925},
        Place{0, "cmdAllQrys", 0.925},   Place{0, "chkMultiSel", 0.03},
        Place{1, "fraConvert(0)", 0.03}, Place{1, "fraConvert(1)", 0.475},
        Place{1, "cmdObjProps", 0.925},  Place{2, "fraConvert(2)", 0.475},
        Place{3, "cmdAllMacros", 0.925}, Place{4, "lstModules", 0.03},
        Place{5, "cboFormNames", 0.22},  Place{5, "lblSelectVBStartupForm", 0.03},
        Place{6, "cmdPrev", 0.825},      Place{6, "cmdNext", 0.885},
    };
    auto* const tabs = session.find<QTabWidget>("tabSelect");
    for (const Place& place : kPlaces) {
      session.turnTo(place.tab);
      QCoreApplication::processEvents();
      const auto* const control = session.find<QWidget>(place.control);
      QWidget* const page = tabs->currentWidget();
      const double left = control->mapTo(page, QPoint(0, 0)).x();
      const double expected = place.fraction * page->width();
      QVERIFY2(std::abs(left - expected) <= 2,
               qPrintable(QStringLiteral("%1: %2 for %3")
                              .arg(QString::fromLatin1(place.control))
                              .arg(left)
                              .arg(expected)));
    }
  }

  // A resize event before Form_Load has called SaveFormsize changes nothing: layouts place the
  // controls when the window is shown, at whatever size it then has.
  void aResizeBeforeTheWindowIsLoadedChangesNothing() {
    const std::array<const char*, 4> kControls = {"lstQueries", "cmdConvertQry", "txtCurDir",
                                                  "cmdOpen"};
    // The places of the controls at one size, of a window that was resized before or was not.
    const auto placesAfter = [&](bool resizedBefore) {
      WindowSession session;
      if (resizedBefore) session.view().resize(1500, 900);
      session.openWith({});
      session.view().resize(1024, 700);
      if (!QTest::qWaitFor([&] { return session.view().size() == QSize(1024, 700); }))
        return QList<QRect>();
      QCoreApplication::processEvents();
      QList<QRect> places;
      for (const char* const name : kControls)
        places.append(session.find<QWidget>(name)->geometry());
      return places;
    };
    QCOMPARE(placesAfter(true), placesAfter(false));
  }

  void theWindowFitsASmallScreen() {
    WindowSession session;
    session.openWith({});
    const QSize least = session.view().minimumSizeHint();
    QVERIFY2(least.width() <= 1024 && least.height() <= 700,
             qPrintable(QStringLiteral("%1x%2").arg(least.width()).arg(least.height())));
  }

  void longTextsDoNotWidenTheWindow() {
    WindowSession session;
    session.openWith({});
    const int width = session.view().width();
    MainWindow window = session.main().window;
    window.lblCurDb.caption = std::string(2000, 'x');
    window.lblPct = Label{std::string(2000, 'y'), true};
    session.view().show(window);
    QCoreApplication::processEvents();
    QCOMPARE(session.view().width(), width);
    QVERIFY(session.view().minimumSizeHint().width() <= 1024);
  }

  void nothingOnATabIsCutOffAtTheSmallestSize() {
    WindowSession session;
    session.openWith(session.sample());
    session.view().resize(1024, 700);
    QTRY_COMPARE(session.view().size(), QSize(1024, 700));
    auto* const tabs = session.find<QTabWidget>("tabSelect");
    for (int tab = 0; tab < tabs->count(); ++tab) {
      session.turnTo(tab);
      QCoreApplication::processEvents();
      for (QAbstractButton* const button :
           tabs->currentWidget()->findChildren<QAbstractButton*>()) {
        if (!button->isVisible()) continue;
        QVERIFY2(
            button->fontMetrics().horizontalAdvance(button->text().remove('&')) <= button->width(),
            qPrintable(button->objectName()));
      }
    }
  }

  void fiveThousandObjectsAreListedWithoutWidgetsOfTheirOwn() {
    WindowSession session;
    session.openWith(session.database("big.access.json", databaseOf("queries", 5000)));
    auto* const list = session.find<QListView>("lstQueries");
    QCOMPARE(list->model()->rowCount(), 5000);
    QVERIFY(list->uniformItemSizes());
    QVERIFY(list->viewport()->findChildren<QWidget*>().size() < 10);
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(list->selectionModel()->selectedRows().size(), 5000);
    // The last item stands below the first 4,999 of equal height.
    list->scrollToBottom();
    QVERIFY(list->viewport()->rect().intersects(list->visualRect(list->model()->index(4999, 0))));
  }

  void textsReadWellInADarkPalette() {
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    {
      WindowSession session;
      session.openWith(session.sample());
      const QImage picture = session.view().grab().toImage();
      int read = 0;
      for (QLabel* const label : session.view().findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().trimmed().isEmpty()) continue;
        const QRect place(label->mapTo(&session.view(), QPoint(0, 0)), label->size());
        QVERIFY2(contrastIn(picture.copy(place)) > 100, qPrintable(label->objectName()));
        ++read;
      }
      QVERIFY(read > 4);
    }
    QApplication::setPalette(usual);
  }
};

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::LayoutTest)
#include "layout_test.moc"
