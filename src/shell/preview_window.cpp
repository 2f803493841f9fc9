// The window Form1 of the form preview: a surface drawn with real widgets that look like a Visual
// Basic form at design size.
#include "shell/preview_window.h"

#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "shell/preview_arrangement.h"
#include "shell/preview_colors.h"
#include "shell/preview_look.h"
#include "shell/preview_painted.h"
#include "shell/preview_style.h"
#include "shell/preview_widgets.h"

namespace tarrowin {
namespace {

constexpr QSize kSmallest{120, 40};  // room for the title bar's buttons
constexpr double kPartOfScreen = 0.9;

// Values of BorderStyle.
constexpr int kSizable = 2, kFixedDialog = 3, kFixedTool = 4, kSizableTool = 5;

int borderStyleOf(const PreviewSurface& surface) {
  const double style = numberOf(surface.find("BorderStyle")).value_or(kSizable);
  return style >= 0 && style <= kSizableTool ? static_cast<int>(style) : kSizable;
}

bool isSizable(int borderStyle) { return borderStyle == kSizable || borderStyle == kSizableTool; }

Qt::WindowFlags flagsOf(int borderStyle) {
  const Qt::WindowFlags closable = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  switch (borderStyle) {
    case kSizable:
      return Qt::Window;
    case kFixedDialog:
      return Qt::Dialog | closable;
    case kFixedTool:
    case kSizableTool:
      return Qt::Tool | closable;
    default:
      return Qt::Window | closable | Qt::WindowMinimizeButtonHint;
  }
}

// The label of an Access option group sticks out at the top of the group. The frame would cut it
// off; as in a converted form it begins at the frame's edge.
void keepInside(QWidget& widget, bool isInContainer) {
  if (isInContainer) {
    widget.move(std::max(widget.x(), 0), std::max(widget.y(), 0));
  }
}

}  // namespace

PreviewWindow::PreviewWindow(PreviewSurface surface, const PageText& texts, QWidget* parent)
    : QWidget(parent, flagsOf(borderStyleOf(surface))),
      surface_(std::move(surface)),
      style_(std::make_unique<PreviewStyle>()),
      scroll_(new QScrollArea(this)),
      form_(new QWidget) {
  setUpForm(texts);
  addControls(texts);
  chainTabStops();
  connectTabStrip();
  applyVisible();
  fitToScreen();
}

PreviewWindow::~PreviewWindow() { delete scroll_; }  // before the style that its widgets use

void PreviewWindow::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Cancel)) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void PreviewWindow::setUpForm(const PageText& texts) {
  setObjectName(QStringLiteral("Form1"));
  const QString caption = textOf(surface_.find("Caption"), texts);
  setWindowTitle(caption.isEmpty() ? texts.shown(surface_.accessName) : caption);
  setAccessibleName(windowTitle());
  setPalette(classicPalette());
  setStyle(style_.get());

  form_->setObjectName(QStringLiteral("Form1_inside"));
  form_->setStyle(style_.get());
  form_->setPalette(classicPalette());
  form_->setFixedSize(formSize(surface_).expandedTo(kSmallest));

  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setPalette(classicPalette());
  scroll_->setWidget(form_);
  dressAsPreview(scroll_, style_.get());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll_);
}

void PreviewWindow::addControls(const PageText& texts) {
  const std::vector<std::size_t> containers = containersOf(surface_);
  const auto stacking = stackingIn(surface_, containers);
  widgets_.assign(surface_.controls.size(), nullptr);
  const auto fillContainer = [&](const auto& self, std::size_t container, QWidget* parent) -> void {
    for (const std::size_t index : stacking[container]) {
      widgets_[index] = makePreviewWidget(surface_.controls[index], texts, parent);
      keepInside(*widgets_[index], parent != form_);
      self(self, index, widgets_[index]);
    }
  };
  fillContainer(fillContainer, surface_.controls.size(), form_);
}

void PreviewWindow::chainTabStops() {
  QWidget* before = nullptr;
  std::vector<CaptionLabel*> waiting;  // labels whose key jumps to the next control
  for (const std::size_t index : tabOrderOf(surface_)) {
    QWidget* widget = widgets_[index];
    if (widget->focusPolicy() == Qt::NoFocus) {
      if (auto* label = dynamic_cast<CaptionLabel*>(widget)) {
        waiting.push_back(label);
      }
      continue;
    }
    if (before != nullptr) {
      QWidget::setTabOrder(before, widget);
    }
    for (CaptionLabel* label : waiting) {
      label->setBuddy(widget);
    }
    waiting.clear();
    before = widget;
  }
}

void PreviewWindow::connectTabStrip() {
  const auto strip = std::find_if(widgets_.rbegin(), widgets_.rend(), [](const QWidget* widget) {
    return qobject_cast<const QTabWidget*>(widget) != nullptr;
  });
  if (strip != widgets_.rend()) {
    connect(static_cast<QTabWidget*>(*strip), &QTabWidget::currentChanged, this,
            &PreviewWindow::turnTo);
  }
}

void PreviewWindow::turnTo(int tab) {
  showTab(surface_, tab);
  applyVisible();
}

void PreviewWindow::applyVisible() {
  for (std::size_t index = 0; index < widgets_.size(); ++index) {
    widgets_[index]->setVisible(flagOf(surface_.controls[index].find("Visible")).value_or(false));
  }
}

void PreviewWindow::fitToScreen() {
  const QSize wanted = form_->size();
  const QSize room = screen()->availableSize() * kPartOfScreen;
  const bool fits = wanted.width() <= room.width() && wanted.height() <= room.height();
  const int bar = fits ? 0 : style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const QSize whole = wanted + QSize(bar, bar);
  setMinimumSize(kSmallest);
  if (!isSizable(borderStyleOf(surface_))) {
    setMaximumSize(whole);
    setMinimumSize(fits ? whole : kSmallest);
  }
  resize(whole.boundedTo(room));
}

}  // namespace tarrowin
