// Surfaces for tests of the preview, made by hand, and what a widget looks like in pixels.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "preview/preview_surface.h"
#include "shell/page_text.h"

namespace tarrowin::test {

using Properties = std::vector<std::pair<std::string, Value>>;

struct Place {
  int left, top, width, height;  // twips
};

inline PreviewSurface blankForm(int width = 6000 + 120, int height = 4500 + 405) {
  PreviewSurface surface;
  surface.accessName = "Customers";
  surface.put("BorderStyle", 2);
  surface.put("Caption", "Customers");
  surface.put("Height", height);
  surface.put("Width", width);
  return surface;
}

inline PreviewControl& add(PreviewSurface& surface, const std::string& className,
                           const std::string& name, const Place& place,
                           const Properties& properties = {}, const std::string& container = "") {
  PreviewControl control;
  control.className = className;
  control.name = name;
  control.container = container;
  control.put("Left", place.left);
  control.put("Top", place.top);
  control.put("Width", place.width);
  control.put("Height", place.height);
  control.put("Visible", true);
  for (const auto& [property, value] : properties) {
    control.put(property, value);
  }
  surface.controls.push_back(std::move(control));
  return surface.controls.back();
}

inline PageText western() { return PageText(CodePage()); }

// As a screen with so many pixels to a logical one would show it.
inline QImage picture(QWidget& widget, double ratio = 1) {
  QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  widget.render(&image);
  return image;
}

inline QColor pixel(QWidget& widget, const QPoint& place) {
  return picture(widget).pixelColor(place);
}

}  // namespace tarrowin::test
