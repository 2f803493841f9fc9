// One small form in its three encodings: width 5000, caption "Hi"; a style for labels (italic
// turned on, font size 8); a detail section of 2000 twips with text box "A" (two decimal places)
// and its attached label "L".
#pragma once

#include "design_blob/blob_builder.h"

namespace tarrowin {

inline BuiltObject exampleForm() {
  const BuiltObject style{100, {flag(1).withCode(33), integerValue(100, 8).withCode(35)}, {}};
  const BuiltObject label{100,
                          {integerValue(97, 300).withCode(141), integerValue(98, 900).withCode(150),
                           integerValue(99, 240).withCode(44), textValue(220, u"L").withCode(20),
                           textValue(221, u"&A:").withCode(17)},
                          {}};
  const BuiltObject box{109,
                        {byteValue(48, 2).withCode(71), integerValue(96, 1440).withCode(54),
                         integerValue(97, 300).withCode(141), textValue(220, u"A").withCode(20)},
                        {label}};
  const BuiltObject section{
      152, {integerValue(96, 2000).withCode(44), textValue(223, u"Detail").withCode(20)}, {box}};
  return {150,
          {integerValue(99, 5000).withCode(150), textValue(221, u"Hi").withCode(17)},
          {style, section}};
}

inline constexpr const char* kExampleListing =
    "Form Width=5000 Caption=\"Hi\"\n"
    "  Label FontItalic! FontSize=8\n"
    "  Section Height=2000 Name=\"Detail\"\n"
    "    TextBox DecimalPlaces=2 Left=1440 Top=300 Name=\"A\"\n"
    "      Label Top=300 Width=900 Height=240 Name=\"L\" Caption=\"&A:\"\n";

}  // namespace tarrowin
