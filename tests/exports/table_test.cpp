// Fields and rows of exported tables.
#include <gtest/gtest.h>

#include "access/exports/table_rows.h"
#include "access/exports/table_text.h"
#include "access/exports/xml_element.h"
#include "access/macro/export_lines.h"

namespace tarrowin::exports {
namespace {

std::string written(const FieldList& fields) {
  std::string text;
  for (const FieldModel& field : fields)
    text += field.name + " " + std::to_string(field.type) + " " + std::to_string(field.size) + "\n";
  return text;
}

constexpr const char* kSchema =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xsd:schema xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\""
    " xmlns:od=\"urn:schemas-microsoft-com:officedata\">\n"
    "<xsd:element name=\"dataroot\"><xsd:complexType><xsd:sequence>"
    "<xsd:element ref=\"Order_x0020_Items\"/></xsd:sequence></xsd:complexType></xsd:element>\n"
    "<xsd:element name=\"Order_x0020_Items\"><!-- a comment --><xsd:complexType><xsd:sequence>\n"
    "<xsd:element name=\"ID\" od:jetType=\"autonumber\" type=\"xsd:int\"/>\n"
    "<xsd:element name=\"First_x0020_Name\" od:jetType=\"text\"><xsd:simpleType>"
    "<xsd:restriction base=\"xsd:string\"><xsd:maxLength value=\"50\"/></xsd:restriction>"
    "</xsd:simpleType></xsd:element>\n"
    "<xsd:element name=\"Notes\" od:jetType=\"memo\"><xsd:simpleType><xsd:restriction>"
    "<xsd:maxLength value=\"536870910\"/></xsd:restriction></xsd:simpleType></xsd:element>\n"
    "<xsd:element name=\"Gr_x00F6__x00DF_e\" od:jetType=\"double\"/>\n"
    "<xsd:element name=\"Paid\" od:jetType=\"yesno\"/>\n"
    "</xsd:sequence></xsd:complexType></xsd:element></xsd:schema>\n";

TEST(TableSchema, FieldsWithTypesAndSizes) {
  EXPECT_EQ(written(fieldsOfSchema(kSchema, CodePage())),
            "ID 4 4\nFirst Name 10 50\nNotes 12 0\nGr\xF6\xDF"
            "e 7 8\nPaid 1 1\n");
}

TEST(TableSchema, InsideAnotherElement) {
  EXPECT_EQ(
      fieldsOfSchema("<root>" + std::string(kSchema).substr(39) + "</root>", CodePage()).size(),
      5u);
}

std::string problemOf(const std::string& text) {
  try {
    fieldsOfSchema(text, CodePage());
  } catch (const ExportTextError& error) {
    return error.what();
  }
  return "";
}

TEST(TableSchema, Damage) {
  EXPECT_EQ(problemOf("<a></a>"), "line 1: it holds no schema");
  EXPECT_EQ(problemOf("<schema></schema>"), "line 1: its schema describes no table");
  EXPECT_EQ(problemOf("<a>\n<b></a>"), "line 2: \"b\" without its end");
  EXPECT_EQ(problemOf("<a>\n<b>"), "line 2: \"b\" without its end");
  EXPECT_EQ(problemOf("<a x=1>"), "line 1: an attribute without quotes");
  std::string deep;
  for (int i = 0; i < 70; ++i) deep += "<a>";
  EXPECT_EQ(problemOf(deep), "line 1: elements nested too deeply");
}

TEST(XmlNames, CodesOfOneCharacter) {
  const CodePage page;
  EXPECT_EQ(decodedXmlName("a_x0020_b", page), "a b");
  EXPECT_EQ(decodedXmlName("_x00E9_", page), "\xE9");
  EXPECT_EQ(decodedXmlName("a_x002", page), "a_x002");
  EXPECT_EQ(decodedXmlName("a_xyzab_b", page), "a_xyzab_b");
  EXPECT_EQ(decodedXmlName("_x", page), "_x");
}

TEST(XmlText, EntitiesAndCharacterData) {
  const XmlElement root =
      parseXml("<a b='&lt;&quot;'>x &amp; y &#233; &#x41; &none; &<![CDATA[<z>]]></a>", CodePage());
  EXPECT_EQ(root.attribute("b"), "<\"");
  EXPECT_EQ(root.text, "x & y \xE9 A &none; &<z>");
}

TEST(CreateTable, FieldsConstraintsAndOddNames) {
  EXPECT_EQ(written(fieldsOfCreateTable(
                "CREATE TABLE [my table] (\r\n"
                "  [id] AUTOINCREMENT CONSTRAINT [PrimaryKey] PRIMARY KEY  UNIQUE  NOT NULL ,\r\n"
                "  [a, (b] VARCHAR (30),\r\n  plain LONG ,\r\n  [amount] DECIMAL (18, 4),\r\n"
                "  [note] MEMO,\r\n"
                "   CONSTRAINT [K] PRIMARY KEY ([id], [plain]),\r\n  [last] BIT\r\n)\r\n")),
            "id 4 4\na, (b 10 30\nplain 4 4\namount 20 16\nnote 12 0\nlast 1 1\n");
}

TEST(CreateTable, Damage) {
  EXPECT_THROW(fieldsOfCreateTable("CREATE VIEW a"), ExportTextError);
  EXPECT_THROW(fieldsOfCreateTable("CREATE TABLE [a] ([b] BLOB)"), ExportTextError);
  EXPECT_THROW(fieldsOfCreateTable("CREATE TABLE [a] ([b] LONG"), ExportTextError);
  EXPECT_THROW(fieldsOfCreateTable("CREATE TABLE [a"), ExportTextError);
  EXPECT_THROW(fieldsOfCreateTable(""), ExportTextError);
}

FieldList fields() {
  return {{"id", 4, 4, {}, {}},
          {"name", 10, 50, {}, {}},
          {"paid", 1, 1, {}, {}},
          {"due", 8, 8, {}, {}},
          {"sum", 5, 8, {}, {}}};
}
Value cell(const RowCursor& rows, std::size_t field) { return rows.cell(field).read("cell"); }

TEST(TableRows, LinesWithTabs) {
  const auto rows = exportedRows(
      "name\tid\tunknown\tsum\tdue\r\nalice\t4\tx\t1.5\t2026-11-21 "
      "10:00:00\r\n\t\t\t\t\r\nb\tx\r\n",
      fields(), CodePage());
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 0), Value(4));
  EXPECT_EQ(cell(*rows, 1), Value("alice"));
  EXPECT_EQ(cell(*rows, 2), Value(Value::Null{}));
  EXPECT_EQ(cell(*rows, 3), Value(Date{46347.416666666664}));
  EXPECT_EQ(cell(*rows, 4), Value(1.5));
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 1), Value(Value::Null{}));
  ASSERT_TRUE(rows->next());
  ASSERT_NE(rows->cell(0).error(), nullptr);
  EXPECT_EQ(rows->cell(0).error()->number, 3421);
  EXPECT_FALSE(rows->next());
  EXPECT_FALSE(rows->next());
}

