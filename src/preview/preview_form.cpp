// The steps of a preview, from the opening of the Access form to the showing of Form1.
#include "preview/preview_form.h"

#include <string>
#include <vector>

#include "core/main_object.h"
#include "core/statement.h"
#include "preview/surface_builder.h"
#include "shared/vb_format.h"

namespace tarrowin {

namespace {

constexpr int kDefaultPointer = 0, kHourglassPointer = 11;
constexpr std::string_view kBoxTitle = "Preview Access Form";

// The labels of the main window while a form is walked through; they are then as they were.
class Progress {
 public:
  Progress(MainObject& main, const std::string& name)
      : main_(main),
        lblCurDb_(main.window.lblCurDb),
        lblPct_(main.window.lblPct),
        lblPercent_(main.window.lblPercent) {
    main_.window.lblCurDb.visible = false;
    main_.window.lblPct = {"Form: " + name, true};
    main_.window.lblPercent = {"", true};
  }
  ~Progress() {
    main_.window.lblCurDb = lblCurDb_;
    main_.window.lblPct = lblPct_;
    main_.window.lblPercent = lblPercent_;
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // The window is painted when the number on it changes, and not for each of many controls.
  void show(std::int32_t done, std::int32_t count) {
    std::string percent = formatWhole(static_cast<double>(done) / count * 100) + "%";
    if (percent == main_.window.lblPercent.caption) return;
    main_.window.lblPercent.caption = std::move(percent);
    main_.user.refresh(main_.window);
  }

 private:
  MainObject& main_;
  Label lblCurDb_, lblPct_, lblPercent_;
};

class Preview {
 public:
  Preview(MainObject& main, std::string_view name)
      : main_(main), access_(main.state.gappAccess), name_(name) {}

  void run() {
    main_.window.mousePointer = kHourglassPointer;
    try {
      build();
    } catch (const VbError& error) {
      // What fails because the form is gone is told as just that.
      if (opened_ && isFormGone()) {
        tellThatFormIsGone();
      } else {
        main_.errorBox("PreviewForm", error);
      }
    }
    main_.window.mousePointer = kDefaultPointer;
  }

 private:
  void build();
  void closeModules();
  bool isFormGone() const;
  void tellThatFormIsGone();

  MainObject& main_;
  const Application& access_;
  std::string name_;
  bool opened_ = false;
};

void Preview::build() {
  access_.doCmd().OpenForm(name_, access_constants::acDesign);
  opened_ = true;
  closeModules();
  SurfaceBuilder builder(main_.state, access_.Forms(name_), name_);
  builder.readSections();
  builder.addDataControl();
  {
    Progress progress(main_, name_);
    builder.addControls([&](std::int32_t done, std::int32_t count) { progress.show(done, count); });
  }
  if (isFormGone()) return tellThatFormIsGone();
  builder.setUpForm();
  builder.showFirstPage();
  access_.doCmd().Close(access_constants::acForm, name_, access_constants::acSaveNo);
  main_.user.showPreview(builder.surface());
}

// The names first, since each closing takes a module out of the collection.
void Preview::closeModules() {
  const Collection<Module> modules(toObject(access_.get("Modules")));
  std::vector<std::string> names;
  const std::int32_t count = modules.Count();
  for (std::int32_t i = 0; i < count; ++i) names.push_back(modules(i).text("Name"));
  for (const std::string& name : names) {
    access_.doCmd().Close(access_constants::acModule, name, access_constants::acSaveNo);
  }
}

bool Preview::isFormGone() const {
  return !ignoringErrors([this] { access_.Forms(name_); });
}

void Preview::tellThatFormIsGone() {
  main_.user.messageBox(message_style::kInformation,
                        "The database and or Form '" + name_ +
                            "' was closed and cannot be displayed.\r\nThis may have been caused by "
                            "code in a Macro or Module.",
                        kBoxTitle);
}

}  // namespace

void PreviewForm(MainObject& main, std::string_view name) { Preview(main, name).run(); }

void cmdObjProps_Click(MainObject& main) {
  for (const ListItem& item : main.window.list(ObjectList::kForms)) {
    if (!item.selected) continue;
    // The item may be gone before the preview is.
    const std::string name = item.text;
    return PreviewForm(main, name);
  }
}

}  // namespace tarrowin
