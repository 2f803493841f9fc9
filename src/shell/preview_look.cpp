// What a control of the preview looks like, read out of the values written to it: the edge at which
// values of a damaged database become numbers and texts that widgets can bear.
#include "shell/preview_look.h"

#include <algorithm>
#include <cmath>

#include "shared/vb_error.h"
#include "shell/preview_colors.h"

namespace tarrowin {
namespace {

// As many characters as a text box of Visual Basic is sure to take.
constexpr qsizetype kMostCharacters = 32767;
// Tabs beyond it could not be reached anyway: a page is known by one digit.
constexpr std::size_t kMostTabs = 64;
// What a sizable window of classic Windows has around its inside, in twips: two borders of four
// pixels, a title bar of eighteen and a line below it.
constexpr int kFrameWidth = 120;
constexpr int kFrameHeight = 405;

std::optional<QColor> colorOf(const Value* value) {
  const std::optional<double> number = numberOf(value);
  return number ? oleColor(*number) : std::nullopt;
}

std::optional<int> smallNumberOf(const Value* value) {
  const std::optional<double> number = numberOf(value);
  if (!number || *number < 0 || *number > 255) {
    return std::nullopt;
  }
  return static_cast<int>(std::nearbyint(*number));
}

QString inOneLine(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  return text.replace(QLatin1Char('\n'), QLatin1Char(' '))
      .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

int insideOf(const Value* outside, int frame) {
  const int usual = 4800;  // twips, of a blank form
  const double twips = numberOf(outside).value_or(usual);
  return std::clamp(static_cast<int>(std::clamp(twips, 0.0, 1e8)) - frame, 0,
                    kMostPixels * kTwipsPerPixel) /
         kTwipsPerPixel;
}

}  // namespace

std::optional<double> numberOf(const Value* value) {
  if (value == nullptr || value->isEmpty()) {
    return std::nullopt;
  }
  try {
    const double number = toDouble(*value);
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
  } catch (const VbError&) {
    return std::nullopt;
  }
}

std::optional<bool> flagOf(const Value* value) {
  const std::optional<double> number = numberOf(value);
  return number ? std::optional(*number != 0) : std::nullopt;
}

QString textOf(const Value* value, const PageText& texts) {
  if (value == nullptr || value->isObject() || value->bytes() != nullptr) {
    return QString();
  }
  try {
    return texts.shown(std::string_view(joined(*value)).substr(0, kMostCharacters));
  } catch (const VbError&) {
    return QString();
  }
}

std::optional<int> pixelsOf(const Value* twips) {
  const std::optional<double> number = numberOf(twips);
  if (!number) {
    return std::nullopt;
  }
  return static_cast<int>(
      std::nearbyint(std::clamp<double>(*number / kTwipsPerPixel, -kMostPixels, kMostPixels)));
}

std::optional<int> extentOf(const Value* twips) {
  const std::optional<double> number = numberOf(twips);
  return number && *number >= 0 ? pixelsOf(twips) : std::nullopt;
}

QSize formSize(const PreviewSurface& surface) {
  return {insideOf(surface.find("Width"), kFrameWidth),
          insideOf(surface.find("Height"), kFrameHeight)};
}

bool isBordered(const ControlLook& look, bool byDefault) {
  const int style = look.borderStyle.value_or(byDefault ? 1 : 0);
  return style > 1 ? byDefault : style == 1;
}

ControlLook lookOf(const PreviewControl& control, const PageText& texts) {
  ControlLook look;
  look.className = texts.shown(control.className);
  look.name = texts.shown(control.name);
  look.caption = textOf(control.find("Caption"), texts);
  look.text = inOneLine(textOf(control.find("Text"), texts));
  look.toolTip = textOf(control.find("ToolTipText"), texts);
  look.backColor = colorOf(control.find("BackColor"));
  look.foreColor = colorOf(control.find("ForeColor"));
  look.borderStyle = smallNumberOf(control.find("BorderStyle"));
  const std::optional<int> backStyle = smallNumberOf(control.find("BackStyle"));
  look.transparent = backStyle == 0;
  look.opaque = backStyle == 1;
  look.flat = smallNumberOf(control.find("Appearance")) == 0;
  look.enabled = flagOf(control.find("Enabled")).value_or(look.enabled);
  look.locked = flagOf(control.find("Locked")).value_or(look.locked);
  look.tabStop = flagOf(control.find("TabStop")).value_or(look.tabStop);
  look.visible = flagOf(control.find("Visible")).value_or(look.visible);
  look.position = {pixelsOf(control.find("Left")).value_or(0),
                   pixelsOf(control.find("Top")).value_or(0)};
  look.width = extentOf(control.find("Width"));
  look.height = extentOf(control.find("Height"));
  const std::size_t tabs = std::min(control.tabCaptions.size(), kMostTabs);
  for (std::size_t tab = 0; tab < tabs; ++tab) {
    look.tabCaptions.push_back(inOneLine(texts.shown(control.tabCaptions[tab])));
  }
  return look;
}

}  // namespace tarrowin
