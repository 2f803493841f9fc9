// The form selected, the button clicked, and what was shown printed.
#include "cli/preview_command.h"

#include <optional>

#include "cli/console.h"
#include "cli/open_source.h"
#include "cli/preview_text.h"
#include "core/window_events.h"

namespace tarrowin {

namespace {

void select(OpenedSource& opened, const PreviewOptions& options) {
  bool found = false;
  for (ListItem& item : opened.main().window.list(ObjectList::kForms)) {
    item.selected = item.text == options.form;
    found = found || item.selected;
  }
  if (!found)
    throw CommandFailure(options.source + ": there is no form named \"" + options.form + "\"");
}

}  // namespace

ExitStatus previewForm(const Environment& environment, const PreviewOptions& options) {
  const CodePage codePage(CodePage::kUtf8);
  OpenedSource opened(environment, codePage, options.source);
  select(opened, options);
  clickButton(opened.main(), "cmdObjProps");
  const std::optional<PreviewSurface>& shown = opened.user().preview();
  if (!shown) return ExitStatus::kNotConverted;
  environment.console.print(options.json ? jsonText(previewJson(*shown, codePage), 2) + "\n"
                                         : previewText(*shown, codePage));
  return ExitStatus::kDone;
}

}  // namespace tarrowin
