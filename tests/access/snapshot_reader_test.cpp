// Reading recordings: value rules, places of errors, and texts that mean harm.
#include "access/snapshot/snapshot_reader.h"

#include "access/access_fixture.h"

namespace tarrowin {
namespace {

std::unique_ptr<DatabaseModel> readText(std::string_view json, int page = CodePage::kWestern) {
  return readSnapshot(json, CodePage(page));
}

// What is wrong with the text; empty for nothing.
std::string problemOf(std::string_view json) {
  try {
    readText(json);
  } catch (const SnapshotError& error) {
    return error.message();
  }
  return {};
}

// The property "P" of a database whose recording holds this value.
Recorded<Value> valueOf(const std::string& json) {
  const auto model = readText(R"({"snapshot":1,"database":{"properties":{"P":)" + json + "}}}");
  return model->properties.valueAt(0);
}

TEST(SnapshotValuesTest, PlainValues) {
  EXPECT_TRUE(valueOf("null").read("").isNull());
  EXPECT_EQ(valueOf("true").read(""), Value(true));
  EXPECT_EQ(valueOf("-7").read(""), Value(-7));
  EXPECT_EQ(valueOf("\"a\\u20ACb\"").read(""), Value("a\x80"
                                                     "b"));
  EXPECT_EQ(valueOf("\"\"").read(""), Value(""));
}

TEST(SnapshotValuesTest, WholeNumbersOutOf32BitsAreDoubles) {
  EXPECT_EQ(valueOf("2147483647").read(""), Value(2147483647));
  EXPECT_EQ(valueOf("-2147483648").read(""), Value(INT32_MIN));
  EXPECT_EQ(valueOf("2147483648").read(""), Value(2147483648.0));
  EXPECT_EQ(valueOf("-2147483649").read(""), Value(-2147483649.0));
  EXPECT_EQ(valueOf("18446744073709551615").read(""), Value(18446744073709551615.0));
  EXPECT_EQ(valueOf("99999999999999999999999").read(""), Value(1e23));
}

TEST(SnapshotValuesTest, FractionOrExponentMakesADouble) {
  EXPECT_EQ(valueOf("1.0").read(""), Value(1.0));
  EXPECT_EQ(valueOf("1e2").read(""), Value(100.0));
  EXPECT_EQ(valueOf("-0.5").read(""), Value(-0.5));
}

TEST(SnapshotValuesTest, HugeNumberIsRefused) {
  EXPECT_NE(problemOf(R"({"snapshot":1,"database":{"properties":{"P":1e999}}})"), "");
  EXPECT_NE(problemOf(R"({"snapshot":1,"database":{"properties":{"P":NaN}}})"), "");
}

TEST(SnapshotValuesTest, Dates) {
  EXPECT_EQ(valueOf(R"({"date": "1900-01-01T12:00:00"})").read(""), Value(Date{2.5}));
  EXPECT_EQ(valueOf(R"({"date": "1899-12-30"})").read(""), Value(Date{0}));
  EXPECT_EQ(valueOf(R"({"date": "1899-12-29T06:00:00"})").read(""), Value(Date{-1.25}));
  for (const char* bad :
       {"2026-02-30T00:00:00", "2026-11-21 10:00:00", "0099-01-01", "2026-11-21T24:00:00",
        "2026-11-21T10:00", "2026-11-21T10:00:00.", "2026-11-21T10:00:00Z", ""})
    EXPECT_NE(problemOf(std::string(R"({"snapshot":1,"database":{"properties":{"P":{"date":")") +
                        bad + "\"}}}}"),
              "")
        << bad;
}

TEST(SnapshotValuesTest, ByteArrays) {
  const Recorded<Value> value = valueOf(R"({"bytes": "AP8Q"})");
  ASSERT_NE(value.read("").bytes(), nullptr);
  EXPECT_EQ(*value.read("").bytes(), (Bytes{0, 255, 16}));
  EXPECT_TRUE(valueOf(R"({"bytes": ""})").read("").bytes()->empty());
  EXPECT_EQ(*valueOf(R"({"bytes": "AA=="})").read("").bytes(), Bytes{0});
  EXPECT_EQ(problemOf(R"({"snapshot":1,"database":{"properties":{"P":{"bytes":"A*=="}}}})"),
            "/database/properties/P/bytes: expected a base64 text");
}

TEST(SnapshotValuesTest, Errors) {
  const Recorded<Value> standard = valueOf(R"({"error": 2465})");
  ASSERT_NE(standard.error(), nullptr);
  EXPECT_EQ(standard.error()->asError("Caption").description(), standardErrorText(2465, "Caption"));
  const Recorded<Value> own = valueOf(R"({"error": 2147500037, "description": "Gr\u00FC\u00DF"})");
  EXPECT_EQ(own.error()->number, static_cast<std::int32_t>(0x80004005u));
  EXPECT_EQ(own.error()->asError("").description(), "Gr\xFC\xDF");
}

TEST(SnapshotValuesTest, CharacterThatThePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(valueOf("\"\\u0416\"").read(""), Value("?"));
}

TEST(SnapshotValuesTest, NothingIsLostUnderUtf8) {
  const auto model =
      readText("{\"snapshot\":1,\"database\":{\"name\":\"\xD0\x96\"}}", CodePage::kUtf8);
  EXPECT_EQ(model->name, "\xD0\x96");
}

TEST(SnapshotReaderTest, ByteOrderMarkIsAccepted) {
  EXPECT_EQ(problemOf("\xEF\xBB\xBF{\"snapshot\": 1}"), "");
}

TEST(SnapshotReaderTest, UnknownKeysAreIgnored) {
  EXPECT_EQ(problemOf(R"({"snapshot":1,"future":[{}],"forms":[{"name":"f","future":1}]})"), "");
}

TEST(SnapshotReaderTest, NullStandsForAnAbsentKey) {
  EXPECT_EQ(problemOf(R"({"snapshot":1,"forms":null,"tables":[{"name":"T","rows":null}]})"), "");
}

TEST(SnapshotReaderTest, LastOfTwoEqualKeysCounts) {
  EXPECT_EQ(readText(R"({"snapshot":1,"database":{"name":"a","name":"b"}})")->name, "b");
  const auto model = readText(R"({"snapshot":1,"database":{"properties":{"P":1,"Q":2,"p":3}}})");
  ASSERT_EQ(model->properties.size(), 2u);
  EXPECT_EQ(model->properties.valueAt(0).read(""), Value(3));
}

TEST(SnapshotReaderTest, MissingTypeAndSizeOfAField) {
  const auto model = readText(
      R"({"snapshot":1,"tables":[{"name":"T","fields":[{"name":"A"},{"name":"B","type":4}]}]})");
  const FieldList& fields = model->tables[0].fields.get();
  EXPECT_EQ(fields[0].type, 10);
  EXPECT_EQ(fields[0].size, 255);
  EXPECT_EQ(fields[1].size, 4);
}

TEST(SnapshotReaderTest, MacrosAndTemplates) {
  const auto model = readText(R"({"snapshot":1,
    "macros":[{"name":"M","actions":[{"macroName":"","condition":"x","action":"OpenForm",
               "arguments":["frmMain","0"],"comment":"c"}]}],
    "templates":{"controls":{"123":{"Name":"TabCtl0","Top":0}}}})");
  EXPECT_EQ(model->macros[0].actions.get()[0].arguments,
            (std::vector<std::string>{"frmMain", "0"}));
  EXPECT_EQ(model->controlTemplates.at(123).size(), 2u);
}

struct BadRecording {
  const char* name;
  const char* json;
  const char* problem;
};

class BadRecordingTest : public testing::TestWithParam<BadRecording> {};

TEST_P(BadRecordingTest, NamesThePlace) {
  EXPECT_EQ(problemOf(GetParam().json), GetParam().problem);
}

INSTANTIATE_TEST_SUITE_P(
    SnapshotReader, BadRecordingTest,
    testing::Values(
        BadRecording{"NoObject", "[]", "the document: expected an object"},
        BadRecording{"NoVersion", "{}", "the document: expected the number 1 under \"snapshot\""},
        BadRecording{"TextVersion", R"({"snapshot":"1"})", "/snapshot: expected the number 1"},
        BadRecording{"VersionZero", R"({"snapshot":0})", "/snapshot: expected the number 1"},
        BadRecording{"SqlIsABoolean",
                     R"({"snapshot":1,"queries":[{"name":"a"},{"name":"b","sql":true}]})",
                     "/queries/1/sql: expected a text or an error"},
        BadRecording{"SqlErrorIsAText",
                     R"({"snapshot":1,"queries":[{"name":"a","sql":{"error":"x"}}]})",
                     "/queries/0/sql/error: expected an error number or an error"},
        BadRecording{"FormsIsAnObject", R"({"snapshot":1,"forms":{}})", "/forms: expected a list"},
        BadRecording{"FormIsAText", R"({"snapshot":1,"forms":["f"]})",
                     "/forms/0: expected an object"},
        BadRecording{"FormWithoutName", R"({"snapshot":1,"forms":[{}]})",
                     "/forms/0: expected a text under \"name\""},
        BadRecording{"NameIsANumber", R"({"snapshot":1,"tables":[{"name":1}]})",
                     "/tables/0/name: expected a text"},
        BadRecording{"TypeIsAText",
                     R"({"snapshot":1,"tables":[{"name":"T","fields":[{"name":"a","type":"4"}]}]})",
                     "/tables/0/fields/0/type: expected a whole number"},
        BadRecording{
            "TypeIsTooLarge",
            R"({"snapshot":1,"tables":[{"name":"T","fields":[{"name":"a","type":1e10}]}]})",
            "/tables/0/fields/0/type: expected a whole number"},
        BadRecording{"RowIsTooLong",
                     R"({"snapshot":1,"tables":[{"name":"T","fields":[],"rows":[[1]]}]})",
                     "/tables/0/rows/0: 1 values for 0 fields"},
        BadRecording{"PropertyIsAList",
                     R"({"snapshot":1,"forms":[{"name":"f","properties":{"Tag":[]}}]})",
                     "/forms/0/properties/Tag: expected a value: null, true, false, a number, a "
                     "text, a date, bytes or an error"},
        BadRecording{"OpenErrorIsAText",
                     R"({"snapshot":1,"forms":[{"name":"f","openError":"no"}]})",
                     "/forms/0/openError: expected an error number or an error"},
        BadRecording{"ControlWithoutType",
                     R"({"snapshot":1,"forms":[{"name":"f","controls":[{"name":"a"}]}]})",
                     "/forms/0/controls/0: expected a number under \"type\""},
        BadRecording{"TemplateKeyIsNoNumber",
                     R"({"snapshot":1,"templates":{"controls":{"tab":{}}}})",
                     "/templates/controls/tab: expected the number of a control type as the key"}),
    [](const auto& bad) { return bad.param.name; });

// Positions of the parents of a form's controls; -1 for the form itself.
std::vector<int> parentsOf(const std::string& controls) {
  const auto model =
      readText(R"({"snapshot":1,"forms":[{"name":"f","controls":[)" + controls + "]}]}");
  std::vector<int> parents;
  for (const ControlModel& control : model->forms[0].body.get()->controls)
    parents.push_back(control.parent == ControlModel::kNoParent ? -1
                                                                : static_cast<int>(control.parent));
  return parents;
}

TEST(SnapshotReaderTest, AnUnknownParentIsTheForm) {
  EXPECT_EQ(parentsOf(R"({"name":"a","type":100,"parent":"b"})"), std::vector<int>{-1});
}

TEST(SnapshotReaderTest, TheFirstOfSeveralParentsOfThatNameHoldsTheControl) {
  EXPECT_EQ(parentsOf(R"({"name":"B","type":107},{"name":"b","type":107},{"name":"b","type":107},
                         {"name":"a","type":100,"parent":"b"})"),
            (std::vector<int>{-1, -1, -1, 1}));
  EXPECT_EQ(parentsOf(R"({"name":"B","type":107},{"name":"B","type":107},
                         {"name":"a","type":100,"parent":"b"})"),
            (std::vector<int>{-1, -1, 0}));
}

TEST(SnapshotReaderTest, ControlsInsideThemselvesAreReadAsTheyStand) {
  EXPECT_EQ(parentsOf(R"({"name":"a","type":107,"parent":"a"},{"name":"b","type":107,"parent":"c"},
                         {"name":"c","type":107,"parent":"b"})"),
            (std::vector<int>{0, 2, 1}));
}

TEST(SnapshotReaderTest, ParentsOfTheSameNameInAnotherCaseAreTwo) {
  EXPECT_EQ(problemOf(R"({"snapshot":1,"forms":[{"name":"f","controls":[{"name":"B","type":107},
            {"name":"b","type":107},{"name":"a","type":100,"parent":"b"}]}]})"),
            "");
}

