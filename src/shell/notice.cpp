// The text of the notice, and its one choice.
#include "shell/notice.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "core/main_window.h"
#include "shell/icons.h"

namespace tarrowin {

namespace {

constexpr QSize kDesignSize(560, 440);

// clang-format off
constexpr std::array<const char*, 10> kParagraphs = {
    "The Tarrowin cannot open Microsoft Access databases prior to Access 97.",
    "It is highly recommended that you first convert databases prior to Access 97 to your current version of Microsoft Access.",
    "The Tarrowin will not open databases higher than the current version of Microsoft Access installed on your system.",
    "The Tarrowin can only open Microsoft Access databases using the currently installed version of Access.",
    "If you have more than one version of Microsoft Access installed, open the default or last installed version of Microsoft Access first.",
    "CONVERSION TIME:\nThe total time to convert some Microsoft Access database objects may vary from a few seconds to minutes depending on the size and complexity of the object.",
    "Be patient and allow the Tarrowin to continue the conversion. You can open the Windows Task Manager during especially long conversions to check that the Tarrowin is still active.",
    "If the Tarrowin is not responding, check that Microsot Access has not taken control due to a running macro or code in a Form Activate or Form Open event. As a last resort, terminate the process for both the Tarrowin and for Microsoft Access using the Task Manager.",
    "HELP:\nClick the Help button or the How To tab in the Tarrowin window for Help on converting Access objects to Visual Basic.",
    "Right-click on an object to get help for that object and to display helpful guidelines, hints, and tips on using the Tarrowin program.",
};
// clang-format on

QString noticeText() {
  QStringList paragraphs;
  for (const char* const paragraph : kParagraphs) paragraphs.append(QString::fromLatin1(paragraph));
  return paragraphs.join(QStringLiteral("\n\n"));
}

}  // namespace

Notice::Notice(QWidget* parent)
    : QDialog(parent), chkShowMessage_(new QCheckBox(tr("&Do not show this message again."))) {
  setObjectName(QStringLiteral("frmMessage"));
  setWindowTitle(QString::fromStdString(MainWindow{}.caption));
  setWindowIcon(iconNamed("app"));
  auto* const text = new QPlainTextEdit(noticeText());
  text->setObjectName(QStringLiteral("txtMessage"));
  text->setAccessibleName(tr("Notice"));
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  chkShowMessage_->setObjectName(QStringLiteral("chkShowMessage"));
  auto* const ok = new QPushButton(tr("OK"));
  ok->setObjectName(QStringLiteral("cmdOk"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(text, 1);
  auto* const bottom = new QHBoxLayout;
  bottom->addWidget(chkShowMessage_, 1);
  bottom->addWidget(ok);
  rows->addLayout(bottom);
  resize(kDesignSize);
  ok->setFocus();
}

bool Notice::isUnwanted() const {
  return result() == QDialog::Accepted && chkShowMessage_->isChecked();
}

}  // namespace tarrowin
