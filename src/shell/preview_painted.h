// The controls of a preview that Qt has no like of: captions that wrap, frames, shapes, lines and
// placeholders, painted as Visual Basic shows them.
#pragma once

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace tarrowin {

enum class PreviewBorder { kNone, kFlat, kSunken };

// A label whose "&" underlines also without a control to jump to.
class CaptionLabel : public QLabel {
 public:
  CaptionLabel(const QString& caption, PreviewBorder border, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PreviewBorder border_;
};

// A button that wraps its caption.
class CaptionButton : public QPushButton {
 public:
  CaptionButton(const QString& caption, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The etched line with the caption in its upper edge.
class CaptionFrame : public QGroupBox {
 public:
  CaptionFrame(const QString& caption, PreviewBorder border, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PreviewBorder border_;
};

// A filled area with a border that other controls may stand in.
class PictureArea : public QWidget {
 public:
  PictureArea(PreviewBorder border, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PreviewBorder border_;
};

// A rectangle or, from the upper left to the lower right corner, a line. The style is the
// BorderStyle of Visual Basic: 0 nothing, 1 and 6 solid, 2 to 5 dashes and dots.
class ShapeArea : public QWidget {
 public:
  enum class Form { kRectangle, kLine };
  ShapeArea(Form form, int borderStyle, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Form form_;
  int borderStyle_;
};

// A picture whose content is not at hand.
class PicturePlaceholder : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A control of a class that only its own program can draw: a box with the name of the class and its
// own.
class ClassPlaceholder : public QLabel {
 public:
  ClassPlaceholder(const QString& className, const QString& name, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The record buttons of a data control around its caption.
class DataBar : public QWidget {
 public:
  DataBar(const QString& caption, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
};

}  // namespace tarrowin
