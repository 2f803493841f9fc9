// What can be opened, and what is said of everything else.
// The kinds of errors decide what the user is told.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "access/mdb/mdb_database.h"
#include "access/mdb/rc4.h"
#include "mdb/file_builder.h"
#include "mdb/sample_files.h"
#include "mdb/walk.h"

namespace tarrowin::mdb {
namespace {

namespace fs = std::filesystem;

class Opening : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("tarrowin_opening_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path write(const std::string& name, const Bytes& bytes) {
    std::ofstream(folder_ / name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return folder_ / name;
  }

  fs::path folder_;
};

template <class Open>
void expectError(Open open, ErrorKind kind, std::string_view words) {
  try {
    open();
    ADD_FAILURE() << "no error; expected: " << words;
  } catch (const Error& error) {
    EXPECT_EQ(error.kind(), kind) << error.message();
    EXPECT_NE(error.message().find(words), std::string::npos) << error.message();
  }
}

void expectOpenError(const fs::path& path, ErrorKind kind, std::string_view words) {
  expectError([&] { Database::open(path); }, kind, words);
}

Database openBytes(const Bytes& bytes, const Options& options = {}) {
  return Database::fromBytes(bytes, "built", options);
}

TEST_F(Opening, MissingFile) {
  expectOpenError(folder_ / "none.mdb", ErrorKind::kUnreadable, "does not exist");
  expectOpenError(folder_ / "none" / "none.mdb", ErrorKind::kUnreadable, "does not exist");
}

TEST_F(Opening, Directory) { expectOpenError(folder_, ErrorKind::kUnreadable, "directory"); }

TEST_F(Opening, NamedPipe) {
  fs::path path = folder_ / "pipe.mdb";
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  expectOpenError(path, ErrorKind::kUnreadable, "not a file");
}

TEST_F(Opening, FileWithoutPermission) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may read everything";
  fs::path path = write("closed.mdb", FileBuilder(false).build());
  fs::permissions(path, fs::perms::none);
  expectOpenError(path, ErrorKind::kUnreadable, "permission");
}

TEST_F(Opening, EmptyFile) {
  expectOpenError(write("empty.mdb", {}), ErrorKind::kNotADatabase, "empty");
  expectError([] { openBytes({}); }, ErrorKind::kNotADatabase, "empty");
}

TEST_F(Opening, TextFile) {
  expectOpenError(write("text.mdb", ansi("Option Compare Database\r\n")), ErrorKind::kNotADatabase,
                  "not an Access database");
}

TEST_F(Opening, NothingButTheSignature) {
  expectOpenError(write("head.mdb", join({{0, 1, 0, 0}, ansi("Standard Jet DB")})),
                  ErrorKind::kDamaged, "header");
}

TEST_F(Opening, BothFormats) {
  Database jet3 = openBytes(FileBuilder(true).build());
  EXPECT_EQ(jet3.version(), "3.0");
  EXPECT_EQ(jet3.codePage(), 1252);
  EXPECT_EQ(jet3.languageId(), 1033);
  EXPECT_FALSE(jet3.hasPassword());
  EXPECT_EQ(jet3.fileName(), "built");
  Database jet4 = openBytes(FileBuilder(false).build());
  EXPECT_EQ(jet4.version(), "4.0");
  EXPECT_EQ(jet4.codePage(), 1252);
  EXPECT_EQ(jet4.languageId(), 1033);
  EXPECT_FALSE(jet4.hasPassword());
}

TEST_F(Opening, NewerFormat) {
  for (std::uint8_t version : Bytes{2, 3, 5}) {
    FileBuilder builder(false);
    builder.setVersionByte(version);
    Bytes file = builder.build();
    expectError([&] { openBytes(file); }, ErrorKind::kNewerFormat, "Access 2007");
    Options options;
    options.allowNewerFormat = true;
    EXPECT_EQ(openBytes(file, options).version(), "4.0");
  }
}

TEST_F(Opening, SignatureOfTheNewerFormat) {
  Bytes file = FileBuilder(false).build();
  file[13] = 'A';
  file[14] = 'C';
  file[15] = 'E';
  expectError([&] { openBytes(file); }, ErrorKind::kNewerFormat, "Access 2007");
}

TEST_F(Opening, EncryptedFileOfTheNewerFormat) {
  FileBuilder builder(false);
  builder.setVersionByte(2);
  builder.setPageKey(77);
  Options options;
  options.allowNewerFormat = true;
  expectError([&] { openBytes(builder.build(), options); }, ErrorKind::kNewerFormat, "Access 2007");
}

TEST_F(Opening, PasswordInBothForms) {
  for (bool jet3 : {true, false}) {
    FileBuilder builder(jet3);
    builder.setPassword(builder.text("secret"));
    builder.addTable("Open", {{"Id", 4, 4, true}}, {{le32(5)}});
    Bytes file = builder.build();
    expectError([&] { openBytes(file); }, ErrorKind::kPassword, "password");
    Options options;
    options.ignorePassword = true;
    Database database = openBytes(file, options);
    EXPECT_TRUE(database.hasPassword());
    EXPECT_EQ(walkEverything(database).rows, 1u);
  }
}

TEST_F(Opening, EncodedPages) {
  for (bool jet3 : {true, false}) {
    FileBuilder builder(jet3);
    builder.setPageKey(0xC0FFEE11);
    builder.addTable("Hidden", {{"Id", 4, 4, true}}, {{le32(5)}, {le32(6)}});
    Database database = openBytes(builder.build());
    ASSERT_NE(database.findTable("Hidden"), nullptr);
    Rows rows = database.rows(*database.findTable("Hidden"));
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.value(0), Value(5));
  }
}