TEST(TableRows, LinesWithCommasAndQuotes) {
  const auto rows = exportedRows(
      "\"id\",\"name\",\"paid\"\r\n1,\"a \"\"b\"\", c\nd\",True\r\n2,,0\r\n", fields(), CodePage());
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 0), Value(1));
  EXPECT_EQ(cell(*rows, 1), Value("a \"b\", c\nd"));
  EXPECT_EQ(cell(*rows, 2), Value(true));
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 1), Value(Value::Null{}));
  EXPECT_EQ(cell(*rows, 2), Value(false));
  EXPECT_FALSE(rows->next());
}

TEST(TableRows, Xml) {
  const auto rows = exportedRows(
      "<dataroot><t><id>7</id><name>a &amp; "
      "b</name><due>2010-02-07T00:00:00</due></t><t/></dataroot>",
      fields(), CodePage());
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 0), Value(7));
  EXPECT_EQ(cell(*rows, 1), Value("a & b"));
  EXPECT_EQ(cell(*rows, 3), Value(Date{40216}));
  ASSERT_TRUE(rows->next());
  EXPECT_EQ(cell(*rows, 0), Value(Value::Null{}));
  EXPECT_FALSE(rows->next());
}

TEST(TableRows, EmptyFile) {
  EXPECT_FALSE(exportedRows("", fields(), CodePage())->next());
  EXPECT_FALSE(exportedRows("id\tname\r\n", fields(), CodePage())->next());
}

}  // namespace
}  // namespace tarrowin::exports
