// Designs of every version, written by hand and by the builder, and what they say.
#include "access/design_blob/design_blob.h"

#include <string_view>

#include <gtest/gtest.h>

#include "design_blob/example_design.h"
#include "mdb/file_builder.h"

namespace tarrowin {
namespace {

const CodePage kWestern;
const CodePage kUtf8(CodePage::kUtf8);

StoredDesign read(const Bytes& blob, const CodePage& codePage = kUtf8) {
  return readDesignBlob(blob, kWestern, codePage);
}

std::string listingOf(const BuiltObject& root, std::uint16_t version) {
  return listing(read(designBlob(version, root)).root);
}

// A form with a detail section that holds the objects.
BuiltObject formWith(std::vector<BuiltObject> controls) {
  return {150, {}, {{152, {}, std::move(controls)}}};
}

// The listing of a form with one object of that type in the detail section.
std::string controlListing(std::uint16_t version, std::uint16_t type,
                           std::vector<BuiltRecord> records) {
  const StoredDesign design = read(designBlob(version, formWith({{type, std::move(records), {}}})));
  return listing(design.root.children.at(0).children.at(0));
}

Bytes fromHex(std::string_view hex) {
  const auto digit = [](char c) { return c <= '9' ? c - '0' : c - 'a' + 10; };
  Bytes bytes;
  for (std::size_t i = 0; i < hex.size(); ++i) {
    if (hex[i] == ' ') continue;
    bytes.push_back(static_cast<std::uint8_t>(digit(hex[i]) * 16 + digit(hex[i + 1])));
    ++i;
  }
  return bytes;
}

const Bytes kExample17 = fromHex(
    "11 00 11 00 00 00 00 00 96 00 63 88 13 dd 02 48 "
    "69 ff 02 00 64 00 01 64 08 00 fd 98 00 60 d0 07 "
    "df 06 44 65 74 61 69 6c fe 6d 00 30 02 60 a0 05 "
    "61 2c 01 dc 01 41 fe 64 00 61 2c 01 62 84 03 63 "
    "f0 00 dc 01 4c dd 03 26 41 3a fd");

const Bytes kExample19 = fromHex(
    "13 00 13 00 00 00 00 00 96 00 63 88 13 dd 04 48 "
    "00 69 00 ff 02 00 64 00 01 64 08 00 fd 98 00 60 "
    "d0 07 df 0c 44 00 65 00 74 00 61 00 69 00 6c 00 "
    "fe 6d 00 30 02 60 a0 05 61 2c 01 dc 02 41 00 fe "
    "64 00 61 2c 01 62 84 03 63 f0 00 dc 02 4c 00 dd "
    "06 26 00 41 00 3a 00 fd");

// As far as the style; the caption is of the type of long texts.
const Bytes kExample20Begin = fromHex(
    "14 00 14 00 00 00 00 00 96 00 63 00 00 00 96 00 "
    "03 00 00 00 04 00 00 00 02 00 00 00 88 13 dd 00 "
    "00 00 11 00 0c 00 00 00 04 00 00 00 04 00 00 00 "
    "48 00 69 00 ff 00 00 00 02 00 64 00 01 00 00 00 "
    "21 00 01 00 00 00 01 00 00 00 00 00 00 00 64 00 "
    "00 00 23 00 03 00 00 00 04 00 00 00 02 00 00 00 "
    "08 00 fd 00 00 00 98 00 60 00 00 00 2c 00 03 00");
constexpr std::size_t kExample20Size = 353;

TEST(DesignBlob, ExampleOfAccess97) {
  ASSERT_EQ(kExample17.size(), 75u);
  const StoredDesign design = read(kExample17);
  EXPECT_EQ(design.version, 17);
  EXPECT_EQ(listing(design.root), kExampleListing);
  EXPECT_EQ(designBlob(17, exampleForm()), kExample17);
}

TEST(DesignBlob, ExampleOfAccess2000) {
  ASSERT_EQ(kExample19.size(), 88u);
  const StoredDesign design = read(kExample19);
  EXPECT_EQ(design.version, 19);
  EXPECT_EQ(listing(design.root), kExampleListing);
  EXPECT_EQ(designBlob(19, exampleForm()), kExample19);
}

TEST(DesignBlob, ExampleOfAccess2002) {
  Bytes built = designBlob(20, exampleForm());
  ASSERT_EQ(built.size(), kExample20Size);
  std::copy(kExample20Begin.begin(), kExample20Begin.end(), built.begin());
  const StoredDesign design = read(built);
  EXPECT_EQ(design.version, 20);
  EXPECT_EQ(listing(design.root), kExampleListing);
}

TEST(DesignBlob, CountsWhatIsUnderstood) {
  const StoredDesign design = read(kExample17);
  EXPECT_EQ(design.understood.controls, 2u);  // the style is none
  EXPECT_EQ(design.understood.controlsKnown, 2u);
  EXPECT_EQ(design.understood.properties, 15u);
  EXPECT_EQ(design.understood.propertiesKnown, 15u);
}

TEST(DesignBlob, LeavesToOthersWhatTheBytesDoNotTell) {
  const StoredDesign design = read(kExample17);
  EXPECT_FALSE(design.hasModule);
  EXPECT_FALSE(design.laterFormat);
}

TEST(DesignBlob, Version21IsWrittenLike20) {
  EXPECT_EQ(listingOf(exampleForm(), 21), kExampleListing);
  EXPECT_EQ(read(designBlob(21, exampleForm())).version, 21);
}

TEST(DesignBlob, Version18CountsAs17) {
  EXPECT_EQ(listingOf(exampleForm(), 18), kExampleListing);
  EXPECT_EQ(read(designBlob(18, exampleForm())).version, 18);
}

TEST(DesignBlob, AnsiTextsAreKnownByTheVersion) {
  EXPECT_TRUE(hasAnsiTexts(kExample17));
  EXPECT_FALSE(hasAnsiTexts(kExample19));
  EXPECT_FALSE(hasAnsiTexts(kExample20Begin));
  EXPECT_FALSE(hasAnsiTexts({}));
}

TEST(DesignBlob, ReportWithLevelsAndAllSections) {
  const BuiltObject report{151,
                           {},
                           {{159, {flag(0), flag(1), textValue(220, u"City")}, {}},
                            {159, {byteValue(48, 1), textValue(220, u"=Left([A],1)")}, {}},
                            {153, {textValue(223, u"RH")}, {}},
                            {155, {}, {}},
                            {157, {integerValue(97, 1)}, {}},
                            {152, {flag(0)}, {}},
                            {158, {}, {}},
                            {156, {}, {}},
                            {154, {}, {}}}};
  for (const std::uint16_t version : Numbers{17, 19, 20}) {
    EXPECT_EQ(listingOf(report, version),
              "Report\n"
              "  BreakLevel SortOrder! GroupHeader! ControlSource=\"City\"\n"
              "  BreakLevel KeepTogether=1 ControlSource=\"=Left([A],1)\"\n"
              "  FormHeader Name=\"RH\"\n"
              "  PageHeader\n"
              "  BreakHeader BreakLevel=1\n"
              "  Section KeepTogether!\n"
              "  BreakFooter\n"
              "  PageFooter\n"
              "  FormFooter\n");
  }
}

TEST(DesignBlob, OneNumberMeansDifferentThingsOfDifferentControls) {
  const std::vector<BuiltRecord> records{integerValue(97, 5)};
  EXPECT_EQ(controlListing(19, 100, records), "Label Top=5\n");
  EXPECT_EQ(controlListing(19, 110, records), "ListBox Left=5\n");
  EXPECT_EQ(controlListing(19, 111, records), "ComboBox ListRows=5\n");
  EXPECT_EQ(controlListing(19, 113, records), "Chart Left=5\n");
  EXPECT_EQ(controlListing(19, 114, records), "UnboundObjectFrame Left=5\n");
}

TEST(DesignBlob, NegativeNumbersAndColours) {
  for (const std::uint16_t version : Numbers{17, 20})
    EXPECT_EQ(controlListing(version, 109, {integerValue(103, -1701), longValue(156, -2147483633)}),
              "TextBox LabelX=-1701 BackColor=-2147483633\n");
}

TEST(DesignBlob, BytesAboveHalfAreNoNegativeNumbers) {
  EXPECT_EQ(controlListing(17, 109, {byteValue(48, 255)}), "TextBox DecimalPlaces=255\n");
  EXPECT_EQ(controlListing(20, 109, {byteValue(48, 255)}), "TextBox DecimalPlaces=255\n");
}

TEST(DesignBlob, CompactLengthsOfOneTwoAndFourBytes) {
  for (const std::size_t size : {0u, 253u, 254u, 255u, 256u, 65534u, 65535u, 65536u, 100000u}) {
    const BuiltObject form{150, {raw(199, kBinaryType, Bytes(size, 7)), textValue(221, u"C")}, {}};
    EXPECT_EQ(listingOf(form, 19),
              "Form PictureData=<" + std::to_string(size) + "> Caption=\"C\"\n");
    EXPECT_EQ(listingOf(form, 20),
              "Form PictureData=<" + std::to_string(size) + "> Caption=\"C\"\n");
  }
}

TEST(DesignBlob, PicturesAndObjectsComeAsTheyStand) {
  const Bytes picture{0x28, 0, 0xFF};
  const StoredDesign design = read(designBlob(17, {150, {raw(199, kBinaryType, picture)}, {}}));
  EXPECT_EQ(design.root.properties.at(0).keyword, "PictureData");
  EXPECT_EQ(std::get<Value>(design.root.properties.at(0).value), Value(picture));
  EXPECT_EQ(controlListing(17, 119, {raw(221, kBinaryType, Bytes(9)), textValue(239, u"A.B")}),
            "CustomControl OleData=<9> Class=\"A.B\"\n");
}

TEST(DesignBlob, DateAndGuidAreBytes) {
  const BuiltObject form{
      150, {raw(206, kDoubleType, Bytes(8)), raw(208, kGuidType, Bytes(16))}, {}};
  EXPECT_EQ(listingOf(form, 19), "Form RecSrcDt=<8> GUID=<16>\n");
  EXPECT_EQ(listingOf(form, 20), "Form RecSrcDt=<8> GUID=<16>\n");
}

// Booleans are numbers there, and some Integers and Booleans take four bytes.
TEST(DesignBlob, ValuesOfLaterVersions) {
  EXPECT_EQ(
      controlListing(
          20, 109,
          {raw(259, kBooleanType, {255}), raw(296, kMacroType, Bytes(7)),
           raw(302, kIntegerType, mdb::le32(70000)), raw(303, kIntegerType, mdb::le16(0xFFFF)),
           raw(318, kSingleType, mdb::le32(0x42BF0000)), raw(326, kLongTextType, {'a', 0})}),
      "TextBox AsianLineBreak=255 OnClickEmMacro=<7> LayoutCachedLeft=70000 "
      "LayoutCachedTop=-1 BorderShade=95.5 HyperlinkTarget=\"a\"\n");
  EXPECT_EQ(controlListing(20, 104, {raw(360, kBooleanType, mdb::le32(1))}),
            "CommandButton Overlaps=1\n");
}

TEST(DesignBlob, AnsiTextsAreInThePageOfTheFile) {
  const Bytes blob = designBlob(17, {150, {textValue(221, u"a\u00C4")}, {}});
  const auto caption = [&](int ansi, int target) {
    const CodePage page(target);
    return *std::get<Value>(readDesignBlob(blob, CodePage(ansi), page).root.properties.at(0).value)
                .text();
  };
  EXPECT_EQ(caption(1252, 1252), "a\xC4");
  EXPECT_EQ(caption(1252, CodePage::kUtf8), "aÄ");
  EXPECT_EQ(caption(1251, CodePage::kUtf8), "aД");
  EXPECT_EQ(caption(1251, 1252), "a?");
}

TEST(DesignBlob, WideTextsComeInTheCodePage) {
  const Bytes blob = designBlob(19, {150, {textValue(221, u"aÄД€")}, {}});
  EXPECT_EQ(listing(read(blob, kUtf8).root), "Form Caption=\"aÄД€\"\n");
  EXPECT_EQ(listing(read(blob, kWestern).root), "Form Caption=\"a\xC4?\x80\"\n");
}

TEST(DesignBlob, WideTextWithHalfACharacter) {
  const Bytes alone = designBlob(19, {150, {raw(221, kBinaryType, {'a', 0, 0x00, 0xD8})}, {}});
  EXPECT_EQ(listing(read(alone).root), "Form Caption=\"a\xEF\xBF\xBD\"\n");
  const Bytes odd = designBlob(19, {150, {raw(221, kBinaryType, {'a', 0, 'b'})}, {}});
  EXPECT_EQ(listing(read(odd).root), "Form Caption=\"a\"\n");
}

TEST(DesignBlob, SlotWithoutAKnownMeaningIsLeftOutAndCounted) {
  for (const std::uint16_t version : Numbers{17, 20}) {
    const StoredDesign design =
        read(designBlob(version, {150, {flag(8), flag(14), raw(232, kBinaryType, Bytes(3))}, {}}));
    EXPECT_EQ(listing(design.root), "Form ShortcutMenu!\n");
    EXPECT_EQ(design.understood.properties, 3u);
    EXPECT_EQ(design.understood.propertiesKnown, 1u);
  }
}

TEST(DesignBlob, RecordOfAnotherKindThanItsSlotIsLeftOut) {
  EXPECT_EQ(controlListing(20, 109, {raw(96, kLongTextType, {'A', 0}), integerValue(97, 1)}),
            "TextBox Top=1\n");
}

TEST(DesignBlob, RecordOfAnImpossibleLengthIsLeftOut) {
  EXPECT_EQ(controlListing(20, 109,
                           {raw(0, kBooleanType, {1}), raw(96, kIntegerType, Bytes(3)),
                            raw(250, kGuidType, Bytes(15)), integerValue(97, 1)}),
            "TextBox Top=1\n");
}

TEST(DesignBlob, RecordOfAnUnknownTypeIsLeftOut) {
  EXPECT_EQ(controlListing(20, 109, {raw(500, 99, Bytes(5)), integerValue(97, 1)}),
            "TextBox Top=1\n");
}

// The code of OnClick; a page has it at a number that no file has shown yet.
TEST(DesignBlob, CodeNamesWhatTheSlotDoesNot) {
  EXPECT_EQ(controlListing(20, 124, {textValue(225, u"[Event Procedure]").withCode(126)}),
            "Page OnClick=\"[Event Procedure]\"\n");
}

TEST(DesignBlob, CodesThatDifferBetweenBuildsNameNothing) {
  EXPECT_EQ(controlListing(20, 124, {integerValue(490, 1).withCode(589)}), "Page\n");
}

TEST(DesignBlob, VerbosePropertyMayRepeat) {
  EXPECT_EQ(
      controlListing(20, 109, {integerValue(97, 1), integerValue(96, 2), integerValue(97, 1)}),
      "TextBox Top=1 Left=2 Top=1\n");
}

TEST(DesignBlob, ObjectOfAnUnknownTypeKeepsItsNumberAndIsCounted) {
  for (const std::uint16_t version : Numbers{17, 20}) {
    const StoredDesign design =
        read(designBlob(version, formWith({{115, {flag(0)}, {}}, {100, {}, {}}})));
    EXPECT_EQ(listing(design.root), "Form\n  Section\n    #115\n    Label\n");
    EXPECT_EQ(design.understood.controls, 2u);
    EXPECT_EQ(design.understood.controlsKnown, 1u);
    EXPECT_EQ(design.understood.propertiesKnown, 0u);
  }
}

TEST(DesignBlob, SectionInsideASectionIsNoKnownControl) {
  const StoredDesign design = read(designBlob(19, formWith({{152, {}, {}}})));
  EXPECT_EQ(design.understood.controls, 1u);
  EXPECT_EQ(design.understood.controlsKnown, 0u);
}

TEST(DesignBlob, ControlsInsidePagesAndGroups) {
  const BuiltObject group{
      107, {textValue(220, u"G")}, {{105, {longValue(156, 1)}, {{100, {}, {}}}}}};
  const BuiltObject tab{123, {}, {{124, {textValue(232, u"One")}, {group}}, {124, {}, {}}}};
  const StoredDesign design = read(designBlob(20, formWith({tab})));
  EXPECT_EQ(listing(design.root),
            "Form\n"
            "  Section\n"
            "    Tab\n"
            "      Page Caption=\"One\"\n"
            "        OptionGroup Name=\"G\"\n"
            "          OptionButton OptionValue=1\n"
            "            Label\n"
            "      Page\n");
  EXPECT_EQ(design.understood.controls, 6u);
}

TEST(DesignBlob, FormWithNothing) {
  EXPECT_EQ(listingOf({150, {}, {}}, 17), "Form\n");
  EXPECT_EQ(listingOf({151, {}, {}}, 20), "Report\n");
}

}  // namespace
}  // namespace tarrowin
