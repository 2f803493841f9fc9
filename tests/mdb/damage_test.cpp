// Truncated and bit-flipped copies of real databases: an Error at worst, in bounded time.
// TARROWIN_LONG=1 runs 2,000 copies of each kind of one sample instead of some of every one.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include "access/mdb/mdb_database.h"
#include "mdb/sample_files.h"
#include "mdb/walk.h"

namespace tarrowin::mdb {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kCopies = 200;  // of each kind, spread over the samples
constexpr int kLongCopies = 2000;
constexpr double kMaximumSeconds = 2;

bool isLongRun() { return std::getenv("TARROWIN_LONG") != nullptr; }

struct Sample {
  std::filesystem::path path;
  Bytes bytes;
};

// A long run takes one small file: most of its bytes matter.
std::vector<Sample> samplesForRun() {
  std::vector<Sample> samples;
  if (isLongRun()) {
    std::filesystem::path path = sampleDatabase("asvnTest2003.mdb");
    if (!path.empty()) samples.push_back({path, fileBytes(path)});
    return samples;
  }
  for (const auto& path : sampleDatabases()) samples.push_back({path, fileBytes(path)});
  return samples;
}

int copiesOfEach(std::size_t samples) {
  return isLongRun() ? kLongCopies : kCopies / static_cast<int>(samples) + 1;
}

std::size_t pageSizeOf(const Bytes& file) { return file[0x14] == 0 ? 2048 : 4096; }

class Damage : public testing::Test {
 protected:
  void SetUp() override {
    samples_ = samplesForRun();
    if (samples_.empty()) GTEST_SKIP() << "no sample databases here";
  }

  // Opens and reads everything; any other exception than Error ends the test.
  void survive(Bytes bytes, const std::string& what) {
    auto start = Clock::now();
    try {
      Walk walk = walkEverything(Database::fromBytes(std::move(bytes), "copy"));
      if (walk.errors == 0) ++intact_;
      if (walk.errors > 0) ++partly_;
    } catch (const Error& error) {
      ++refused_;
      EXPECT_FALSE(error.message().empty()) << what;
    }
    std::chrono::duration<double> seconds = Clock::now() - start;
    slowest_ = std::max(slowest_, seconds.count());
    EXPECT_LT(seconds.count(), kMaximumSeconds) << what;
  }

  void report() const {
    std::cout << "  refused " << refused_ << ", read in part " << partly_ << ", without an error "
              << intact_ << ", slowest " << slowest_ * 1000 << " ms\n";
  }

  std::vector<Sample> samples_;
  int refused_ = 0;
  int partly_ = 0;
  int intact_ = 0;
  double slowest_ = 0;
};

TEST_F(Damage, UndamagedCopiesReadWithoutAnError) {
  for (const Sample& sample : samples_) {
    Walk walk = walkEverything(Database::fromBytes(sample.bytes, "copy"));
    EXPECT_EQ(walk.errors, 0u) << sample.path;
    EXPECT_GT(walk.objects, 50u) << sample.path;
    EXPECT_GT(walk.rows, 70u) << sample.path;
  }
}

// Every other copy ends with a whole page, which does not show at once.
TEST_F(Damage, TruncatedCopies) {
  std::mt19937 random(1);
  for (const Sample& sample : samples_) {
    std::uniform_int_distribution<std::size_t> length(0, sample.bytes.size() - 1);
    for (int i = 0; i < copiesOfEach(samples_.size()); ++i) {
      std::size_t size = length(random);
      if (i % 2 == 0) size -= size % pageSizeOf(sample.bytes);
      auto end = sample.bytes.begin() + static_cast<std::ptrdiff_t>(size);
      survive(Bytes(sample.bytes.begin(), end),
              sample.path.filename().string() + " cut to " + std::to_string(size));
    }
  }
  report();
  EXPECT_GT(refused_ + partly_, 0);
}

TEST_F(Damage, CopiesWithOneByteFlipped) {
  std::mt19937 random(2);
  for (const Sample& sample : samples_) {
    std::uniform_int_distribution<std::size_t> place(0, sample.bytes.size() - 1);
    for (int i = 0; i < copiesOfEach(samples_.size()); ++i) {
      Bytes copy = sample.bytes;
      std::size_t at = place(random);
      copy[at] = static_cast<std::uint8_t>(copy[at] ^ (1 + random() % 255));
      survive(std::move(copy),
              sample.path.filename().string() + " changed at " + std::to_string(at));
    }
  }
  report();
}

// Single bytes seldom meet what holds the file together: here many do at once, most of them in the
// first pages and in the heads of pages.
TEST_F(Damage, CopiesWithManyBytesFlipped) {
  std::mt19937 random(3);
  for (const Sample& sample : samples_) {
    std::size_t pageSize = pageSizeOf(sample.bytes);
    for (int i = 0; i < copiesOfEach(samples_.size()); ++i) {
      Bytes copy = sample.bytes;
      for (int change = 0; change < 40; ++change) {
        std::size_t page = random() % (copy.size() / pageSize);
        std::size_t at = page * pageSize + random() % (change % 2 == 0 ? 64 : pageSize);
        if (page != 0) copy[at] = static_cast<std::uint8_t>(random());
      }
      survive(std::move(copy), sample.path.filename().string() + " copy " + std::to_string(i));
    }
  }
  report();
  EXPECT_GT(refused_ + partly_, 0);
}

}  // namespace
}  // namespace tarrowin::mdb
