// Names inside SQL text: when a name needs square brackets, and a name with them.
// All text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin::mdb {

// A word that SQL takes bare: letters, digits and underscores, not beginning with a digit. Letters
// are those of any script: Jet itself stores expressions such as Produtos.CódigoDoProduto without
// brackets. Signs and punctuation outside ASCII, and bytes that are no UTF-8, are no letters.
// Reserved words count as plain: Access 97 to 2003 prints them as they stand.
bool isPlainName(std::string_view name);

// The name as SQL text. One that holds a bracket is already written out, as the parameter
// [Forms]![Orders]![From], and stays; a name in Access can hold none.
std::string bracketedName(std::string_view name);

// A field, perhaps with its table before a dot, each part bracketed where it must be. Neither can
// hold a dot itself. A field that holds a bracket is already written out.
std::string bracketedField(std::string_view field);

}  // namespace tarrowin::mdb
