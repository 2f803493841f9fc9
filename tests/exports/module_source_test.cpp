// Code in exported files.
#include "access/exports/module_source.h"

#include <gtest/gtest.h>

#include "exports/export_files.h"

namespace tarrowin::exports {
namespace {

TEST(ModuleSource, LineEndsBecomeThoseOfAccess) {
  const ModuleSource source = moduleSource("Option Explicit\nDim a\r\n\nSub b()\n", false);
  EXPECT_EQ(source.text, "Option Explicit\r\nDim a\r\n\r\nSub b()\r\n");
  EXPECT_EQ(source.shownLines, 4u);
  EXPECT_EQ(moduleSource("Dim a", false).text, "Dim a\r\n");
  EXPECT_EQ(moduleSource("", false).text, "");
}

TEST(ModuleSource, HiddenLinesOfAStandardModule) {
  const ModuleSource source = moduleSource(
      "Attribute VB_Name = \"a\"\nOption Explicit\nSub b()\nAttribute b.VB_Description = \"x\"\n",
      false);
  EXPECT_EQ(source.text, "Option Explicit\r\nSub b()\r\n");
  EXPECT_EQ(source.shownLines, 2u);
}

TEST(ModuleSource, HeadOfAClass) {
  const ModuleSource source = moduleSource(
      "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\nAttribute VB_Name = \"a\"\n"
      "Attribute VB_GlobalNameSpace = False\nOption Explicit\n",
      true);
  EXPECT_EQ(source.text, "Attribute VB_GlobalNameSpace = False\r\nOption Explicit\r\n");
  EXPECT_EQ(source.shownLines, 1u);
  EXPECT_EQ(moduleSource("VERSION 1.0 CLASS\nBEGIN\nDim a\n", true).text, "BEGIN\r\nDim a\r\n");
}

TEST(CodeBehind, FoundOnALineOfItsOwn) {
  EXPECT_FALSE(codeBehind(kSmallForm));
  EXPECT_EQ(codeBehind("Begin Form\r\nEnd\r\nCodeBehindForm\r\nDim a\r\n"), "Dim a\r\n");
  EXPECT_EQ(codeBehind("CodeBehindForm"), "");
  EXPECT_FALSE(codeBehind("Tag =\"CodeBehindForm\"\n CodeBehindForms\n"));
}

TEST(CodeBehind, OnlyTheNameOfItsFile) {
  EXPECT_TRUE(onlyNamesCodeFile("' See \"Orders.cls\"\r\n"));
  EXPECT_TRUE(onlyNamesCodeFile("Attribute VB_Exposed = False\n' See \"a b.cls\"\n\n"));
  EXPECT_FALSE(onlyNamesCodeFile(""));
  EXPECT_FALSE(onlyNamesCodeFile("' See \"Orders.cls\"\nDim a\n"));
  EXPECT_FALSE(onlyNamesCodeFile("Dim a\n"));
}

}  // namespace
}  // namespace tarrowin::exports
