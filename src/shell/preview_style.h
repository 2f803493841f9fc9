// The classic look of Windows for the widgets of a preview, whatever the style of the desktop.
#pragma once

#include <QFont>
#include <QProxyStyle>

namespace tarrowin {

// A widget with this property set has a black line instead of the sunken border (Appearance 0).
inline constexpr const char* kFlatBorder = "flatBorder";

class PreviewStyle : public QProxyStyle {
 public:
  PreviewStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

// The font of a new Visual Basic control, MS Sans Serif of 8.25 points, or what comes near it.
QFont previewFont();

// The black line of a flat control, one logical pixel wide on screens of any resolution.
void drawFlatBorder(QPainter& painter, const QRect& area);

// Gives a widget and everything that is inside it now the look of the preview.
void dressAsPreview(QWidget* widget, QStyle* style);

}  // namespace tarrowin
