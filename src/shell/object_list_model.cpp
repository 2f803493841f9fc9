// Texts and icons are made when a row is painted, not before.
#include "shell/object_list_model.h"

#include <algorithm>
#include <utility>

#include "shell/icons.h"

namespace tarrowin {

ObjectListModel::ObjectListModel(PageText text, QObject* parent)
    : QAbstractListModel(parent), text_(std::move(text)) {}

void ObjectListModel::showItems(const std::vector<ListItem>& items) {
  const auto same = [](const ListItem& left, const ListItem& right) {
    return left.text == right.text && left.smallIcon == right.smallIcon;
  };
  if (std::ranges::equal(items, items_, same)) return;
  beginResetModel();
  items_ = items;
  endResetModel();
}

int ObjectListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant ObjectListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const ListItem& item = items_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return text_.shown(item.text);
  if (role == Qt::DecorationRole) return iconOfKey(item.smallIcon);
  return {};
}

}  // namespace tarrowin
