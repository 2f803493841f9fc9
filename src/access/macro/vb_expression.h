// Expressions of Access in macros as expressions of Visual Basic.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarrowin {

struct VbExpression {
  enum class Form {
    kValue,   // anything that has a value
    kTarget,  // a name, such as Forms!Orders!Total, that may be assigned to
    kCall,    // the call of a function of that name, such as Update("a")
    kEval,    // Eval("...")
  };

  std::string text;
  Form form = Form::kValue;
  bool usesContext = false;         // holds a ".Name" that belongs into "With CodeContextObject"
  std::vector<std::string> called;  // the names of functions called
};

// What Visual Basic can say is said in its own words: brackets that a name does not need fall away,
// and a name that stands for itself, which Access looks up in the form or report that runs the
// macro, gets a dot before it. The rest, as "Between", "In", "Is Null", or a text that is no
// expression at all, is left to Access as a text: Eval("[A] Is Null"). A leading "=" is dropped.
// Never fails.
VbExpression vbExpression(std::string_view accessExpression);

}  // namespace tarrowin
