// Which lines of a stored source text the export gives, and how many the code window shows.
#include "access/vba/module_text.h"

#include <gtest/gtest.h>

namespace tarrowin::vba {
namespace {

constexpr std::string_view kClassHead =
    "Attribute VB_Name = \"Form_Orders\"\r\n"
    "Attribute VB_Base = \"0{8DAC324A-9BBD-4305-BB26-9A967D88C335}\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = True\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n"
    "Attribute VB_TemplateDerived = False\r\n"
    "Attribute VB_Customizable = False\r\n";
constexpr std::string_view kExportedHead =
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = True\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n";

std::string operator+(std::string_view left, std::string_view right) {
  return std::string(left).append(right);
}

TEST(ModuleText, StandardModuleLosesItsHead) {
  EXPECT_EQ(exportedText("Attribute VB_Name = \"Main\"\r\nOption Compare Database\r\n", false),
            "Option Compare Database\r\n");
}

TEST(ModuleText, ClassKeepsFourLinesOfItsHead) {
  EXPECT_EQ(exportedText(kClassHead + "Option Explicit\r\n", true),
            kExportedHead + "Option Explicit\r\n");
  EXPECT_EQ(shownLines(kClassHead + "Option Explicit\r\n"), 1u);
}

TEST(ModuleText, HeadAlone) {
  EXPECT_EQ(exportedText(kClassHead, true), kExportedHead);
  EXPECT_EQ(shownLines(kClassHead), 0u);
  EXPECT_EQ(exportedText(kClassHead, false), "");
}

TEST(ModuleText, DescriptionInTheHeadIsHidden) {
  EXPECT_EQ(exportedText(
                "Attribute VB_Name = \"C\"\r\nAttribute VB_Description = \"x\"\r\nDim a\r\n", true),
            "Dim a\r\n");
}

TEST(ModuleText, AttributesOfMembersAreHidden) {
  const std::string_view source =
      "Attribute VB_Name = \"C\"\r\n"
      "Private WithEvents frm As Form\r\n"
      "Attribute frm.VB_VarHelpID = -1\r\n"
      "Public Property Get Item() As Long\r\n"
      "Attribute Item.VB_Description = \"One = all\"\r\n"
      "Attribute Item.VB_UserMemId = 0\r\n"
      "End Property\r\n";
  EXPECT_EQ(exportedText(source, true),
            "Private WithEvents frm As Form\r\nPublic Property Get Item() As Long\r\n"
            "End Property\r\n");
  EXPECT_EQ(shownLines(source), 3u);
}

TEST(ModuleText, CodeThatOnlyLooksLikeAnAttributeStays) {
  const std::string_view code =
      "Option Explicit\r\n"
      "    Attribute x.VB_UserMemId = 0\r\n"
      "' Attribute x.VB_UserMemId = 0\r\n"
      "Attribute VB_Name = \"late\"\r\n"
      "AttributeCount = 1\r\n"
      "Attribute \r\n";
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"\r\n" + code, false), code);
  EXPECT_EQ(shownLines(code), 6u);
}

TEST(ModuleText, BlankLineEndsTheHead) {
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"\r\n\r\nAttribute VB_Exposed = False\r\n", true),
            "\r\nAttribute VB_Exposed = False\r\n");
}

TEST(ModuleText, LastLineWithoutEnd) {
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"\r\nEnd Sub", false), "End Sub");
  EXPECT_EQ(shownLines("Attribute VB_Name = \"M\"\r\nEnd Sub"), 1u);
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"", false), "");
}

TEST(ModuleText, OnlyBlankLines) {
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"\r\n\r\n\r\n", false), "\r\n\r\n");
  EXPECT_EQ(shownLines("Attribute VB_Name = \"M\"\r\n\r\n\r\n"), 2u);
}

TEST(ModuleText, EmptyText) {
  EXPECT_EQ(exportedText("", true), "");
  EXPECT_EQ(shownLines(""), 0u);
}

TEST(ModuleText, LineOfAMegabyte) {
  const std::string line = "' " + std::string(1u << 20, 'x') + "\r\n";
  EXPECT_EQ(exportedText("Attribute VB_Name = \"M\"\r\n" + line, false), line);
}

}  // namespace
}  // namespace tarrowin::vba