TEST(SnapshotReaderTest, DeepNestingIsRefused) {
  const std::string deep =
      "{\"snapshot\":1,\"x\":" + std::string(199, '[') + std::string(199, ']') + "}";
  EXPECT_EQ(problemOf(deep), "");
  const std::string tooDeep = "{\"snapshot\":1,\"x\":" + std::string(200, '[');
  EXPECT_NE(problemOf(tooDeep).find(": nested more than 200 levels deep"), std::string::npos);
  EXPECT_NE(problemOf(std::string(10'000'000, '[')), "");
  std::string objects;
  for (int i = 0; i < 100'000; ++i) objects += "{\"a\":";
  EXPECT_NE(problemOf(objects), "");
}

TEST(SnapshotReaderTest, InvalidUtf8IsRefused) {
  EXPECT_NE(problemOf("{\"snapshot\":1,\"database\":{\"name\":\"\xFF\"}}"), "");
  EXPECT_NE(problemOf("{\"snapshot\":1,\"database\":{\"name\":\"\xC3\"}}"), "");
}

TEST(SnapshotReaderTest, EmptyAndGarbageAreRefused) {
  for (const std::string_view text :
       {"", " ", "{", "}", "nul", "{\"snapshot\":1} x", "{\"snapshot\":1,}"})
    EXPECT_NE(problemOf(text), "") << text;
  EXPECT_NE(problemOf(std::string_view("{\"snapshot\":1}\0", 15)), "");
}

TEST(SnapshotReaderTest, ManyControlsInOneChainOfParentsAreRead) {
  std::string json = R"({"snapshot":1,"forms":[{"name":"f","controls":[{"name":"c0","type":107})";
  for (int i = 1; i < 20'000; ++i)
    json += ",{\"name\":\"c" + std::to_string(i) + "\",\"type\":107,\"parent\":\"c" +
            std::to_string(i - 1) + "\"}";
  json += "]}]}";
  EXPECT_EQ(problemOf(json), "");
}

TEST(SnapshotReaderTest, ManyPropertiesOfOneObjectAreRead) {
  std::string json = R"({"snapshot":1,"database":{"properties":{"P":0)";
  for (int i = 0; i < 200'000; ++i) json += ",\"P" + std::to_string(i) + "\":1";
  json += "}}}";
  EXPECT_EQ(readText(json)->properties.size(), 200'001u);
}

// The sample that ships with the project.
std::filesystem::path samplePath() {
  return std::filesystem::path(TARROWIN_SOURCE_DIR) / "samples" / "northport.access.json";
}

TEST(SnapshotSampleTest, Loads) {
  if (!std::filesystem::exists(samplePath())) GTEST_SKIP() << "no sample database";
  const auto model = readText(readFile(samplePath()));
  EXPECT_GT(model->queries.size(), 0u);
  EXPECT_GT(model->forms.size(), 0u);
}

TEST(SnapshotSampleTest, TruncatedAnywhereIsRefused) {
  if (!std::filesystem::exists(samplePath())) GTEST_SKIP() << "no sample database";
  std::string text = readFile(samplePath());
  text.erase(text.find_last_of('}') + 1);
  for (std::size_t part = 0; part < 200; ++part)
    EXPECT_NE(problemOf(std::string_view(text).substr(0, text.size() * part / 200)), "") << part;
}

TEST(SnapshotSampleTest, FlippedBitsNeverCrash) {
  if (!std::filesystem::exists(samplePath())) GTEST_SKIP() << "no sample database";
  const std::string text = readFile(samplePath());
  std::size_t refused = 0;
  for (std::size_t i = 0; i < 400; ++i) {
    std::string flipped = text;
    flipped[text.size() * i / 400] ^= static_cast<char>(1 << i % 7);
    if (!problemOf(flipped).empty()) ++refused;
  }
  EXPECT_GT(refused, 0u);
  EXPECT_LT(refused, 400u);
}

}  // namespace
}  // namespace tarrowin
