// The entries of mstrTabControls: which control stands on which page of the tab control.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarrowin {

// The name of the control in Visual Basic: "Ship Date" is Ship_Date.
std::string previewName(std::string_view accessName);

// The entry of a control on the page of that index, from 0. One digit stands for the page: the
// first of an index of 10 or more.
std::string pageEntry(std::int32_t page, std::string_view accessName);

// The Visual Basic name of the control of an entry; empty for an empty entry.
std::string nameOfPageEntry(const std::string& entry);
// The page; nothing for an entry that does not begin with a digit.
std::optional<int> pageOfEntry(std::string_view entry);

}  // namespace tarrowin
