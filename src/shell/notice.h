// The start-up notice frmMessage.
#pragma once

#include <QDialog>

class QCheckBox;

namespace tarrowin {

class Notice : public QDialog {
  Q_OBJECT

 public:
  explicit Notice(QWidget* parent = nullptr);

  // The user ticked the box and then chose OK.
  bool isUnwanted() const;

 private:
  QCheckBox* chkShowMessage_;
};

}  // namespace tarrowin
