// The pages, each to a page of the tab control.
#include "multipage/tab_form.h"

#include <string>

#include "forms/control_types.h"
#include "multipage/control_copy.h"
#include "multipage/page_source.h"
#include "shared/vb_number.h"

namespace tarrowin {

namespace {

constexpr int kDefaultPointer = 0, kHourglassPointer = 11;
constexpr std::int32_t kDetail = section_number::kDetail;
// Everything comes to lie this much lower, below the tabs: twips.
constexpr std::int32_t kTabStrip = 300;
// The control cannot stand on a tab page.
constexpr std::int32_t kErrNotOnPage = 2151;

class TabBuilder {
 public:
  TabBuilder(MainObject& main, std::string_view name)
      : main_(main), name_(name), procedure_(main, "CreateNewFormInTab"), source_(main, name) {}

  void build();
  const std::string& newName() const { return newName_; }

 private:
  void makeForm();
  void copy(std::size_t page, const LateBound& control);
  LateBound create(const SourceControl& source, const std::string& parent, std::int32_t top);
  std::string pageName(std::size_t page) const;

  MainObject& main_;
  std::string name_;
  Restructuring procedure_;
  PageSource source_;
  LateBound newForm_, tabControl_;
  std::string newName_;
};

void TabBuilder::build() {
  source_.open(procedure_);
  makeForm();
  for (std::size_t page = 0; page < source_.pages(); ++page) {
    if (page == 0) {
      finishNewForm(main_, procedure_, newForm_);
      procedure_.statement([&] { tabControl_.put("Top", Value(0)); });
      source_.reopen(procedure_);
    }
    source_.forEachControl(procedure_, [&](const LateBound& control) { copy(page, control); });
  }
  saveNewForm(main_, procedure_, newName_);
}

void TabBuilder::makeForm() {
  procedure_.statement([&] { newForm_ = main_.state.gappAccess.CreateForm(name_); });
  procedure_.statement([&] { newName_ = newForm_.text("Name"); });
  procedure_.statement([&] {
    tabControl_ =
        main_.state.gappAccess.CreateControl(newName_, control_type::kTabControl, kDetail);
  });
}

void TabBuilder::copy(std::size_t page, const LateBound& control) {
  SourceControl source = readSourceControl(procedure_, control);
  std::int32_t top = 0;
  if (source.top) procedure_.statement([&] { top = addInt32(*source.top, kTabStrip); });
  if (!source_.isOnPage(page, top)) return;
  const bool inDetail = source.section == kDetail;
  if (inDetail) top = source_.topOnPage(page, top);
  const std::string parent = inDetail ? pageName(page) : source.parentName;
  LateBound newControl = create(source, parent, top);
  if (procedure_.lastError == kErrNotOnPage) {
    procedure_.lastError = 0;
    source.type = control_type::kRectangle;
    newControl = create(source, parent, top);
  }
  if (!newControl) return;
  // In a header or footer everything keeps its own Top, and a label keeps that of the source form
  // everywhere.
  const std::int32_t placedTop = inDetail ? top : top - kTabStrip;
  const bool isLabel = source.type == control_type::kLabel;
  copyControl(procedure_, source, newForm_, newControl, placedTop,
              isLabel ? std::nullopt : std::optional(placedTop));
}

LateBound TabBuilder::create(const SourceControl& source, const std::string& parent,
                             std::int32_t top) {
  LateBound control;
  procedure_.statement([&] {
    control = main_.state.gappAccess.CreateControl(newName_, source.type, source.section, parent,
                                                   source.left, top, source.width, source.height);
  });
  return control;
}

// A page in the middle goes to the tab page of the one before it; the last one has its own.
std::string TabBuilder::pageName(std::size_t page) const {
  const bool middle = page > 0 && !source_.isLastPage(page);
  return "Page" + std::to_string(middle ? page : page + 1);
}

}  // namespace

void CreateNewFormInTab(MainObject& main, std::string_view name, bool blnShowResult) {
  main.window.mousePointer = kHourglassPointer;
  TabBuilder builder(main, name);
  builder.build();
  if (blnShowResult) {
    main.messageBox(message_style::kInformation,
                    "Successfully created a new Tabbed Form named " + builder.newName() + ".");
  }
  main.window.mousePointer = kDefaultPointer;
}

}  // namespace tarrowin
