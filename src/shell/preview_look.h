// What a control of the preview looks like, read out of the values written to it: the edge at which
// values of a damaged database become numbers and texts that widgets can bear.
#pragma once

#include <QColor>
#include <QPoint>
#include <QSize>
#include <QString>
#include <optional>

#include "preview/preview_surface.h"
#include "shell/page_text.h"

namespace tarrowin {

// Logical pixels of a screen of 96 dots an inch; an inch has 1440 twips.
inline constexpr int kTwipsPerPixel = 15;
// No place or size goes beyond it. An Access form is at most 22 inches wide, and each of its five
// sections at most 22 inches high: 10,560 pixels.
inline constexpr int kMostPixels = 16384;

// A value that Visual Basic would have refused stands as if it had never been written.
struct ControlLook {
  QString className;
  QString name;
  QString caption;  // with its "&"
  QString text;     // in one line
  QString toolTip;
  std::optional<QColor> backColor;
  std::optional<QColor> foreColor;
  std::optional<int> borderStyle;
  bool transparent = false;  // BackStyle 0
  bool opaque = false;       // BackStyle 1
  bool flat = false;         // Appearance 0
  bool enabled = true;
  bool locked = false;
  bool tabStop = true;
  bool visible = false;  // a control made by Controls.Add is hidden until told otherwise
  QPoint position;       // in its container, in pixels
  std::optional<int> width;
  std::optional<int> height;
  std::vector<QString> tabCaptions;
};

ControlLook lookOf(const PreviewControl& control, const PageText& texts);

// Whether BorderStyle asks for a border; all but 0 and 1 leave it to the class.
bool isBordered(const ControlLook& look, bool byDefault);

// The properties one by one; nothing when unwritten or of no meaning.
std::optional<double> numberOf(const Value* value);
std::optional<bool> flagOf(const Value* value);
QString textOf(const Value* value, const PageText& texts);
// Twips to pixels, within kMostPixels either way.
std::optional<int> pixelsOf(const Value* twips);
// The same for a width or height, which is never negative.
std::optional<int> extentOf(const Value* twips);

// The size inside the borders of a form, from its Width and Height, which include them.
QSize formSize(const PreviewSurface& surface);

}  // namespace tarrowin
