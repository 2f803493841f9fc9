// The colours of the preview: OLE colour numbers as controls hold them, and the palette of a
// classic Windows desktop in which the preview stays whatever the desktop around it looks like.
#pragma once

#include <QColor>
#include <QPalette>
#include <optional>

namespace tarrowin {

// The numbers of Windows' system colours that the preview itself draws with.
enum class SystemColor {
  kWindowBackground = 5,
  kWindowFrame = 6,
  kWindowText = 8,
  kHighlight = 13,
  kHighlightText = 14,
  kButtonFace = 15,
  kButtonShadow = 16,
  kGrayText = 17,
  kButtonText = 18,
  kButtonHighlight = 20,
  kButtonDarkShadow = 21,
  kButtonLight = 22,
  kInfoText = 23,
  kInfoBackground = 24,
};

QColor systemColor(SystemColor color);

// 0x00BBGGRR or 0x02BBGGRR (nearest palette colour) is that colour, 0x80000000 + n (a negative
// Long) is system colour n. Nothing for a number that is no colour: Visual Basic refuses to take
// it.
std::optional<QColor> oleColor(double number);

// Every role of every group, so that nothing of the desktop's palette shows through.
QPalette classicPalette();

}  // namespace tarrowin
