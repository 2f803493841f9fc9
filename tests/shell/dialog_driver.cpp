// A timer looks for a modal dialog and presses its keys.
#include "shell/dialog_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <algorithm>
#include <iterator>

namespace tarrowin::test {

namespace {

constexpr int kPollMilliseconds = 5;

SeenDialog describe(const QWidget& dialog) {
  SeenDialog seen{QStringLiteral("dialog"), dialog.windowTitle(), {}};
  if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
    seen.kind = QStringLiteral("box");
    seen.text = box->text();
  } else if (const auto* chooser = qobject_cast<const QFileDialog*>(&dialog)) {
    seen.kind = chooser->fileMode() == QFileDialog::Directory ? QStringLiteral("folder")
                                                              : QStringLiteral("file");
    seen.text = chooser->nameFilters().join(QLatin1Char('\n'));
  } else if (dialog.objectName() == QLatin1String("balloon")) {
    seen.kind = QStringLiteral("balloon");
    seen.text = dialog.findChild<QLabel*>(QStringLiteral("balloonText"))->text();
  } else if (dialog.objectName() == QLatin1String("frmMessage")) {
    seen.kind = QStringLiteral("notice");
    seen.text = dialog.findChild<QPlainTextEdit*>()->toPlainText();
  }
  return seen;
}

void clickCaption(const QWidget& dialog, const QString& caption) {
  for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
    if (button->text().remove(QLatin1Char('&')) != caption) continue;
    QTest::mouseClick(button, Qt::LeftButton);
    return;
  }
  QTest::qFail(qPrintable(QStringLiteral("no button ") + caption), __FILE__, __LINE__);
}

// The path is typed and entered, as a person in a hurry does it.
void enterPath(const QFileDialog& dialog, const QString& path) {
  auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  field->setText(path);
  QTest::keyClick(field, Qt::Key_Return);
}

}  // namespace

DialogDriver::DialogDriver() {
  connect(&timer_, &QTimer::timeout, this, &DialogDriver::poll);
  timer_.start(kPollMilliseconds);
}

std::vector<SeenDialog> DialogDriver::seen(const QString& kind) const {
  std::vector<SeenDialog> found;
  std::ranges::copy_if(seen_, std::back_inserter(found),
                       [&](const SeenDialog& dialog) { return dialog.kind == kind; });
  return found;
}

void DialogDriver::poll() {
  QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || answering_ || !dialog->isVisible()) return;
  answering_ = true;
  answerDialog(*dialog);
  answering_ = false;
}

void DialogDriver::answerDialog(QWidget& dialog) {
  seen_.push_back(describe(dialog));
  if (look) look(dialog);
  QString answer;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  if (answer.isEmpty()) {
    QTest::keyClick(&dialog, Qt::Key_Escape);
  } else if (const auto* chooser = qobject_cast<const QFileDialog*>(&dialog)) {
    enterPath(*chooser, answer);
  } else if (seen_.back().kind == QLatin1String("balloon")) {
    auto* const label = dialog.findChild<QAbstractButton*>(QStringLiteral("balloonLabel") + answer);
    QTest::mouseClick(label, Qt::LeftButton);
  } else {
    clickCaption(dialog, answer);
  }
}

}  // namespace tarrowin::test
