// The blocks of a form or report: one without a name in the form's, which holds default styles,
// group levels and sections, and one in each section and control that holds others.
#include "access/exports/design_text.h"

#include <utility>

#include "access/designs/block_kinds.h"
#include "access/exports/shared_blocks.h"

namespace tarrowin::exports {

namespace {

constexpr std::int32_t kFirstLaterVersion = 20;
// Several times what any object has; what is met twice is looked for one by one.
constexpr std::size_t kMostProperties = 500;

[[noreturn]] void fail(std::size_t line, const std::string& problem) {
  throw ExportTextError(line, problem);
}

std::string quoted(const std::string& word) { return "\"" + word + "\""; }

class DesignReader {
 public:
  StoredDesign read(TextBlock& top, bool hasCode, DesignKind expected) {
    const TextProperty* const version = top.find("Version");
    if (version == nullptr || version->number() == nullptr)
      fail(1, "a form or report begins with \"Version =\"");
    design_.version = *version->number();
    design_.laterFormat = design_.version >= kFirstLaterVersion;
    if (top.children.size() > 1) fail(top.children[1].line, "a second object");
    if (top.children.empty()) {
      if (!hasCode) fail(1, "it has no layout");
      design_.root.kind = expected == DesignKind::kForm ? "Form" : "Report";
    } else {
      readRoot(top.children.front());
    }
    return std::move(design_);
  }

 private:
  void readRoot(TextBlock& block) {
    const BlockRole role = blockKind(block.kind).role;
    if (role != BlockRole::kForm && role != BlockRole::kReport)
      fail(block.line, quoted(block.kind) + " is neither a form nor a report");
    design_.root.kind = block.kind;
    takeProperties(block, design_.root);
    for (TextBlock& part : contentOf(block)) design_.root.children.push_back(readPart(part));
  }

  // The blocks inside the one block without a name that a block may have.
  static std::vector<TextBlock> contentOf(TextBlock& block) {
    if (block.children.empty()) return {};
    for (const TextBlock& child : block.children)
      if (!child.kind.empty()) fail(child.line, quoted(child.kind) + " stands in a wrong place");
    if (block.children.size() > 1) fail(block.children[1].line, "a second block without a name");
    TextBlock& content = block.children.front();
    if (!content.properties.empty())
      fail(content.properties.front().line, "a property outside of its block");
    for (const TextBlock& child : content.children)
      if (child.kind.empty()) fail(child.line, "a block without a name in another one");
    return std::move(content.children);
  }

  // A default style, a group level or a section.
  StoredBlock readPart(TextBlock& block) {
    const BlockRole role = blockKind(block.kind).role;
    StoredBlock part{block.kind, {}, {}};
    if (role == BlockRole::kSection) {
      for (TextBlock& control : contentOf(block)) readControl(control, part);
    } else if (!block.children.empty() || role == BlockRole::kForm || role == BlockRole::kReport ||
               (role == BlockRole::kControl && block.find("Name") != nullptr)) {
      fail(block.line, quoted(block.kind) + " stands outside of a section");
    }
    takeProperties(block, part);
    return part;
  }

  void readControl(TextBlock& block, StoredBlock& parent) {
    const BlockRole role = blockKind(block.kind).role;
    if (role != BlockRole::kControl && role != BlockRole::kUnknown)
      fail(block.line, quoted(block.kind) + " stands in a wrong place");
    for (auto& [single, recovered] : partSharedBlock(std::move(block))) {
      ++design_.understood.controls;
      if (role == BlockRole::kControl && !recovered) ++design_.understood.controlsKnown;
      StoredBlock control{single.kind, {}, {}};
      for (TextBlock& inner : contentOf(single)) readControl(inner, control);
      takeProperties(single, control);
      parent.children.push_back(std::move(control));
    }
  }

  void takeProperties(TextBlock& from, StoredBlock& to) {
    if (from.properties.size() > kMostProperties)
      fail(from.line, "more properties than any object has");
    to.properties.reserve(from.properties.size());
    for (TextProperty& property : from.properties) {
      ++design_.understood.properties;
      if (std::holds_alternative<UnknownContent>(property.content)) continue;
      ++design_.understood.propertiesKnown;
      if (StoredProperty stored = storedProperty(property); !isRepeated(stored, property, from))
        to.properties.push_back(std::move(stored));
    }
  }

  static StoredProperty storedProperty(TextProperty& property) {
    constexpr std::string_view kMacroEnd = "EmMacro", kReported = "[Embedded Macro]";
    if (std::holds_alternative<EmbeddedMacro>(property.content)) {
      std::string keyword = property.keyword;
      if (!keyword.ends_with(kMacroEnd)) fail(property.line, "a macro under " + quoted(keyword));
      keyword.resize(keyword.size() - kMacroEnd.size());
      return {std::move(keyword), Value(kReported)};
    }
    if (std::holds_alternative<TurnedOver>(property.content))
      return {property.keyword, TurnedOver{}};
    return {property.keyword, std::get<Value>(property.content)};
  }

  // Whether the same stands there already; a second value is damage.
  static bool isRepeated(const StoredProperty& stored, const TextProperty& property,
                         const TextBlock& block) {
    for (const TextProperty& other : block.properties) {
      if (&other == &property) return false;
      if (other.keyword != property.keyword) continue;
      if (other.content.index() != property.content.index() ||
          (std::holds_alternative<Value>(stored.value) &&
           std::holds_alternative<Value>(other.content) &&
           std::get<Value>(other.content) != std::get<Value>(stored.value)))
        fail(property.line, quoted(property.keyword) + " has two values");
      return true;
    }
    return false;
  }

  StoredDesign design_;
};

}  // namespace

ExportedDesign readDesignText(std::string_view text, DesignKind expected,
                              const CodePage& codePage) {
  TextTree tree = parseTextTree(text, codePage);
  ExportedDesign result;
  result.design = DesignReader().read(tree.top, tree.code.has_value(), expected);
  result.design.hasModule = tree.code.has_value();
  result.code = std::move(tree.code);
  return result;
}

}  // namespace tarrowin::exports
