// The window Form1 of the form preview: a surface drawn with real widgets that look like a Visual
// Basic form at design size.
#pragma once

#include <QScrollArea>
#include <QTabWidget>
#include <QWidget>
#include <cstddef>
#include <memory>
#include <vector>

#include "preview/preview_surface.h"
#include "shell/page_text.h"

namespace tarrowin {

class PreviewStyle;

// A top-level window; the caller shows it and owns it. Each widget bears the name of its control.
// Clicking a tab of the tab strip (the last one, when there are several) turns the pages.
class PreviewWindow : public QWidget {
  Q_OBJECT

 public:
  PreviewWindow(PreviewSurface surface, const PageText& texts, QWidget* parent = nullptr);
  ~PreviewWindow() override;

  const PreviewSurface& surface() const { return surface_; }
  // The widget of surface().controls[control].
  QWidget* widgetOf(std::size_t control) const { return widgets_.at(control); }
  // The inside of the form, in which the controls stand.
  QWidget* form() const { return form_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;  // Escape closes

 private:
  void setUpForm(const PageText& texts);
  void addControls(const PageText& texts);
  void chainTabStops();
  void connectTabStrip();
  void turnTo(int tab);
  void applyVisible();
  void fitToScreen();

  PreviewSurface surface_;
  std::unique_ptr<PreviewStyle> style_;
  QScrollArea* scroll_;  // owned by the window
  QWidget* form_;        // owned by scroll_
  std::vector<QWidget*> widgets_;
};

}  // namespace tarrowin
