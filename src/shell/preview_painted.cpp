// The controls of a preview that Qt has no like of: captions that wrap, frames, shapes, lines and
// placeholders, painted as Visual Basic shows them.
#include "shell/preview_painted.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include <qdrawutil.h>

#include "shell/preview_colors.h"
#include "shell/preview_style.h"

namespace tarrowin {
namespace {

constexpr int kCaptionFlags = Qt::TextShowMnemonic | Qt::TextWordWrap;

void drawBorder(QPainter& painter, const QRect& area, PreviewBorder border,
                const QPalette& palette) {
  switch (border) {
    case PreviewBorder::kNone:
      return;
    case PreviewBorder::kFlat:
      drawFlatBorder(painter, area);
      return;
    case PreviewBorder::kSunken:
      qDrawWinPanel(&painter, area, palette, true);
      return;
  }
}

int thickness(PreviewBorder border) {
  return border == PreviewBorder::kNone ? 0 : border == PreviewBorder::kFlat ? 1 : 2;
}

Qt::PenStyle penStyle(int borderStyle) {
  switch (borderStyle) {
    case 0:
      return Qt::NoPen;
    case 2:
      return Qt::DashLine;
    case 3:
      return Qt::DotLine;
    case 4:
      return Qt::DashDotLine;
    case 5:
      return Qt::DashDotDotLine;
    default:
      return Qt::SolidLine;
  }
}

// Along the middle of the outer pixels, where a pen must run to fill these on any screen.
QRectF throughPixels(const QRect& area) { return QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5); }

void drawArrow(QPainter& painter, const QRect& button, bool toRight, bool withBar) {
  constexpr int kHalf = 4;
  const int step = toRight ? 1 : -1;
  const QPoint tip = button.center() + QPoint(step * 2, 0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(systemColor(SystemColor::kButtonText));
  painter.drawPolygon(
      QPolygon({tip, tip + QPoint(-step * kHalf, -kHalf), tip + QPoint(-step * kHalf, kHalf)}));
  if (withBar) {
    painter.drawRect(QRect(tip.x() + step, tip.y() - kHalf, 1, 2 * kHalf));
  }
}

}  // namespace

CaptionLabel::CaptionLabel(const QString& caption, PreviewBorder border, QWidget* parent)
    : QLabel(parent), border_(border) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setText(caption);
}

void CaptionLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawBorder(painter, rect(), border_, palette());
  const int edge = thickness(border_);
  style()->drawItemText(&painter, rect().adjusted(edge, edge, -edge, -edge),
                        kCaptionFlags | Qt::AlignLeft | Qt::AlignTop, palette(), isEnabled(),
                        text(), QPalette::WindowText);
}

CaptionButton::CaptionButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setAutoDefault(false);
}

void CaptionButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QString caption = option.text;
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  constexpr int kEdge = 3;
  QRect inside = rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
  if (isDown()) {
    inside.translate(1, 1);
  }
  painter.drawItemText(inside, kCaptionFlags | Qt::AlignCenter, palette(), isEnabled(), caption,
                       QPalette::ButtonText);
}

CaptionFrame::CaptionFrame(const QString& caption, PreviewBorder border, QWidget* parent)
    : QGroupBox(caption, parent), border_(border) {}

void CaptionFrame::paintEvent(QPaintEvent*) {
  if (border_ == PreviewBorder::kNone) {
    return;
  }
  QPainter painter(this);
  const int top = title().isEmpty() ? 0 : fontMetrics().height() / 2;
  const QRect line = rect().adjusted(0, top, 0, 0);
  if (border_ == PreviewBorder::kFlat) {
    drawBorder(painter, line, border_, palette());
  } else {
    qDrawShadeRect(&painter, line, palette(), true, 1, 0);
  }
  if (title().isEmpty()) {
    return;
  }
  constexpr int kIndent = 7;
  constexpr int kMargin = 2;
  const int wide = fontMetrics().size(Qt::TextShowMnemonic, title()).width();
  const QRect caption(kIndent, 0, std::min(wide + 2 * kMargin, width() - 2 * kIndent),
                      fontMetrics().height());
  painter.fillRect(caption, palette().window());
  style()->drawItemText(&painter, caption.adjusted(kMargin, 0, 0, 0),
                        Qt::TextShowMnemonic | Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), title(), QPalette::WindowText);
}

