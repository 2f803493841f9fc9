// Code of real databases with bytes changed in their streams, and in the files as a whole: an
// Error at worst, for the module that is hit. Fixed seeds.
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "access/vba/compound_file.h"
#include "access/vba/vba_project.h"
#include "mdb/sample_files.h"
#include "vba/stream_builder.h"

namespace tarrowin::vba {
namespace {

using Clock = std::chrono::steady_clock;
constexpr double kMaximumSeconds = 2;

int rounds() { return std::getenv("TARROWIN_LONG") != nullptr ? 3000 : 150; }

mdb::Options anyFormat() {
  mdb::Options options;
  options.allowNewerFormat = true;
  return options;
}

// The folder of the code in memory, its streams open to change.
void copyFolder(const StreamStore& source, StreamStore::Node from, MemoryTree& target,
                StreamStore::Node to) {
  for (StreamStore::Node node : source.children(from)) {
    if (source.isFolder(node)) {
      copyFolder(source, node, target, target.store.addFolder(to, source.name(node)));
    } else {
      addStream(target, to, source.name(node), source.read(node));
    }
  }
}

struct Outcome {
  int read = 0;
  int failed = 0;
};

Outcome readEverything(const mdb::Database& database, const VbaProject& project) {
  Outcome outcome;
  const auto attempt = [&](const std::string& name) {
    try {
      project.moduleText(name);
      project.countOfLines(name);
      ++outcome.read;
    } catch (const mdb::Error& error) {
      EXPECT_EQ(error.kind(), mdb::ErrorKind::kDamaged);
      EXPECT_FALSE(error.message().empty());
      ++outcome.failed;
    }
  };
  for (const Module& module : project.modules()) attempt(module.name);
  for (const mdb::CatalogObject& module : database.modules()) attempt(module.name);
  return outcome;
}

class Damage : public testing::Test {
 protected:
  void SetUp() override {
    paths_ = mdb::sampleDatabases(true);
    if (paths_.empty()) GTEST_SKIP() << "no sample databases here";
  }
  std::vector<std::filesystem::path> paths_;
};

TEST_F(Damage, BytesOfStreams) {
  std::mt19937 random(11);
  Outcome total;
  for (const auto& path : paths_) {
    const mdb::Database database = mdb::Database::open(path.string(), anyFormat());
    MemoryTree tree = emptyTree();
    const StreamStore store = StreamStore::open(database);
    copyFolder(store, StreamStore::kRoot, tree, StreamStore::kRoot);
    if (store.namedFolders()) tree.store.setNamedFolders();
    std::vector<Bytes>& streams = *tree.streams;
    const auto shared = std::make_shared<const ObjectTree>(std::move(tree.store));
    // Large streams are designs and caches, which the reading of code does not use.
    std::vector<std::size_t> used;
    for (std::size_t i = 0; i < streams.size(); ++i) {
      if (streams[i].size() > 1 && streams[i].size() < 60000) used.push_back(i);
    }
    const Outcome whole = readEverything(database, VbaProject::open(database, shared));
    EXPECT_EQ(whole.failed, 0) << path;
    for (int round = 0; round < rounds(); ++round) {
      const std::vector<Bytes> kept = streams;
      for (int change = 0; change < 8; ++change) {
        Bytes& bytes = streams[used[random() % used.size()]];
        bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
        if (random() % 16 == 0) bytes.resize(1 + random() % bytes.size());
      }
      const auto start = Clock::now();
      const Outcome outcome = readEverything(database, VbaProject::open(database, shared));
      const std::chrono::duration<double> seconds = Clock::now() - start;
      EXPECT_LT(seconds.count(), kMaximumSeconds) << path << " round " << round;
      total.read += outcome.read;
      total.failed += outcome.failed;
      streams = kept;
    }
  }
  std::cout << "  modules read " << total.read << ", failed " << total.failed << '\n';
  EXPECT_GT(total.read, 0);
  EXPECT_GT(total.failed, 0);
}

TEST_F(Damage, BytesOfFiles) {
  std::mt19937 random(12);
  int refused = 0;
  Outcome total;
  for (const auto& path : paths_) {
    const Bytes file = mdb::fileBytes(path);
    for (int round = 0; round < rounds() / 5; ++round) {
      Bytes copy = file;
      for (int change = 0; change < 60; ++change) {
        copy[4096 + random() % (copy.size() - 4096)] = static_cast<std::uint8_t>(random());
      }
      try {
        const mdb::Database database =
            mdb::Database::fromBytes(std::move(copy), "copy", anyFormat());
        const Outcome outcome = readEverything(database, VbaProject::open(database));
        total.read += outcome.read;
        total.failed += outcome.failed;
      } catch (const mdb::Error&) {
        ++refused;
      }
    }
  }
  std::cout << "  files refused " << refused << ", modules read " << total.read << ", failed "
            << total.failed << '\n';
  EXPECT_GT(total.read, 0);
  EXPECT_GT(total.failed, 0);
}

// The head, the sector tables and the directory hold everything together.
TEST_F(Damage, BytesOfCompoundFiles) {
  std::mt19937 random(13);
  std::vector<CompoundEntry> entries{{"VBA", true, 0, {}}};
  for (std::size_t i = 1; i < 20; ++i) {
    entries.push_back({"Stream" + std::to_string(i), false, i % 2, Bytes(i * 400, 1)});
  }
  const Bytes file = compoundFile(entries);
  int refused = 0;
  int failed = 0;
  int read = 0;
  for (int round = 0; round < 20 * rounds(); ++round) {
    Bytes copy = file;
    for (int change = 0; change < 3; ++change) {
      const std::size_t where = random() % 3 == 0 ? random() % 96 : 512 + random() % 4000;
      copy[where] = static_cast<std::uint8_t>(random());
    }
    try {
      const CompoundFile compound(std::move(copy));
      for (const CompoundFile::Entry& entry : compound.entries()) {
        try {
          EXPECT_EQ(compound.read(entry).size(), entry.size);
          ++read;
        } catch (const mdb::Error&) {
          ++failed;
        }
      }
    } catch (const mdb::Error&) {
      ++refused;
    }
  }
  std::cout << "  refused " << refused << ", streams read " << read << ", failed " << failed
            << '\n';
  EXPECT_GT(refused, 0);
  EXPECT_GT(failed, 0);
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace tarrowin::vba
