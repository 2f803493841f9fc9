// What DAO tells of linked tables, where the file keeps it in parts.
#include <gtest/gtest.h>

#include "access/model/mdb_model.h"
#include "mdb/file_builder.h"

namespace tarrowin {
namespace {

constexpr int kServerTable = 4, kOtherTable = 6;  // in the catalog

TEST(MdbLinks, ConnectOfEachKind) {
  mdb::FileBuilder builder(false);
  auto add = [&builder, id = 100](const char* name, int kind, const char* connect,
                                  const char* file) mutable {
    builder.addObject(id++, name, kind, 0, {}, connect, "there", file);
  };
  add("Server", kServerTable, "DSN=x;UID=y;", "");
  add("WholeServer", kServerTable, "ODBC;DSN=x", "");
  add("Access", kOtherTable, "", "C:\\other.mdb");
  add("Text", kOtherTable, "Text;FMT=Delimited;", "C:\\texts");
  add("Sheet", kOtherTable, "Excel 8.0;HDR=NO", "C:\\a.xls");
  add("WholeAccess", kOtherTable, ";DATABASE=C:\\other.mdb", "");
  const auto model =
      makeMdbModel(mdb::Database::fromBytes(builder.build(), "built.mdb"), CodePage());
  const auto connectOf = [&model](const char* name) {
    return model->tables.find(name, CaseFolding(CodePage()))->connect;
  };
  EXPECT_EQ(connectOf("Server"), "ODBC;DSN=x;UID=y;");
  EXPECT_EQ(connectOf("WholeServer"), "ODBC;DSN=x");
  EXPECT_EQ(connectOf("Access"), ";DATABASE=C:\\other.mdb");
  EXPECT_EQ(connectOf("Text"), "Text;FMT=Delimited;DATABASE=C:\\texts");
  EXPECT_EQ(connectOf("Sheet"), "Excel 8.0;HDR=NO;DATABASE=C:\\a.xls");
  EXPECT_EQ(connectOf("WholeAccess"), ";DATABASE=C:\\other.mdb");
}

}  // namespace
}  // namespace tarrowin
