// The items of one of the six lists, as a view asks for them.
#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <vector>

#include "core/main_window.h"
#include "shell/page_text.h"

namespace tarrowin {

class ObjectListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit ObjectListModel(PageText text, QObject* parent = nullptr);

  // Takes over the items, unless they are the ones that it shows.
  void showItems(const std::vector<ListItem>& items);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  PageText text_;
  std::vector<ListItem> items_;
};

}  // namespace tarrowin
