// Check box, option frames, library paths and the start form.
#include "shell/option_pages.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

const ObjectPageRow& pageOf(ObjectList list) { return kObjectPages[indexOf(list)]; }

// A frame of the control array fraConvert.
QGroupBox* makeFrame(int index, const QString& caption) {
  auto* const frame = new QGroupBox(caption);
  frame->setObjectName(elementName("fraConvert", index));
  new QVBoxLayout(frame);
  return frame;
}

// Adds option buttons to the frame, elements of the array in the order of their captions.
QButtonGroup* addOptions(QGroupBox* frame, std::string_view array, const QStringList& captions) {
  auto* const group = new QButtonGroup(frame);
  for (const QString& caption : captions) {
    auto* const option = new QRadioButton(caption);
    const int index = static_cast<int>(group->buttons().size());
    option->setObjectName(elementName(array, index));
    frame->layout()->addWidget(option);
    group->addButton(option, index);
  }
  return group;
}

void choose(QButtonGroup* group, int index) {
  if (QAbstractButton* const option = group->button(index)) option->setChecked(true);
}

}  // namespace

QueriesPage::QueriesPage(const PageText& text)
    : ObjectPage(pageOf(ObjectList::kQueries), text),
      chkMultiSel_(new QCheckBox(tr("Convert multiple Query selections into a single Visual Basic "
                                    "Module (.bas) file"))) {
  chkMultiSel_->setObjectName(QStringLiteral("chkMultiSel"));
  grid().place(chkMultiSel_, kOptionsRow, PagePlace::kLeft, PagePlace::kNext);
}

void QueriesPage::showOptions(const MainWindow& window) {
  chkMultiSel_->setChecked(window.chkMultiSel != 0);
}

void QueriesPage::readOptions(MainWindow& window) const {
  window.chkMultiSel = chkMultiSel_->isChecked() ? 1 : 0;
}

FormsPage::FormsPage(const PageText& text) : ObjectPage(pageOf(ObjectList::kForms), text) {
  cmdObjProps_ =
      addButton(QStringLiteral("cmdObjProps"), tr("Pre&view"), "preview", tr("Preview Form"));
  QGroupBox* const multiPage = makeFrame(0, tr("Convert Multi-Page Forms to"));
  optMultiPage_ = addOptions(multiPage, "optMultiPage", {tr("&Tab Form"), tr("&Single Forms")});
  QGroupBox* const continuous = makeFrame(1, tr("Convert Continuous Forms to"));
  optContinuous_ = addOptions(continuous, "optContinuous",
                              {tr("Data&Grid Control"), tr("DataR&epeater Control")});
  grid().place(multiPage, kOptionsRow, PagePlace::kLeft, PagePlace::kSecondFrame);
  grid().place(continuous, kOptionsRow, PagePlace::kSecondFrame, PagePlace::kNext);
}

void FormsPage::showOptions(const MainWindow& window) {
  cmdObjProps_->setEnabled(window.cmdObjProps.enabled);
  choose(optMultiPage_, window.optMultiPage);
  choose(optContinuous_, window.optContinuous);
}

void FormsPage::readOptions(MainWindow& window) const {
  window.optMultiPage = optMultiPage_->checkedId();
  window.optContinuous = optContinuous_->checkedId();
}

ReportsPage::ReportsPage(const PageText& text) : ObjectPage(pageOf(ObjectList::kReports), text) {
  grid().place(makePathsFrame(), kOptionsRow, PagePlace::kSecondFrame, PagePlace::kNext);
}

QGroupBox* ReportsPage::makePathsFrame() {
  QGroupBox* const frame = makeFrame(2, tr("Select Path of "));
  const std::array<QString, 2> toolTips = {tr("Locate path of MSDERUN.DLL file"),
                                           tr("Locate path of MSADO15.DLL file")};
  const std::array<QString, 2> captions = {tr("msder&un.dll..."), tr("msad&o15.dll...")};
  auto* const rows = new QGridLayout;
  static_cast<QVBoxLayout*>(frame->layout())->addLayout(rows);
  rows->setColumnStretch(0, 1);
  for (int index = 0; index < 2; ++index) {
    const auto element = static_cast<std::size_t>(index);
    auto* const button = new QPushButton(captions[element]);
    button->setObjectName(elementName("cmdFindPath", index));
    setToolTipAndName(button, toolTips[element]);
    connect(button, &QPushButton::clicked, this,
            [this, index] { emit clicked(QStringLiteral("cmdFindPath"), index); });
    cmdFindPath_[element] = button;
    lblFindPath_[element] = makeLabel(elementName("lblFindPath", index));
    // A path may be as long as it likes.
    QLabel* const path = makeLabel(elementName("lblFindPath", index + 2));
    path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    path->setContextMenuPolicy(Qt::NoContextMenu);
    lblFindPath_[element + 2] = path;
    // The path below its heading, where it has room.
    rows->addWidget(lblFindPath_[element], 2 * index, 0);
    rows->addWidget(path, 2 * index + 1, 0);
    rows->addWidget(button, 2 * index, 1, 2, 1);
  }
  return frame;
}

void ReportsPage::showOptions(const MainWindow& window) {
  for (std::size_t i = 0; i < cmdFindPath_.size(); ++i)
    cmdFindPath_[i]->setEnabled(window.cmdFindPath[i].enabled);
  for (std::size_t i = 0; i < lblFindPath_.size(); ++i) {
    const QString caption = text().shown(window.lblFindPath[i].caption);
    lblFindPath_[i]->setText(caption);
    lblFindPath_[i]->setToolTip(caption);
  }
}

ProjectPage::ProjectPage(const PageText& text)
    : ObjectPage(pageOf(ObjectList::kObjects), text), cboFormNames_(new QComboBox) {
  QLabel* const label =
      makeLabel(QStringLiteral("lblSelectVBStartupForm"), tr("Select &VB Startup Form:"));
  cboFormNames_->setObjectName(QStringLiteral("cboFormNames"));
  cboFormNames_->setEditable(true);
  cboFormNames_->setInsertPolicy(QComboBox::NoInsert);
  cboFormNames_->lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
  cboFormNames_->setAccessibleName(tr("Select VB Startup Form"));
  label->setBuddy(cboFormNames_);
  grid().place(label, kOptionsRow, PagePlace::kLeft, PagePlace::kStartForm);
  grid().place(cboFormNames_, kOptionsRow, PagePlace::kStartForm, PagePlace::kNext);
}

void ProjectPage::showOptions(const MainWindow& window) {
  if (shownNames_ != window.cboFormNamesItems) {
    shownNames_ = window.cboFormNamesItems;
    cboFormNames_->clear();
    for (const std::string& name : shownNames_) cboFormNames_->addItem(text().shown(name));
  }
  cboFormNames_->setEditText(text().shown(window.cboFormNames));
}

void ProjectPage::readOptions(MainWindow& window) const {
  window.cboFormNames = text().entered(cboFormNames_->currentText());
}

}  // namespace tarrowin
