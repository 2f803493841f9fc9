// The widgets that stand for the Visual Basic controls of a preview, one table entry a class.
#include "shell/preview_widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <Qt>
#include <algorithm>
#include <array>

#include "shell/preview_colors.h"
#include "shell/preview_painted.h"
#include "shell/preview_style.h"

namespace tarrowin {
namespace {

PreviewBorder borderOf(const ControlLook& look, bool byDefault) {
  if (!isBordered(look, byDefault)) {
    return PreviewBorder::kNone;
  }
  return look.flat ? PreviewBorder::kFlat : PreviewBorder::kSunken;
}

// Of a control on the ground of the form, also when it is disabled.
void fill(QWidget* widget, QPalette::ColorRole ground, const QColor& usual,
          const ControlLook& look) {
  QPalette palette = classicPalette();
  palette.setColor(ground, look.backColor.value_or(usual));
  if (look.foreColor) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
      palette.setColor(group, QPalette::WindowText, *look.foreColor);
      palette.setColor(group, QPalette::Text, *look.foreColor);
    }
  }
  widget->setPalette(palette);
}

void fillGround(QWidget* widget, const ControlLook& look) {
  fill(widget, QPalette::Window, systemColor(SystemColor::kButtonFace), look);
  widget->setBackgroundRole(QPalette::Window);  // check boxes have that of buttons
  widget->setAutoFillBackground(true);
}

void fillWindow(QWidget* widget, const ControlLook& look) {
  fill(widget, QPalette::Base, systemColor(SystemColor::kWindowBackground), look);
  widget->setProperty(kFlatBorder, look.flat);
}

QWidget* makeLabel(const ControlLook& look, QWidget* parent) {
  auto* label = new CaptionLabel(look.caption, borderOf(look, false), parent);
  fillGround(label, look);
  label->setAutoFillBackground(!look.transparent);
  return label;
}

QWidget* makeTextBox(const ControlLook& look, QWidget* parent) {
  auto* edit = new QLineEdit(look.text, parent);
  edit->setFrame(isBordered(look, true));
  edit->setReadOnly(look.locked);
  edit->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  edit->setCursorPosition(0);
  fillWindow(edit, look);
  return edit;
}

QWidget* makeCommandButton(const ControlLook& look, QWidget* parent) {
  auto* button = new CaptionButton(look.caption, parent);
  button->setPalette(classicPalette());  // a button without a picture keeps its colours
  return button;
}

QWidget* makeCheckBox(const ControlLook& look, QWidget* parent) {
  auto* box = new QCheckBox(look.caption, parent);
  fillGround(box, look);
  return box;
}

QWidget* makeOptionButton(const ControlLook& look, QWidget* parent) {
  auto* button = new QRadioButton(look.caption, parent);
  fillGround(button, look);
  return button;
}

QWidget* makeFrame(const ControlLook& look, QWidget* parent) {
  auto* frame = new CaptionFrame(look.caption, borderOf(look, true), parent);
  fillGround(frame, look);
  return frame;
}

QWidget* makePictureBox(const ControlLook& look, QWidget* parent) {
  auto* picture = new PictureArea(borderOf(look, true), parent);
  fillGround(picture, look);
  return picture;
}

QWidget* makeListBox(const ControlLook& look, QWidget* parent) {
  auto* list = new QListWidget(parent);
  fillWindow(list, look);
  return list;
}

QWidget* makeComboBox(const ControlLook& look, QWidget* parent) {
  constexpr int kHeight = 21;  // of every combo box in that font; its Height cannot be written
  auto* combo = new QComboBox(parent);
  combo->setEditable(true);
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setCurrentText(look.text);
  combo->lineEdit()->setReadOnly(look.locked);
  combo->lineEdit()->setCursorPosition(0);
  combo->setFixedHeight(kHeight);
  fillWindow(combo, look);
  return combo;
}

QWidget* makeShape(const ControlLook& look, QWidget* parent) {
  auto* shape = new ShapeArea(ShapeArea::Form::kRectangle, look.borderStyle.value_or(1), parent);
  fill(shape, QPalette::Window, systemColor(SystemColor::kWindowBackground), look);
  shape->setAutoFillBackground(look.opaque);
  return shape;
}

QWidget* makeLine(const ControlLook& look, QWidget* parent) {
  auto* line = new ShapeArea(ShapeArea::Form::kLine, look.borderStyle.value_or(1), parent);
  line->setPalette(classicPalette());
  const bool hasLength = look.width.value_or(0) > 0 || look.height.value_or(0) > 0;
  line->setMinimumSize(hasLength ? QSize(1, 1) : QSize(0, 0));
  return line;
}

QWidget* makeImage(const ControlLook&, QWidget* parent) { return new PicturePlaceholder(parent); }

QWidget* makeTabStrip(const ControlLook& look, QWidget* parent) {
  auto* strip = new QTabWidget(parent);
  strip->setPalette(classicPalette());
  strip->setUsesScrollButtons(true);
  strip->tabBar()->setElideMode(Qt::ElideNone);
  for (const QString& caption : look.tabCaptions) {
    strip->addTab(new QWidget(strip), caption);
  }
  return strip;
}