PictureArea::PictureArea(PreviewBorder border, QWidget* parent)
    : QWidget(parent), border_(border) {}

void PictureArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawBorder(painter, rect(), border_, palette());
}

ShapeArea::ShapeArea(Form form, int borderStyle, QWidget* parent)
    : QWidget(parent), form_(form), borderStyle_(borderStyle) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeArea::paintEvent(QPaintEvent*) {
  const Qt::PenStyle style = penStyle(borderStyle_);
  if (style == Qt::NoPen) {
    return;
  }
  QPainter painter(this);
  const bool isThin = width() == 1 || height() == 1;
  if (style == Qt::SolidLine && (form_ == Form::kRectangle || isThin)) {
    drawFlatBorder(painter, rect());
    return;
  }
  painter.setPen(QPen(systemColor(SystemColor::kWindowFrame), 1, style));
  const QRectF corners = throughPixels(rect());
  if (form_ == Form::kLine) {
    painter.drawLine(corners.topLeft(), corners.bottomRight());
  } else {
    painter.drawRect(corners);
  }
}

void PicturePlaceholder::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QPen(systemColor(SystemColor::kButtonShadow), 1, Qt::DashLine));
  painter.drawRect(throughPixels(rect()));
  const int side = std::min({48, width() - 8, height() - 8});
  if (side < 12) {
    return;
  }
  QRect picture(0, 0, side, side * 3 / 4);
  picture.moveCenter(rect().center());
  painter.setPen(systemColor(SystemColor::kButtonShadow));
  painter.setBrush(systemColor(SystemColor::kWindowBackground));
  painter.drawRect(picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(systemColor(SystemColor::kButtonFace));
  painter.drawEllipse(QRect(picture.right() - side / 3, picture.top() + 3, side / 5, side / 5));
  painter.setBrush(systemColor(SystemColor::kButtonShadow));
  painter.drawPolygon(QPolygon({picture.bottomLeft(),
                                QPoint(picture.left() + side * 2 / 5, picture.top() + side / 4),
                                QPoint(picture.left() + side * 4 / 5, picture.bottom())}));
}

ClassPlaceholder::ClassPlaceholder(const QString& className, const QString& name, QWidget* parent)
    : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setText(name.isEmpty() ? className : className + QLatin1Char('\n') + name);
}

void ClassPlaceholder::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawBorder(painter, rect(), PreviewBorder::kSunken, palette());
  constexpr int kEdge = 4;
  const QRect inside = rect().adjusted(kEdge, 0, -kEdge, 0);
  const bool isLow = inside.height() < 2 * fontMetrics().lineSpacing();
  const QString shown = isLow ? text().replace(QLatin1Char('\n'), QLatin1Char(' ')) : text();
  painter.setPen(
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(inside, Qt::AlignCenter | (isLow ? 0 : Qt::TextWrapAnywhere), shown);
}

DataBar::DataBar(const QString& caption, QWidget* parent) : QWidget(parent), caption_(caption) {}

void DataBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawBorder(painter, rect(), PreviewBorder::kSunken, palette());
  const QRect inside = rect().adjusted(2, 2, -2, -2);
  const int wide = std::min(17, inside.width() / 4);
  for (int place = 0; place < 4; ++place) {
    const bool toRight = place > 1;
    QRect button(inside.left() + place * wide, inside.top(), wide, inside.height());
    if (toRight) {
      button.moveRight(inside.right() - (3 - place) * wide);
    }
    qDrawWinButton(&painter, button, palette(), false, &palette().button());
    drawArrow(painter, button, toRight, place == 0 || place == 3);
  }
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(inside.adjusted(2 * wide + 4, 0, -2 * wide, 0), Qt::AlignLeft | Qt::AlignVCenter,
                   caption_);
}

}  // namespace tarrowin
