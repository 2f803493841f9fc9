// Style numbers to icons, buttons and the default button.
#include "shell/message_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "shell/icons.h"

namespace tarrowin {

namespace {

QMessageBox::Icon iconOf(int style) {
  // The icon stands in the second group of four bits.
  switch (style & 0xF0) {
    case 0x10:
      return QMessageBox::Critical;
    case 0x20:
      return QMessageBox::Question;
    case 0x40:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

void addCopyButton(QMessageBox& box, const QString& text) {
  auto* const copy = new QPushButton(iconNamed("copy"), QObject::tr("&Copy Text"));
  copy->setObjectName(QStringLiteral("cmdCopy"));
  copy->setAutoDefault(false);
  box.addButton(copy, QMessageBox::ActionRole);
  // The box would close on any of its buttons.
  QObject::disconnect(copy, &QPushButton::clicked, nullptr, nullptr);
  QObject::connect(copy, &QPushButton::clicked, &box,
                   [text] { QGuiApplication::clipboard()->setText(text); });
}

}  // namespace

Answer showMessageBox(QWidget* parent, int style, const QString& text, const QString& title) {
  QMessageBox box(parent);
  box.setIcon(iconOf(style));
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (message_style::asksYesNo(style)) {
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(message_style::defaultIsNo(style) ? QMessageBox::No : QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
  } else {
    box.setStandardButtons(QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
  }
  addCopyButton(box, text);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    default:
      return Answer::kOk;
  }
}

}  // namespace tarrowin
