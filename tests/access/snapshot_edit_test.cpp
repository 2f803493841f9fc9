// Entries added to the text of a recording, the rest of which stays as it is.
#include "access/snapshot/snapshot_edit.h"

#include <gtest/gtest.h>

#include "access/snapshot/json_tree.h"

namespace tarrowin {
namespace {

constexpr std::size_t kEnd = SIZE_MAX;

TEST(SnapshotEditTest, EntryGoesBehindTheLastOne) {
  EXPECT_EQ(withEntry("{\"snapshot\": 1, \"forms\":[ {\"a\":[1,2]} , 3 ],\"x\":1.50}", "forms",
                      "{\n  \"b\": 1\n}", kEnd),
            "{\"snapshot\": 1, \"forms\":[ {\"a\":[1,2]} , 3,\n    {\n      \"b\": 1\n    } "
            "],\"x\":1.50}");
}

TEST(SnapshotEditTest, EntryTakesThePlaceOfAnother) {
  EXPECT_EQ(withEntry("{\"m\":[1,{\"a\":\"]}\\\"[\"},3]}", "m", "9", 1), "{\"m\":[1,9,3]}");
  EXPECT_EQ(withEntry("{\"m\":[1,2]}", "m", "9", 2), "{\"m\":[1,2,\n    9]}");
}

TEST(SnapshotEditTest, ListThatIsNotThereIsMade) {
  EXPECT_EQ(withEntry("{}", "forms", "1", 0), "{\n  \"forms\": [\n    1\n  ]}");
  EXPECT_EQ(withEntry("{\n  \"snapshot\": 1\n}\n", "forms", "1", kEnd),
            "{\n  \"snapshot\": 1,\n  \"forms\": [\n    1\n  ]\n}\n");
  EXPECT_EQ(withEntry("{\"forms\": null}", "forms", "1", kEnd), "{\"forms\": [\n    1\n  ]}");
  EXPECT_EQ(withEntry("{\"forms\": [ ]}", "forms", "1", kEnd), "{\"forms\": [\n    1\n  ]}");
}

TEST(SnapshotEditTest, KeyOfAnInnerObjectIsNotTheList) {
  EXPECT_EQ(withEntry("{\"x\":{\"forms\":[1]}}", "forms", "2", kEnd),
            "{\"x\":{\"forms\":[1]},\n  \"forms\": [\n    2\n  ]}");
}

TEST(SnapshotEditTest, EscapedKeyIsTheSameKey) {
  EXPECT_EQ(withEntry("{\"f\\u006frms\":[1]}", "forms", "2", kEnd),
            "{\"f\\u006frms\":[1,\n    2]}");
}

TEST(SnapshotEditTest, OfSeveralListsOfAKeyTheLastCounts) {
  EXPECT_EQ(withEntry("{\"m\":[1],\"m\":[2]}", "m", "3", kEnd), "{\"m\":[1],\"m\":[2,\n    3]}");
}

TEST(SnapshotEditTest, ByteOrderMarkAndLineEndsStay) {
  EXPECT_EQ(withEntry("\xEF\xBB\xBF{\r\n\t\"m\" : [\r\n1\r\n]\r\n}\r\n", "m", "2", kEnd),
            "\xEF\xBB\xBF{\r\n\t\"m\" : [\r\n1,\n    2\r\n]\r\n}\r\n");
}

TEST(SnapshotEditTest, EntriesAreTheirTexts) {
  const auto entries = snapshotEntries("{\"m\":[ {\"a\" : 1} ,\"x,y\", -1e5 ,null]}", "m");
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[0], "{\"a\" : 1}");
  EXPECT_EQ(entries[1], "\"x,y\"");
  EXPECT_EQ(entries[2], "-1e5");
  EXPECT_EQ(entries[3], "null");
  EXPECT_TRUE(snapshotEntries("{\"m\":null}", "m").empty());
  EXPECT_TRUE(snapshotEntries("{}", "m").empty());
}

TEST(SnapshotEditTest, WhatIsNotJsonIsRefused) {
  for (const char* text :
       {"", "[", "x", "{", "{\"m\"", "{\"m\":", "{\"m\":[", "{\"m\":[1", "{\"m\":[1,", "{\"m\":\"",
        "{\"m\":\"\\", "{\"m\":{\"a\":1", "{\"m\":1 2}", "{\"m\":5}", "{m:1}"})
    EXPECT_THROW(withEntry(text, "m", "1", kEnd), SnapshotError) << text;
}

}  // namespace
}  // namespace tarrowin
