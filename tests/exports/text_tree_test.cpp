// The grammar of exported objects, and what breaks it.
#include "access/exports/text_tree.h"

#include <gtest/gtest.h>

namespace tarrowin::exports {
namespace {

TextTree parsed(const std::string& text, const CodePage& page = CodePage()) {
  return parseTextTree(text, page);
}

std::string problemOf(const std::string& text) {
  try {
    parsed(text);
  } catch (const ExportTextError& error) {
    return error.what();
  }
  return "";
}

const Value& valueOf(const TextBlock& block, std::string_view keyword) {
  return std::get<Value>(block.find(keyword)->content);
}

TEST(TextTree, BlocksAndPropertiesKeepTheirOrder) {
  const TextTree tree = parsed(
      "Version =20\r\nBegin Form\r\n    Width =-5\r\n    Begin\r\n        Begin Label\r\n"
      "        End\r\n    End\r\n    Caption =\"x\"\r\nEnd\r\n");
  EXPECT_EQ(valueOf(tree.top, "Version"), Value(20));
  ASSERT_EQ(tree.top.children.size(), 1u);
  const TextBlock& form = tree.top.children[0];
  EXPECT_EQ(form.kind, "Form");
  EXPECT_EQ(form.line, 2u);
  ASSERT_EQ(form.properties.size(), 2u);
  EXPECT_EQ(valueOf(form, "Width"), Value(-5));
  EXPECT_EQ(form.properties[0].childrenBefore, 0u);
  EXPECT_EQ(form.properties[1].childrenBefore, 1u);
  ASSERT_EQ(form.children.size(), 1u);
  EXPECT_EQ(form.children[0].kind, "");
  EXPECT_EQ(form.children[0].children[0].kind, "Label");
  EXPECT_FALSE(tree.code);
}

TEST(TextTree, ValuesOfEachKind) {
  const TextTree tree = parsed(
      "Flag = NotDefault\nShade =95.0\nColor =-2147483633\nBig =4294967295\nEmpty =\"\"\n"
      "GUID = Begin\n    0x00ff10 ,\n    0xAb\nEnd\nHollow = Begin\nEnd\n");
  EXPECT_TRUE(std::holds_alternative<TurnedOver>(tree.top.find("Flag")->content));
  EXPECT_EQ(valueOf(tree.top, "Shade"), Value(95.0));
  EXPECT_EQ(valueOf(tree.top, "Color"), Value(-2147483633));
  EXPECT_EQ(valueOf(tree.top, "Big"), Value(4294967295.0));
  EXPECT_EQ(valueOf(tree.top, "Empty"), Value(""));
  EXPECT_EQ(valueOf(tree.top, "GUID"), Value(Bytes{0x00, 0xFF, 0x10, 0xAB}));
  EXPECT_EQ(valueOf(tree.top, "Hollow"), Value(Bytes{}));
}

TEST(TextTree, TextsGoOnInTheLinesBelow) {
  const TextTree tree =
      parsed("Filter =\"a \\\"b\\\" \"\n    \"c\\\\d\\015\\012e\\011\"\n    \"f\"\nWidth =1\n");
  EXPECT_EQ(valueOf(tree.top, "Filter"), Value("a \"b\" c\\d\r\ne\tf"));
  EXPECT_EQ(valueOf(tree.top, "Width"), Value(1));
}

TEST(TextTree, CharacterCodesBeyondAsciiFollowTheCodePage) {
  EXPECT_EQ(valueOf(parsed("A =\"\\351\"\n").top, "A"), Value("\xE9"));
  EXPECT_EQ(valueOf(parsed("A =\"\\351\"\n", CodePage(CodePage::kUtf8)).top, "A"),
            Value("\xC3\xA9"));
}

TEST(TextTree, EmptyLinesAndMixedLineEndsDontMatter) {
  const TextTree tree = parsed("\n  \r\nBegin Form\r\n\n    Width =1\n\r\n  End\n\n");
  EXPECT_EQ(tree.top.children.size(), 1u);
}

TEST(TextTree, CodeStandsAsItIs) {
  const TextTree tree = parsed("Begin Form\nEnd\nCodeBehindForm\nEnd Sub\n  0x12\n");
  EXPECT_EQ(tree.code, "End Sub\n  0x12\n");
  EXPECT_EQ(parsed("CodeBehindForm").code, "");
}

TEST(TextTree, UnknownPropertiesAndEmbeddedMacrosAreTakenWhole) {
  const TextTree tree = parsed(
      "UnknownProp = {400 ,1 ,3 ,1 ,1 } Begin\n    0x01\nEnd\n"
      "OnClickEmMacro = Begin\n    Version =196611\n    Begin\n        Action =\"Beep\"\n"
      "        Argument =\"a\"\n        Argument =\"b\"\n    End\nEnd\nWidth =1\n");
  ASSERT_EQ(tree.top.properties.size(), 3u);
  EXPECT_TRUE(std::holds_alternative<UnknownContent>(tree.top.properties[0].content));
  EXPECT_TRUE(std::holds_alternative<EmbeddedMacro>(tree.top.properties[1].content));
  EXPECT_EQ(valueOf(tree.top, "Width"), Value(1));
}

TEST(TextTree, TypedPropertiesBearTheirName) {
  const TextTree tree =
      parsed("dbMemo \"SQL\" =\"SELECT 1;\"\ndbBinary \"GUID\" = Begin\n    0x01\nEnd\n");
  EXPECT_TRUE(tree.top.find("SQL")->typed);
  EXPECT_EQ(valueOf(tree.top, "SQL"), Value("SELECT 1;"));
  EXPECT_EQ(valueOf(tree.top, "GUID"), Value(Bytes{1}));
}

TEST(TextTree, UnknownBlocksAreBlocksToo) {
  const TextTree tree = parsed("Begin Hologram\n    Depth =3\nEnd\n");
  EXPECT_EQ(tree.top.children[0].kind, "Hologram");
}

TEST(TextTreeDamage, EveryLineWithBeginIsGone) {
  EXPECT_EQ(problemOf("Version =20\nWidth =1\n    0x0102 ,\nEnd\n"),
            "line 3: the line with which its block began is missing");
  EXPECT_EQ(problemOf("Version =20\nWidth =1\nEnd\n"),
            "line 3: the line with which its block began is missing");
}

TEST(TextTreeDamage, BlockCutShort) {
  EXPECT_EQ(problemOf("Version =20\nBegin Form\n    Begin\n"), "line 3: a block without \"End\"");
  EXPECT_EQ(problemOf("Begin Form\n    GUID = Begin\n        0x01 ,\n"),
            "line 2: a block without \"End\"");
  EXPECT_EQ(problemOf("Begin Form\n    GUID = Begin"), "line 2: a block without \"End\"");
}

TEST(TextTreeDamage, BrokenBytes) {
  EXPECT_EQ(problemOf("GUID = Begin\n    0x012\nEnd\n"),
            "line 2: half a byte in a line of hexadecimal digits");
  EXPECT_EQ(problemOf("GUID = Begin\n    0x01g2\nEnd\n"), "line 2: no hexadecimal digit");
  EXPECT_EQ(problemOf("GUID = Begin\n    0x01\n    Width =1\nEnd\n"),
            "line 3: a line of hexadecimal digits is expected");
}

TEST(TextTreeDamage, BrokenProperties) {
  EXPECT_EQ(problemOf("Width =abc\n"), "line 1: neither a number nor a text behind \"=\"");
  EXPECT_EQ(problemOf("Width =\n"), "line 1: neither a number nor a text behind \"=\"");
  EXPECT_EQ(problemOf("Width\n"), "line 1: neither a property nor \"Begin\" or \"End\"");
  EXPECT_EQ(problemOf("Caption =\"abc\n"), "line 1: a text without closing quote");
  EXPECT_EQ(problemOf("Begin Two Words\nEnd\n"), "line 1: more than one word behind \"Begin\"");
}

TEST(TextTreeDamage, NestedTooDeeply) {
  std::string text;
  for (std::size_t i = 0; i < kDeepestBlocks; ++i) text += "Begin\n";
  std::string end;
  for (std::size_t i = 0; i < kDeepestBlocks; ++i) end += "End\n";
  EXPECT_EQ(problemOf(text + end), "");
  EXPECT_EQ(problemOf(text + "Begin\nEnd\n" + end), "line 41: blocks nested too deeply");
  EXPECT_EQ(problemOf(std::string(text) + "M = Begin\nBegin\n"),
            "line 42: blocks nested too deeply");
}

}  // namespace
}  // namespace tarrowin::exports