QWidget* makeDataGrid(const ControlLook& look, QWidget* parent) {
  constexpr int kRowHeight = 17;
  constexpr int kSelectorWidth = 21;
  constexpr int kColumnWidth = 96;
  auto* grid = new QTableWidget(1, 2, parent);  // as a grid that no record has filled yet
  fillWindow(grid, look);
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setHorizontalHeaderLabels({QString(), QString()});
  grid->setVerticalHeaderLabels({QStringLiteral("\u25B6")});
  grid->horizontalHeader()->setFixedHeight(kRowHeight);
  grid->horizontalHeader()->setDefaultSectionSize(kColumnWidth);
  grid->horizontalHeader()->setHighlightSections(false);
  grid->verticalHeader()->setFixedWidth(kSelectorWidth);
  grid->verticalHeader()->setMinimumSectionSize(kRowHeight);
  grid->verticalHeader()->setDefaultSectionSize(kRowHeight);
  grid->verticalHeader()->setHighlightSections(false);
  return grid;
}

QWidget* makeDataControl(const ControlLook& look, QWidget* parent) {
  auto* bar = new DataBar(look.caption, parent);
  fill(bar, QPalette::Window, systemColor(SystemColor::kWindowBackground), look);
  bar->setAutoFillBackground(true);
  return bar;
}

QWidget* makePlaceholder(const ControlLook& look, QWidget* parent) {
  auto* box = new ClassPlaceholder(look.className, look.name, parent);
  fillGround(box, look);
  return box;
}

constexpr QSize kUsual{81, 33};  // 1215 by 495 twips, the size of a new control
constexpr QSize kNothing{0, 0};
using Layer = PreviewLayer;

// The placeholder stands last.
constexpr std::array<WidgetClass, 16> kClasses{{
    // name, layer, holds controls, has a TabIndex, size
    {"VB.Label", Layer::kDrawn, false, true, kUsual, makeLabel},
    {"VB.TextBox", Layer::kWindow, false, true, kUsual, makeTextBox},
    {"VB.CommandButton", Layer::kWindow, false, true, kUsual, makeCommandButton},
    {"VB.CheckBox", Layer::kWindow, false, true, kUsual, makeCheckBox},
    {"VB.OptionButton", Layer::kWindow, false, true, kUsual, makeOptionButton},
    {"VB.Frame", Layer::kWindow, true, true, kUsual, makeFrame},
    {"VB.PictureBox", Layer::kWindow, true, true, kUsual, makePictureBox},
    {"VB.ListBox", Layer::kWindow, false, true, kUsual, makeListBox},
    {"VB.ComboBox", Layer::kWindow, false, true, kUsual, makeComboBox},
    {"VB.Shape", Layer::kDrawn, false, false, kUsual, makeShape},
    {"VB.Line", Layer::kDrawn, false, false, kNothing, makeLine},
    {"VB.Image", Layer::kDrawn, false, false, kUsual, makeImage},
    {"VB.Data", Layer::kWindow, false, false, kUsual, makeDataControl},
    {"MSComctlLib.TabStrip", Layer::kTabStrip, false, true, kUsual, makeTabStrip},
    {"MSDataGridLib.DataGrid", Layer::kWindow, false, true, kUsual, makeDataGrid},
    {"", Layer::kWindow, false, true, kUsual, makePlaceholder},
}};

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
  return QLatin1String(left.data(), static_cast<qsizetype>(left.size()))
             .compare(QLatin1String(right.data(), static_cast<qsizetype>(right.size())),
                      Qt::CaseInsensitive) == 0;
}

std::string_view withoutVersion(std::string_view className) {
  const std::size_t point = className.find_last_not_of("0123456789");
  const bool hasVersion =
      point != std::string_view::npos && className[point] == '.' && point + 1 < className.size();
  return hasVersion ? className.substr(0, point) : className;
}

QString withoutMnemonic(const QString& caption) {
  QString plain;
  for (qsizetype place = 0; place < caption.size(); ++place) {
    if (caption[place] == QLatin1Char('&') && ++place == caption.size()) {
      break;
    }
    plain += caption[place];
  }
  return plain.simplified();
}

void name(QWidget* widget, const ControlLook& look) {
  widget->setObjectName(look.name);
  const QString caption = withoutMnemonic(look.caption);
  widget->setAccessibleName(caption.isEmpty() ? look.name : caption);
  widget->setAccessibleDescription(look.className);
  // A text that happens to hold tags is still shown as it stands.
  widget->setToolTip(Qt::mightBeRichText(look.toolTip) ? look.toolTip.toHtmlEscaped()
                                                       : look.toolTip);
}

}  // namespace

const WidgetClass& widgetClassOf(std::string_view className) {
  const std::string_view plain = withoutVersion(className);
  const auto* found =
      std::find_if(kClasses.begin(), kClasses.end() - 1,
                   [&](const WidgetClass& known) { return equalsIgnoringCase(known.name, plain); });
  return *found;
}

QWidget* makePreviewWidget(const PreviewControl& control, const PageText& texts, QWidget* parent) {
  const WidgetClass& kind = widgetClassOf(control.className);
  const ControlLook look = lookOf(control, texts);
  QWidget* widget = kind.make(look, parent);
  widget->setFont(previewFont());
  dressAsPreview(widget, parent->style());
  name(widget, look);
  widget->setGeometry({look.position, QSize(look.width.value_or(kind.usualSize.width()),
                                            look.height.value_or(kind.usualSize.height()))});
  widget->setEnabled(look.enabled);
  if (!look.tabStop && widget->focusPolicy() != Qt::NoFocus) {
    widget->setFocusPolicy(Qt::ClickFocus);
  }
  return widget;
}

}  // namespace tarrowin
