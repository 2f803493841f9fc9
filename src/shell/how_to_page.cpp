// Title, steps and pager.
#include "shell/how_to_page.h"

#include <QLabel>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

constexpr int kTitleRow = 0, kStepsRow = 1, kHintRow = 2, kPagerRow = 3;

}  // namespace

HowToPage::HowToPage(const PageText& text)
    : text_(text),
      grid_(this),
      lblTitle_(makeLabel(QStringLiteral("lblTitle"))),
      lblCurrentPage_(makeLabel(QStringLiteral("lblCurrentPage"))),
      lblLastPage_(makeLabel(QStringLiteral("lblLastPage"))),
      position_(makeLabel(QStringLiteral("position"))),
      cmdPrev_(makePagerButton(QStringLiteral("cmdPrev"), tr("< &Prev"))),
      cmdNext_(makePagerButton(QStringLiteral("cmdNext"), tr("&Next >"))) {
  makeHeading(lblTitle_, 1.25);

  auto* const steps = new QWidget;
  auto* const column = new QVBoxLayout(steps);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(10);
  for (std::size_t i = 0; i < lblInfo_.size(); ++i) {
    lblInfo_[i] = makeLabel(elementName("lblInfo", static_cast<int>(i)));
    lblInfo_[i]->setWordWrap(true);
    lblInfo_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblInfo_[i]->setContextMenuPolicy(Qt::NoContextMenu);
    column->addWidget(lblInfo_[i]);
  }
  column->addStretch();
  auto* const scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(steps);
  // The ground is the tab's own.
  scroll->viewport()->setAutoFillBackground(false);
  steps->setAutoFillBackground(false);

  // The pager's numbers count from 0.
  lblCurrentPage_->hide();
  lblLastPage_->hide();
  position_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

  QLabel* const hint =
      makeLabel(QStringLiteral("lblAnyObject"),
                tr("For Help on any Object in the Tarrowin window, Right-Click on the Object "));
  hint->setWordWrap(true);
  grid_.place(lblTitle_, kTitleRow, PagePlace::kLeft, PagePlace::kButton);
  grid_.place(scroll, kStepsRow, PagePlace::kLeft, PagePlace::kButton);
  grid_.stretchRow(kStepsRow);
  grid_.place(hint, kHintRow, PagePlace::kLeft, PagePlace::kButton);
  grid_.place(lblCurrentPage_, kPagerRow, PagePlace::kLeft, PagePlace::kStartForm);
  grid_.place(lblLastPage_, kPagerRow, PagePlace::kStartForm, PagePlace::kSecondFrame);
  grid_.place(position_, kPagerRow, PagePlace::kSecondFrame, PagePlace::kPrevious);
  grid_.place(cmdPrev_, kPagerRow, PagePlace::kPrevious, PagePlace::kNext);
  grid_.placeNext(cmdNext_, kPagerRow);
}

QToolButton* HowToPage::makePagerButton(const QString& name, const QString& caption) {
  auto* const button = new QToolButton;
  button->setObjectName(name);
  button->setText(caption);
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QToolButton::clicked, this, [this, name] { emit clicked(name); });
  return button;
}

void HowToPage::show(const MainWindow& window) {
  lblTitle_->setText(text_.shown(window.lblTitle.caption));
  for (std::size_t i = 0; i < lblInfo_.size(); ++i)
    lblInfo_[i]->setText(text_.shownLines(window.lblInfo[i].caption));
  lblCurrentPage_->setText(text_.shown(window.lblCurrentPage.caption));
  lblLastPage_->setText(text_.shown(window.lblLastPage.caption));
  position_->setText(tr("Page %1 of %2")
                         .arg(lblCurrentPage_->text().toInt() + 1)
                         .arg(lblLastPage_->text().toInt() + 1));
  cmdPrev_->setEnabled(window.cmdPrev.enabled);
  setToolTipAndName(cmdPrev_, text_.shown(window.cmdPrev.toolTip));
  cmdNext_->setEnabled(window.cmdNext.enabled);
  setToolTipAndName(cmdNext_, text_.shown(window.cmdNext.toolTip));
}

}  // namespace tarrowin
