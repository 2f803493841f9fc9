// The actions of the rules.
#include "codeconv/line_rewriter.h"

#include <string>
#include <utility>

#include "codeconv/do_cmd_mapping.h"
#include "shared/text_procedures.h"

namespace tarrowin {

namespace {
constexpr std::string_view kInitializeHeader = "Private Sub Form_Initialize() '";
// Overwrites as many characters: "DblClick(Cancel".
constexpr std::string_view kDoubleClick = "DblClick()    '";
}  // namespace

LineRewriter::LineRewriter(CodeKind kind, ConversionState& state, PrintLine print,
                           AfterHeader afterHeader)
    : kind_(kind),
      state_(state),
      print_(std::move(print)),
      afterHeader_(std::move(afterHeader)),
      finder_(kind) {}

void LineRewriter::rewrite() { apply(finder_.find(state_.strCodeLine)); }

void LineRewriter::apply(const CodeRule* rule) {
  const std::string& line = state_.strCodeLine;
  switch (rule == nullptr ? LineAction::kKeep : rule->action(kind_)) {
    case LineAction::kNotListed:
    case LineAction::kDrop:
      return;
    case LineAction::kKeep:
      print_(line);
      return;
    case LineAction::kKeepAndBlank:
      print_(line);
      print_("");
      return;
    case LineAction::kComment:
      comment();
      return;
    case LineAction::kCommentTwice:
      comment();
      comment();
      return;
    case LineAction::kOpenDatabase3Blanks:
      openDatabase(")   '");
      return;
    case LineAction::kOpenDatabase1Blank:
      openDatabase(") '");
      return;
    case LineAction::kKeepAndDotted:
      printDotted();
      return;
    case LineAction::kKeepDottedAndComment:
      printDotted();
      comment();
      return;
    case LineAction::kDoCmd:
      convertDoCmdLine(kind_, line, state_.strDoCmdMethod, print_);
      return;
    case LineAction::kFormLoad:
      print_(line);
      afterHeader_(FormHeader::kLoad);
      return;
    case LineAction::kFormOpen:
      print_(std::string(kInitializeHeader) + line);
      afterHeader_(FormHeader::kOpen);
      return;
    case LineAction::kDoubleClick:
      dropDoubleClickArgument();
      return;
  }
}

void LineRewriter::comment() { print_("' " + state_.strCodeLine); }

void LineRewriter::openDatabase(std::string_view ending) {
  print_("Set " + ExtractSetVariable(state_.strCodeLine) + " = OpenDatabase(\"" +
         state_.mstrDbFullName + "\"" + std::string(ending));
}

void LineRewriter::printDotted() {
  print_(state_.strCodeLine);
  // Without a "!" the line becomes empty.
  state_.strCodeLine = ReplaceFirst(state_.strCodeLine, "!", ".");
  print_(state_.strCodeLine);
}

void LineRewriter::dropDoubleClickArgument() {
  // From the first "_" of the line on, which need not be the event's.
  std::string& line = state_.strCodeLine;
  line.replace(line.find('_') + 1, kDoubleClick.size(), kDoubleClick);
  print_(line);
}

}  // namespace tarrowin