// The published example of the cipher.
TEST_F(Opening, Cipher) {
  Bytes text = ansi("Plaintext");
  applyRc4(ansi("Key"), text);
  EXPECT_EQ(text, (Bytes{0xBB, 0xF3, 0x16, 0xE8, 0xD9, 0x40, 0xAF, 0x0A, 0xD3}));
}

TEST_F(Opening, FileCutWithinAPage) {
  Bytes file = FileBuilder(false).build();
  file.resize(file.size() - 100);
  expectError([&] { openBytes(file); }, ErrorKind::kDamaged, "cut short");
}

TEST_F(Opening, FileCutBeforeTheCatalog) {
  Bytes file = FileBuilder(false).build();
  file.resize(2 * 4096);
  expectError([&] { openBytes(file); }, ErrorKind::kDamaged, "MSysObjects");
}

TEST_F(Opening, FileCutBehindTheCatalogsDefinition) {
  FileBuilder builder(false);
  builder.addTable("Any", {{"Id", 4, 4, true}}, {{le32(5)}});
  Bytes file = builder.build();
  file.resize(file.size() - 4096);
  expectError([&] { openBytes(file); }, ErrorKind::kDamaged, "is missing, the file has only");
}

TEST_F(Opening, UnknownCodePageCountsAsWestern) {
  Options options;
  options.codePage = 12345;
  EXPECT_EQ(openBytes(FileBuilder(true).build(), options).codePage(), 1252);
}

TEST_F(Opening, MappedAndReadFilesGiveTheSame) {
  FileBuilder builder(false);
  builder.addTable("Any", {{"Id", 4, 4, true}}, {{le32(5)}, {le32(6)}});
  fs::path path = write("any.mdb", builder.build());
  Options mapped;
  mapped.readWholeUpTo = 0;
  EXPECT_EQ(walkEverything(Database::open(path, mapped)).rows, 2u);
  EXPECT_EQ(walkEverything(Database::open(path)).rows, 2u);
  for (const fs::path& sample : sampleDatabases()) {
    Walk one = walkEverything(Database::open(sample, mapped));
    Walk two = walkEverything(Database::open(sample));
    EXPECT_EQ(one.errors, 0u) << sample;
    EXPECT_EQ(one.rows, two.rows) << sample;
    EXPECT_EQ(one.bytes, two.bytes) << sample;
  }
}

TEST_F(Opening, MappedFileCutShortWhileOpen) {
  FileBuilder builder(false);
  builder.addTable("Any", {{"Id", 4, 4, true}}, {{le32(5)}});
  fs::path path = write("any.mdb", builder.build());
  Options mapped;
  mapped.readWholeUpTo = 0;
  Database database = Database::open(path, mapped);
  const CatalogObject& table = *database.findTable("Any");
  fs::resize_file(path, 4096);
  expectError([&] { database.columns(table); }, ErrorKind::kUnreadable, "cut short");
}

TEST_F(Opening, DatabaseMayBeMoved) {
  FileBuilder builder(false);
  builder.addTable("Any", {{"Id", 4, 4, true}}, {{le32(5)}});
  Database first = openBytes(builder.build());
  Rows rows = first.rows(*first.findTable("Any"));
  Database second = std::move(first);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value(0), Value(5));
  EXPECT_NE(second.findTable("any"), nullptr);
}

}  // namespace
}  // namespace tarrowin::mdb
