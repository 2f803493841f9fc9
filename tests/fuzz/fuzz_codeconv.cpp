// Any bytes as lines of code, through the rules of modules and forms. The fast search for a rule
// must agree with the plain walk over the table.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "codeconv/line_rewriter.h"
#include "shared/vb_error.h"

namespace {

using namespace tarrowin;

const CodeRule* firstInTable(CodeKind kind, std::string_view line) {
  for (const CodeRule& rule : codeRules()) {
    if (rule.action(kind) != LineAction::kNotListed && matches(rule, line)) return &rule;
  }
  return nullptr;
}

void rewriteAll(CodeKind kind, std::string_view text) {
  const RuleFinder finder(kind);
  ConversionState state;
  std::size_t written = 0;
  LineRewriter rewriter(
      kind, state, [&](std::string_view line) { written += line.size(); }, [](FormHeader) {});
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    state.strCodeLine = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (finder.find(state.strCodeLine) != firstInTable(kind, state.strCodeLine)) std::abort();
    try {
      rewriter.rewrite();
    } catch (const VbError& error) {
      if (error.number() != kErrInvalidCall) std::abort();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  rewriteAll(CodeKind::kModule, text);
  rewriteAll(CodeKind::kForm, text);
  return 0;
}
