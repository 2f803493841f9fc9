// Labels and picture buttons.
#include "shell/named_widgets.h"

#include "shell/icons.h"

namespace tarrowin {

namespace {

constexpr int kPictureSize = 28;

}  // namespace

QString elementName(std::string_view array, int index) {
  return QStringLiteral("%1(%2)")
      .arg(QString::fromUtf8(array.data(), static_cast<qsizetype>(array.size())))
      .arg(index);
}

QLabel* makeLabel(const QString& name, const QString& caption) {
  auto* const label = new QLabel(caption);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QToolButton* makePictureButton(const QString& name, const QString& caption,
                               std::string_view picture, const QString& toolTip) {
  auto* const button = new QToolButton;
  button->setObjectName(name);
  button->setText(caption);
  button->setIcon(iconNamed(picture));
  button->setIconSize(QSize(kPictureSize, kPictureSize));
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setFocusPolicy(Qt::StrongFocus);
  setToolTipAndName(button, toolTip);
  return button;
}

void makeHeading(QLabel* label, double factor) {
  QFont font = label->font();
  font.setBold(true);
  // A font that is given in pixels has no size in points.
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * factor));
  }
  label->setFont(font);
}

void setToolTipAndName(QWidget* widget, const QString& toolTip) {
  widget->setToolTip(toolTip);
  widget->setAccessibleName(toolTip);
}

}  // namespace tarrowin
