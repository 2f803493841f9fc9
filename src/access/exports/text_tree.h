// The text export of a form, report or query as a tree of blocks and properties, without any
// knowledge of what they mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "access/designs/stored_design.h"
#include "access/macro/export_lines.h"
#include "shared/code_page.h"
#include "shared/value.h"

namespace tarrowin::exports {

// A macro that is part of a property.
struct EmbeddedMacro {};
// A property that the exporting version of Access knew by number only.
struct UnknownContent {};

using TextContent = std::variant<TurnedOver, Value, EmbeddedMacro, UnknownContent>;

struct TextProperty {
  std::string keyword;
  // The keyword is a name in quotes behind a DAO type: dbText "Name" ="x".
  bool typed = false;
  TextContent content;
  std::size_t line = 0;            // from 1
  std::size_t childrenBefore = 0;  // how many blocks of its block stand before it

  const std::string* text() const;
  const std::int32_t* number() const;
};

struct TextBlock {
  std::string kind;  // empty for a block without a name
  std::size_t line = 0;
  std::vector<TextProperty> properties;
  std::vector<TextBlock> children;

  // The last property of the keyword, or nullptr.
  const TextProperty* find(std::string_view keyword) const;
};

struct TextTree {
  TextBlock top;  // its properties are the header lines
  // What stands behind the line "CodeBehindForm", in the code page.
  std::optional<std::string> code;
};

// Blocks inside blocks; real designs have about fifteen.
inline constexpr std::size_t kDeepestBlocks = 40;
// Properties and blocks of one object, a hundred times what the largest real ones have.
inline constexpr std::size_t kMostItems = 1'000'000;

// Parses a text in the code page. Throws ExportTextError for what does not follow the grammar, is
// nested too deeply or too large.
TextTree parseTextTree(std::string_view text, const CodePage& codePage);

}  // namespace tarrowin::exports
