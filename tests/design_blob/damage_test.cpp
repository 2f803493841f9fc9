// Designs that are cut short, go wrong, or ask for more than any real one.
#include <gtest/gtest.h>

#include "access/design_blob/design_blob.h"
#include "design_blob/example_design.h"
#include "mdb/file_builder.h"
#include "vba/expect_damage.h"

namespace tarrowin {
namespace {

using mdb::join;
using mdb::le16;
using mdb::le32;

const CodePage kUtf8(CodePage::kUtf8);

StoredDesign read(const Bytes& blob) { return readDesignBlob(blob, kUtf8, kUtf8); }

std::string damageIn(const Bytes& blob) {
  return vba::damageOf([&] { read(blob); });
}

Bytes head(std::uint16_t version) { return join({le16(version), le16(version), le32(0)}); }

// A form that has a chain of objects inside, as many levels in all.
Bytes nested(std::uint16_t version, int levels) {
  BuiltObject object{100, {}, {}};
  for (int level = 2; level < levels; ++level) object = {107, {}, {object}};
  return designBlob(version, {150, {}, {object}});
}

TEST(DamagedDesign, CutAnywhere) {
  for (const std::uint16_t version : Numbers{17, 18, 19, 20, 21}) {
    const Bytes whole = designBlob(version, exampleForm());
    EXPECT_EQ(listing(read(whole).root), kExampleListing);
    for (std::size_t size = 0; size < whole.size(); ++size) {
      SCOPED_TRACE(size);
      EXPECT_NE(damageIn(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size))),
                "");
    }
  }
}

TEST(DamagedDesign, BytesLeftOver) {
  for (const std::uint16_t version : Numbers{17, 19, 20}) {
    Bytes blob = designBlob(version, exampleForm());
    blob.push_back(0);
    EXPECT_EQ(damageIn(blob), "bytes are left over behind the end of the design");
  }
}

TEST(DamagedDesign, VersionThatIsNone) {
  const Bytes form = join({le16(150), Bytes{0xFD}});
  EXPECT_EQ(damageIn(join({head(16), form})), "the design is of an unknown version 16");
  EXPECT_EQ(damageIn(join({head(22), form})), "the design is of an unknown version 22");
  EXPECT_EQ(damageIn(join({head(0), form})), "the design is of an unknown version 0");
}

TEST(DamagedDesign, RootThatIsNeitherFormNorReport) {
  for (const std::uint16_t type : Numbers{100, 115, 152, 159, 200})
    EXPECT_EQ(damageIn(designBlob(19, {type, {}, {}})),
              "the design is neither that of a form nor of a report");
}

TEST(DamagedDesign, ImpossibleObjectType) {
  EXPECT_EQ(damageIn(designBlob(19, {150, {}, {{99, {}, {}}}})),
            "the design has an object of an impossible type 99");
  EXPECT_EQ(damageIn(designBlob(20, {150, {}, {{201, {}, {}}}})),
            "the design has an object of an impossible type 201");
}

TEST(DamagedDesign, CompactNumbersThatDoNotAscend) {
  const std::string message = "the properties of an object are not in their order";
  EXPECT_EQ(damageIn(designBlob(19, {150, {flag(3), flag(3)}, {}})), message);
  EXPECT_EQ(damageIn(designBlob(17, {150, {flag(3), flag(2)}, {}})), message);
  EXPECT_EQ(damageIn(designBlob(17, {150, {textValue(221, u"a"), flag(0)}, {}})), message);
}

TEST(DamagedDesign, NumbersBeginAnewInEveryObject) {
  EXPECT_EQ(
      listing(read(designBlob(19, {150, {flag(3)}, {{100, {flag(0)}, {}}, {101, {flag(0)}, {}}}}))
                  .root),
      "Form AutoResize!\n  Label Visible!\n  Rectangle Visible!\n");
}

TEST(DamagedDesign, TwelveLevelsAreRead) {
  EXPECT_EQ(read(nested(17, 12)).understood.controls, 10u);
  EXPECT_EQ(read(nested(20, 12)).understood.controls, 10u);
}

TEST(DamagedDesign, ThirteenLevelsAreTooDeep) {
  EXPECT_EQ(damageIn(nested(17, 13)), "the objects of the design are nested too deep");
  EXPECT_EQ(damageIn(nested(20, 13)), "the objects of the design are nested too deep");
}

