// Real databases of 20 MB: opening and listing them beside a plain read of the file, and converting
// all their forms, reading included. Usage: bench_designs FOLDER, which keeps the databases.
// Rounds take turns, so that whatever disturbs the machine disturbs all figures; times are medians,
// of one core.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include "access/database_source.h"
#include "bench_session.h"
#include "core/form_batch.h"
#include "design_database.h"

namespace tarrowin {
namespace {

// Of what takes milliseconds, and of what takes seconds.
constexpr int kShortRounds = 41, kLongRounds = 5;

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "bench_designs: %s\n", what.c_str());
  std::exit(1);
}

template <class Action>
double secondsOf(Action action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::ranges::nth_element(values, values.begin() + std::ssize(values) / 2);
  return values[values.size() / 2];
}

// The whole file, in pieces as large as cp takes.
void readPlainly(const std::string& path, std::size_t size) {
  static std::vector<char> piece(std::size_t{128} << 10);
  const int file = ::open(path.c_str(), O_RDONLY);
  std::size_t total = 0;
  for (ssize_t got = 0; (got = ::read(file, piece.data(), piece.size())) > 0;)
    total += static_cast<std::size_t>(got);
  ::close(file);
  if (total != size) fail("the file cannot be read");
}

void openAndList(const std::string& path, std::size_t forms) {
  const Session session(path);
  if (session.main.window.list(ObjectList::kForms).size() != forms) fail("not all forms listed");
}

// Each design up to the last property that Access would tell, without keeping it.
void readDesigns(const std::string& path, std::size_t forms) {
  const auto model = openDatabaseFile(path, CodePage());
  std::size_t controls = 0;
  for (DesignModel design : model->forms) controls += design.body.get()->controls.size();
  if (controls != forms * kControlsOfEachForm) fail("not all controls read");
}

void convert(const std::string& path, std::size_t forms) {
  Session session(path);
  ConvertForms(session.main, true);
  if (static_cast<std::size_t>(session.main.lastBatch.converted) != forms)
    fail("not all forms converted");
}

void measure(const std::string& path, const FormDatabase& database) {
  const std::size_t size = writeFormDatabase(path, database);
  std::vector<double> plain, listed, read, converted;
  for (int round = 0; round < kShortRounds; ++round) {
    plain.push_back(secondsOf([&] { readPlainly(path, size); }));
    listed.push_back(secondsOf([&] { openAndList(path, database.forms); }));
  }
  for (int round = 0; round < kLongRounds; ++round) {
    read.push_back(secondsOf([&] { readDesigns(path, database.forms); }));
    converted.push_back(secondsOf([&] { convert(path, database.forms); }));
  }
  const double forms = static_cast<double>(database.forms);
  std::printf("%zu forms of %zu controls, designs of version %d, %.1f MB:\n", database.forms,
              kControlsOfEachForm, database.designVersion, static_cast<double>(size) / 1e6);
  std::printf("  plain read         %8.2f ms\n", median(plain) * 1000);
  std::printf("  opened and listed  %8.2f ms  %.2f times the plain read\n", median(listed) * 1000,
              median(listed) / median(plain));
  std::printf("  designs read       %8.0f forms/s\n", forms / median(read));
  std::printf("  converted          %8.0f forms/s, reading included\n", forms / median(converted));
}

}  // namespace
}  // namespace tarrowin

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: bench_designs FOLDER\n");
    return 2;
  }
  const std::string folder = argv[1];
  tarrowin::measure(folder + "/designs.mdb", {5000, 19});
  tarrowin::measure(folder + "/later.mdb", {1300, 20});
  return 0;
}
