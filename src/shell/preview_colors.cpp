// The colours of the preview: OLE colour numbers as controls hold them, and the palette of a
// classic Windows desktop in which the preview stays whatever the desktop around it looks like.
#include "shell/preview_colors.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace tarrowin {
namespace {

// The scheme "Windows Standard" of Windows 2000, 0xRRGGBB, by the number of the system colour.
constexpr std::array<QRgb, 25> kSystemColors{
    0xD4D0C8,  // 0 scroll bars
    0x3A6EA5,  // 1 desktop
    0x0A246A,  // 2 active title bar
    0x808080,  // 3 inactive title bar
    0xD4D0C8,  // 4 menu bar
    0xFFFFFF,  // 5 window background
    0x000000,  // 6 window frame
    0x000000,  // 7 menu text
    0x000000,  // 8 window text
    0xFFFFFF,  // 9 title bar text
    0xD4D0C8,  // 10 active border
    0xD4D0C8,  // 11 inactive border
    0x808080,  // 12 application workspace
    0x0A246A,  // 13 highlight
    0xFFFFFF,  // 14 highlight text
    0xD4D0C8,  // 15 button face
    0x808080,  // 16 button shadow
    0x808080,  // 17 disabled text
    0x000000,  // 18 button text
    0xD4D0C8,  // 19 inactive title bar text
    0xFFFFFF,  // 20 button highlight
    0x404040,  // 21 button dark shadow
    0xD4D0C8,  // 22 button light shadow
    0x000000,  // 23 tool tip text
    0xFFFFE1,  // 24 tool tip
};

constexpr std::uint32_t kSystemFlag = 0x80000000;
constexpr std::uint32_t kNearestPaletteFlag = 0x02000000;

QColor fromBlueGreenRed(std::uint32_t color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16 & 0xFF));
}

}  // namespace

QColor systemColor(SystemColor color) {
  return QColor::fromRgb(kSystemColors.at(static_cast<std::size_t>(color)));
}

std::optional<QColor> oleColor(double number) {
  constexpr double kTwoTo32 = 4294967296.0;
  if (!(number >= -kTwoTo32 / 2 && number < kTwoTo32)) {
    return std::nullopt;
  }
  const auto color = static_cast<std::uint32_t>(static_cast<std::int64_t>(std::nearbyint(number)));
  if ((color & kSystemFlag) != 0) {
    const std::uint32_t index = color & ~kSystemFlag;
    return index < kSystemColors.size() ? std::optional(QColor::fromRgb(kSystemColors[index]))
                                        : std::nullopt;
  }
  const std::uint32_t flags = color & 0xFF000000;
  if (flags != 0 && flags != kNearestPaletteFlag) {
    return std::nullopt;
  }
  return fromBlueGreenRed(color);
}

QPalette classicPalette() {
  const QColor face = systemColor(SystemColor::kButtonFace);
  const QColor text = systemColor(SystemColor::kWindowText);
  const QColor window = systemColor(SystemColor::kWindowBackground);
  const QColor shadow = systemColor(SystemColor::kButtonShadow);
  const QColor gray = systemColor(SystemColor::kGrayText);

  QPalette palette(text, face, systemColor(SystemColor::kButtonHighlight), shadow, shadow, text,
                   systemColor(SystemColor::kButtonHighlight), window, face);
  palette.setColor(QPalette::ButtonText, systemColor(SystemColor::kButtonText));
  palette.setColor(QPalette::Midlight, systemColor(SystemColor::kButtonLight));
  palette.setColor(QPalette::Shadow, systemColor(SystemColor::kButtonDarkShadow));
  palette.setColor(QPalette::Highlight, systemColor(SystemColor::kHighlight));
  palette.setColor(QPalette::HighlightedText, systemColor(SystemColor::kHighlightText));
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, systemColor(SystemColor::kInfoBackground));
  palette.setColor(QPalette::ToolTipText, systemColor(SystemColor::kInfoText));
  palette.setColor(QPalette::PlaceholderText, gray);
  palette.setColor(QPalette::Link, systemColor(SystemColor::kHighlight));
  palette.setColor(QPalette::LinkVisited, systemColor(SystemColor::kHighlight));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, gray);
  }
  return palette;
}

}  // namespace tarrowin