TEST(DamagedDesign, AThousandLevelsAreTooDeep) {
  Bytes blob = head(19);
  for (int level = 0; level < 1000; ++level)
    blob = join({blob, le16(level == 0 ? 150 : 107), Bytes{0xFE}});
  EXPECT_EQ(damageIn(blob), "the objects of the design are nested too deep");
}

TEST(DamagedDesign, MoreObjectsThanThereIsRoomFor) {
  const std::string message = "the design should hold more objects than there is room for";
  EXPECT_EQ(damageIn(join({head(19), le16(150), Bytes{0xFF}, le16(0xFFFF)})), message);
  EXPECT_EQ(damageIn(join({head(20), le16(150), le32(0xFF), le16(0xFFFF)})), message);
  EXPECT_EQ(damageIn(join({head(19), le16(150), Bytes{0xFE}})), message);
}

// Where the number of the form's objects stands in the example of version 17.
constexpr std::size_t kCountAt = 18;

TEST(DamagedDesign, CountTooHighByOne) {
  Bytes blob = designBlob(17, exampleForm());
  ASSERT_EQ(blob[kCountAt], 2);
  blob[kCountAt] = 3;
  EXPECT_NE(damageIn(blob), "");
}

TEST(DamagedDesign, CountTooLowByOne) {
  Bytes blob = designBlob(17, exampleForm());
  blob[kCountAt] = 1;
  EXPECT_EQ(damageIn(blob), "bytes are left over behind the end of the design");
}

TEST(DamagedDesign, SeveralObjectsMayBeNoneOrOne) {
  EXPECT_EQ(listing(read(join({head(19), le16(150), Bytes{0xFF}, le16(0)})).root), "Form\n");
  EXPECT_EQ(
      listing(read(join({head(19), le16(150), Bytes{0xFF}, le16(1), le16(100), Bytes{0xFD}})).root),
      "Form\n  Label\n");
}

TEST(DamagedDesign, TenThousandObjectsAreRead) {
  const BuiltObject form{150, {}, std::vector<BuiltObject>(10000, {100, {}, {}})};
  EXPECT_EQ(read(designBlob(19, form)).root.children.size(), 10000u);
}

TEST(DamagedDesign, TenThousandAndOneAreTooMany) {
  const BuiltObject form{150, {}, std::vector<BuiltObject>(10001, {100, {}, {}})};
  EXPECT_EQ(damageIn(designBlob(19, form)), "the design has too many objects");
  const BuiltObject split{150,
                          {},
                          {{152, {}, std::vector<BuiltObject>(5000, {100, {}, {}})},
                           {152, {}, std::vector<BuiltObject>(5000, {100, {}, {}})}}};
  EXPECT_EQ(damageIn(designBlob(20, split)), "the design has too many objects");
}

TEST(DamagedDesign, LengthsBeyondTheEnd) {
  const Bytes form = le16(150);
  EXPECT_NE(damageIn(join({head(19), form, Bytes{221, 0xFE, 'a'}})), "");
  EXPECT_NE(damageIn(join({head(19), form, Bytes{221, 0xFF}, le16(0xFFFE), Bytes{'a'}})), "");
  EXPECT_NE(damageIn(join({head(19), form, Bytes{221, 0xFF}, le16(0xFFFF), le32(0xFFFFFFFF)})), "");
  EXPECT_NE(damageIn(join({head(20), form, le32(221), le16(17), le32(12), le32(4), le32(0xFFFFFFFF),
                           Bytes{'a'}})),
            "");
}

// Whatever one byte is changed to: an error or a design, and nothing else.
TEST(DamagedDesign, EveryByteChanged) {
  for (const std::uint16_t version : Numbers{17, 19, 20}) {
    const Bytes whole = designBlob(version, exampleForm());
    std::size_t readable = 0, damaged = 0;
    for (std::size_t at = 0; at < whole.size(); ++at) {
      for (const int changed : {0, 1, 0x61, 0xFD, 0xFE, 0xFF}) {
        Bytes blob = whole;
        blob[at] = static_cast<std::uint8_t>(changed);
        try {
          const StoredDesign design = read(blob);
          EXPECT_LE(design.understood.propertiesKnown, design.understood.properties);
          ++readable;
        } catch (const mdb::Error& error) {
          EXPECT_EQ(error.kind(), mdb::ErrorKind::kDamaged);
          ++damaged;
        }
      }
    }
    EXPECT_GT(readable, 0u);
    EXPECT_GT(damaged, 0u);
  }
}

}  // namespace
}  // namespace tarrowin
