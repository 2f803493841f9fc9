// The widgets that stand for the Visual Basic controls of a preview, one table entry a class.
#pragma once

#include <QSize>
#include <QWidget>
#include <string_view>

#include "shell/preview_look.h"

namespace tarrowin {

// From the lowest upwards.
enum class PreviewLayer { kTabStrip, kDrawn, kWindow };

struct WidgetClass {
  std::string_view name;  // empty: of every class that the table lacks
  PreviewLayer layer;
  bool isContainer;
  bool hasTabIndex;
  QSize usualSize;  // in pixels, of a control that no size was written to
  QWidget* (*make)(const ControlLook& look, QWidget* parent);
};

// The entry of a class, its name in any case and with or without a version (".2") behind it; the
// entry of the labelled placeholder for a class that is not there.
const WidgetClass& widgetClassOf(std::string_view className);

// The widget with all of its look but Visible: the surface may still change that.
QWidget* makePreviewWidget(const PreviewControl& control, const PageText& texts, QWidget* parent);

}  // namespace tarrowin
