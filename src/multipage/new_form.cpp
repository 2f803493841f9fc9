// The pages, each to a form of its own.
#include "multipage/new_form.h"

#include <string>

#include "multipage/control_copy.h"
#include "multipage/page_source.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr int kDefaultPointer = 0, kHourglassPointer = 11;
constexpr std::int32_t kDetail = 0;

class FormSplitter {
 public:
  FormSplitter(MainObject& main, std::string_view name)
      : main_(main), name_(name), procedure_(main, "CreateNewForm"), source_(main, name) {}

  void split() {
    source_.open(procedure_);
    for (std::size_t page = 0; page < source_.pages(); ++page) makePage(page);
  }

  std::string result() const;

 private:
  void makePage(std::size_t page);
  void copy(std::size_t page, const LateBound& newForm, const LateBound& control);

  MainObject& main_;
  std::string name_;
  Restructuring procedure_;
  PageSource source_;
  std::string firstName_, newName_;
};

void FormSplitter::makePage(std::size_t page) {
  LateBound newForm;
  procedure_.statement([&] { newForm = main_.state.gappAccess.CreateForm(name_); });
  procedure_.statement([&] { newName_ = newForm.text("Name"); });
  if (page == 0) firstName_ = newName_;
  finishNewForm(main_, procedure_, newForm);
  source_.reopen(procedure_);
  source_.forEachControl(procedure_,
                         [&](const LateBound& control) { copy(page, newForm, control); });
  saveNewForm(main_, procedure_, newName_);
}

void FormSplitter::copy(std::size_t page, const LateBound& newForm, const LateBound& control) {
  const SourceControl source = readSourceControl(procedure_, control);
  const std::int32_t ownTop = source.top.value_or(0);
  if (!source_.isOnPage(page, ownTop)) return;
  const std::int32_t top = source.section == kDetail ? source_.topOnPage(page, ownTop) : ownTop;
  LateBound newControl;
  procedure_.statement([&] {
    newControl = main_.state.gappAccess.CreateControl(newName_, source.type, source.section,
                                                      source.parentName, source.left, top,
                                                      source.width, source.height);
  });
  if (!newControl) return;
  copyControl(procedure_, source, newForm, newControl, top,
              page > 0 ? std::optional(top) : std::nullopt);
}

std::string FormSplitter::result() const {
  const auto count = static_cast<std::int32_t>(source_.pages());
  const std::string head = "Successfully created " + LTrimStr(count) + " new ";
  if (count == 1) return head + "Form named " + firstName_ + ".";
  return head + "Forms named " + firstName_ + (count == 2 ? " and " : " through to ") + newName_ +
         ".";
}

}  // namespace

void CreateNewForm(MainObject& main, std::string_view name, bool blnShowResult) {
  main.window.mousePointer = kHourglassPointer;
  FormSplitter splitter(main, name);
  splitter.split();
  if (blnShowResult) main.messageBox(message_style::kInformation, splitter.result());
  main.window.mousePointer = kDefaultPointer;
}

}  // namespace tarrowin
