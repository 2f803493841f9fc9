// The balloon as a small dialog.
#include "shell/help_balloon.h"

#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

constexpr int kTextWidth = 460;
constexpr int kTallestText = 420;

QLabel* makeParagraph(const QString& text) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

}  // namespace

HelpBalloon::HelpBalloon(const QString& heading, const QString& text, const QStringList& labels,
                         Labels kind, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("balloon"));
  setWindowTitle(heading);
  auto* const layout = new QVBoxLayout(this);

  auto* const title = new QLabel(heading);
  title->setObjectName(QStringLiteral("balloonHeading"));
  title->setTextFormat(Qt::PlainText);
  makeHeading(title, 1.25);
  layout->addWidget(title);

  auto* const content = new QWidget;
  auto* const rows = new QVBoxLayout(content);
  rows->setContentsMargins(0, 0, 0, 0);
  QLabel* const body = makeParagraph(text);
  body->setObjectName(QStringLiteral("balloonText"));
  rows->addWidget(body);
  int number = 0;
  for (const QString& label : labels) {
    if (kind == Labels::kLinks) {
      rows->addWidget(labelButton(label, ++number));
    } else {
      rows->addWidget(makeParagraph(label));
    }
  }
  rows->addStretch();
  layout->addWidget(textPane(content), 1);

  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  buttons->button(QDialogButtonBox::Ok)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addWidget(buttons);
  buttons->button(QDialogButtonBox::Ok)->setFocus();
}

// What is taller than a small screen scrolls.
QWidget* HelpBalloon::textPane(QWidget* content) {
  content->setFixedWidth(kTextWidth);
  const int height = content->layout()->heightForWidth(kTextWidth);
  content->setMinimumHeight(height);
  if (height <= kTallestText) return content;
  auto* const scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(content);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setMinimumSize(kTextWidth + 24, kTallestText);
  return scroll;
}

// A label that explains itself behind a colon shows the explanation below its caption.
QWidget* HelpBalloon::labelButton(const QString& label, int number) {
  const qsizetype colon = label.indexOf(QLatin1String(": "));
  auto* const button = colon < 0 ? new QCommandLinkButton(label)
                                 : new QCommandLinkButton(label.left(colon), label.mid(colon + 2));
  button->setObjectName(QStringLiteral("balloonLabel%1").arg(number));
  // Enter follows the link that has the focus.
  button->setAutoDefault(true);
  connect(button, &QCommandLinkButton::clicked, this, [this, number] {
    chosen_ = number;
    accept();
  });
  return button;
}

}  // namespace tarrowin
