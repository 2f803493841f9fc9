// The classic look of Windows for the widgets of a preview, whatever the style of the desktop.
#include "shell/preview_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "shell/preview_colors.h"

namespace tarrowin {
namespace {

bool isFlat(const QWidget* widget) {
  return widget != nullptr && widget->property(kFlatBorder).toBool();
}

}  // namespace

PreviewStyle::PreviewStyle() : QProxyStyle(QStringLiteral("Windows")) {}

void PreviewStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const bool isBorder = element == PE_FrameLineEdit || element == PE_Frame;
  if (isBorder && isFlat(widget)) {
    drawFlatBorder(*painter, option->rect);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void PreviewStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control != CC_ComboBox || combo == nullptr || !isFlat(widget)) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  QStyleOptionComboBox frameless = *combo;
  frameless.frame = false;
  QProxyStyle::drawComplexControl(control, &frameless, painter, widget);
  drawFlatBorder(*painter, option->rect);
}

int PreviewStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  switch (hint) {
    case SH_UnderlineShortcut:
    case SH_EtchDisabledText:
      return 1;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

QFont previewFont() {
  constexpr int kPixels = 11;  // 8.25 points of 96 dots an inch
  QFont font;
  font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                    QStringLiteral("Tahoma"), QStringLiteral("Liberation Sans"),
                    QStringLiteral("Arimo"), QStringLiteral("DejaVu Sans Condensed")});
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kPixels);
  font.setBold(false);
  font.setItalic(false);
  return font;
}

void drawFlatBorder(QPainter& painter, const QRect& area) {
  const QColor black = systemColor(SystemColor::kWindowFrame);
  painter.fillRect(area.left(), area.top(), area.width(), 1, black);
  painter.fillRect(area.left(), area.bottom(), area.width(), 1, black);
  painter.fillRect(area.left(), area.top(), 1, area.height(), black);
  painter.fillRect(area.right(), area.top(), 1, area.height(), black);
}

void dressAsPreview(QWidget* widget, QStyle* style) {
  widget->setStyle(style);
  for (QWidget* inside : widget->findChildren<QWidget*>()) {
    inside->setStyle(style);
  }
}

}  // namespace tarrowin
