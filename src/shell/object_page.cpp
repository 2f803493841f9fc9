// The list, its two buttons, its total and its progress bar.
#include "shell/object_page.h"

#include <QItemSelection>
#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QProgressBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

// Converts by a double click of the left button only.
class ObjectListView : public QListView {
 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) QListView::mouseDoubleClickEvent(event);
  }
};

}  // namespace

// clang-format off
const std::array<ObjectPageRow, kObjectListCount> kObjectPages = {{
    {ObjectList::kQueries, " &Queries", "keyQueries",
     "lstQueries", "LblQuerySel", "lblQueryTime", "cmdConvertQry", "cmdAllQrys"},
    {ObjectList::kForms, " &Forms", "keyForms",
     "lstForms", "lblFormSel", "lblFormTotal", "cmdConvertFrm", "cmdAllForms"},
    {ObjectList::kReports, " &Reports", "keyReports",
     "lstReports", "lblReportSel", "lblReportTime", "cmdConvertRpt", "cmdAllReports"},
    {ObjectList::kMacros, " &Macros", "keyMacros",
     "lstMacros", "LblMacroSel", "lblMacroTime", "cmdConvertMac", "cmdAllMacros"},
    {ObjectList::kModules, " Mo&dules", "keyModules",
     "lstModules", "LblModSel", "lblModuleTime", "cmdConvertMod", "cmdAllMods"},
    {ObjectList::kObjects, " Create Visual Basic 6 &Project (.vbp)", "keyVBProject",
     "lstObjects", "LblObjSel", "lblObjectTime", "cmdConvertObj", "cmdAllObjs"},
}};
// clang-format on

ObjectPage::ObjectPage(const ObjectPageRow& row, const PageText& text)
    : row_(row),
      text_(text),
      grid_(this),
      model_(new ObjectListModel(text, this)),
      heading_(makeLabel(row.headingName)),
      list_(new ObjectListView),
      buttons_(new QWidget),
      total_(makeLabel(row.totalName)),
      progress_(new QProgressBar) {
  list_->setObjectName(row.listName);
  list_->setModel(model_);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // All rows are of one height, so that a list of thousands need not be measured.
  list_->setUniformItemSizes(true);
  heading_->setBuddy(list_);
  connect(list_, &QListView::doubleClicked, this, [this] { emit doubleClicked(row_.list); });

  auto* const column = new QVBoxLayout(buttons_);
  column->setContentsMargins(0, 0, 0, 0);
  column->addStretch();
  convert_ = addButton(row.convertName, tr("&Convert"), "convert", {});
  all_ = addButton(row.allName, tr("&All"), "convert-all", {});
  // Enter in the list converts what is selected there.
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* const enter = new QShortcut(key, list_);
    enter->setContext(Qt::WidgetShortcut);
    connect(enter, &QShortcut::activated, convert_, &QToolButton::click);
  }

  progress_->setObjectName(elementName("ProgressBar1", static_cast<int>(indexOf(row.list))));
  QSizePolicy keepsItsPlace = progress_->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(keepsItsPlace);

  grid_.place(heading_, kHeadingRow, PagePlace::kLeft, PagePlace::kNext);
  grid_.place(list_, kListRow, PagePlace::kLeft, PagePlace::kNext);
  grid_.placeButton(buttons_, kListRow);
  grid_.stretchRow(kListRow);
  grid_.place(total_, kTotalRow, PagePlace::kLeft, PagePlace::kSecondFrame);
  grid_.place(progress_, kProgressRow, PagePlace::kLeft, PagePlace::kNext);
}

QToolButton* ObjectPage::addButton(const QString& name, const QString& caption,
                                   std::string_view picture, const QString& toolTip) {
  QToolButton* const button = makePictureButton(name, caption, picture, toolTip);
  button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* const column = static_cast<QVBoxLayout*>(buttons_->layout());
  column->insertWidget(column->count() - 1, button);
  connect(button, &QToolButton::clicked, this, [this, name] { emit clicked(name); });
  return button;
}

void ObjectPage::show(const MainWindow& window) {
  const std::size_t index = indexOf(row_.list);
  heading_->setText(text_.shown(window.headings[index].caption));
  list_->setAccessibleName(heading_->text());
  total_->setText(text_.shown(window.totals[index].caption));
  total_->setVisible(window.totals[index].visible);
  convert_->setEnabled(window.convertButtons[index].enabled);
  setToolTipAndName(convert_, text_.shown(window.convertButtons[index].toolTip));
  all_->setEnabled(window.allButtons[index].enabled);
  setToolTipAndName(all_, text_.shown(window.allButtons[index].toolTip));
  const ProgressBar& bar = window.ProgressBar1[index];
  // First of all: a bar that is seen paints each new value at once.
  progress_->setVisible(bar.visible);
  // A range of nothing would show a bar that runs to and fro.
  progress_->setRange(bar.min, std::max(bar.max, bar.min + 1));
  progress_->setValue(bar.value);
  showOptions(window);
}

void ObjectPage::showItems(const MainWindow& window) {
  const std::vector<ListItem>& items = window.list(row_.list);
  model_->showItems(items);
  std::vector<ListItem> shown = items;
  markSelected(shown);
  const auto same = [](const ListItem& left, const ListItem& right) {
    return left.selected == right.selected;
  };
  if (std::ranges::equal(shown, items, same)) return;
  list_->selectionModel()->select(selectionOf(items), QItemSelectionModel::ClearAndSelect);
}

void ObjectPage::read(MainWindow& window) const {
  markSelected(window.list(row_.list));
  readOptions(window);
}

QItemSelection ObjectPage::selectionOf(const std::vector<ListItem>& items) const {
  QItemSelection selection;
  const int count = static_cast<int>(items.size());
  const auto selected = [&](int row) { return items[static_cast<std::size_t>(row)].selected; };
  for (int row = 0; row < count; ++row) {
    if (!selected(row)) continue;
    const int first = row;
    while (row + 1 < count && selected(row + 1)) ++row;
    selection.append(QItemSelectionRange(model_->index(first), model_->index(row)));
  }
  return selection;
}

void ObjectPage::markSelected(std::vector<ListItem>& items) const {
  for (ListItem& item : items) item.selected = false;
  for (const QItemSelectionRange& range : list_->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      if (static_cast<std::size_t>(row) < items.size())
        items[static_cast<std::size_t>(row)].selected = true;
    }
  }
}

}  // namespace tarrowin
