// What the window does while a conversion runs.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QTest>

#include "shell/window_session.h"

namespace tarrowin::test {

namespace {

// Sees the window each time that its progress bar is painted.
class ProgressWatch : public QObject {
 public:
  ProgressWatch(QProgressBar* bar, std::function<void()> look) : look_(std::move(look)) {
    bar->installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) look_();
    return false;
  }

 private:
  std::function<void()> look_;
};

}  // namespace

class LongBatchTest : public QObject {
  Q_OBJECT

 private slots:
  void progressIsPaintedWhileABatchRuns() {
    WindowSession session;
    session.openWith(session.database("big.access.json", databaseOf("modules", 30)));
    session.turnTo(4);
    QStringList shown;
    auto* const bar = session.find<QProgressBar>("ProgressBar1(4)");
    ProgressWatch watch(bar, [&] {
      shown.append(session.find<QLabel>("lblPct")->text() + ' ' +
                   session.find<QLabel>("lblPercent")->text());
      QVERIFY(session.find<QLabel>("lblConverting")->isVisible());
      QVERIFY(!session.find<QLabel>("lblCurDb")->isVisible());
      QVERIFY(QApplication::overrideCursor() != nullptr);
    });
    session.click("cmdAllMods");
    shown.removeDuplicates();
    QVERIFY2(shown.size() >= 20, qPrintable(shown.join('\n')));
    QVERIFY(!bar->isVisible());
    QVERIFY(session.find<QLabel>("lblCurDb")->isVisible());
    QVERIFY(QApplication::overrideCursor() == nullptr);
  }

  // Nothing can be clicked twice: what the user does meanwhile is dropped, not kept for later.
  void clicksAndKeysDuringABatchAreDropped() {
    WindowSession session;
    session.openWith(session.database("big.access.json", databaseOf("modules", 10)));
    session.turnTo(4);
    session.dialogs().forget();
    auto* const all = session.find<QAbstractButton>("cmdAllMods");
    auto* const list = session.find<QAbstractItemView>("lstModules");
    int tries = 0;
    ProgressWatch watch(session.find<QProgressBar>("ProgressBar1(4)"), [&] {
      ++tries;
      const QPointF middle = all->rect().center();
      for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QApplication::postEvent(all, new QMouseEvent(type, middle, all->mapToGlobal(middle),
                                                     Qt::LeftButton, Qt::LeftButton, {}));
      QApplication::postEvent(list, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, {}));
    });
    session.click("cmdAllMods");
    QCoreApplication::processEvents();
    QVERIFY(tries > 0);
    // One summary, of one batch.
    QCOMPARE(session.dialogs().seen("box").size(), std::size_t{1});
  }

  void theWindowDoesNotCloseUnderABatch() {
    WindowSession session;
    session.openWith(session.database("big.access.json", databaseOf("modules", 5)));
    session.turnTo(4);
    bool closed = true;
    ProgressWatch watch(session.find<QProgressBar>("ProgressBar1(4)"),
                        [&] { closed = session.view().close(); });
    session.click("cmdAllMods");
    QVERIFY(!closed);
    QVERIFY(session.view().isVisible());
    QVERIFY(session.dialogs().seen("box").back().text.contains(QStringLiteral("5")));
  }
};

}  // namespace tarrowin::test

QTEST_MAIN(tarrowin::test::LongBatchTest)
#include "long_batch_test.moc"
