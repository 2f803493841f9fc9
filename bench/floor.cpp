// The least that any converter has to do: read the input once, and write the output files. Usage:
// bench_floor INPUT MODEL_DIR OUT_DIR, where MODEL_DIR holds the files that a conversion wrote.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const std::string& content) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  if (file < 0 || ::write(file, content.data(), content.size()) < 0) std::perror(path.c_str());
  ::close(file);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: bench_floor INPUT MODEL_DIR OUT_DIR\n");
    return 2;
  }
  // The model is read before the clock starts: a converter makes its output, it does not read it.
  std::vector<std::pair<std::string, std::string>> files;
  for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
    files.emplace_back(std::string(argv[3]) + "/" + entry.path().filename().string(),
                       contentOf(entry.path()));
  }
  const auto start = std::chrono::steady_clock::now();
  const std::string input = contentOf(argv[1]);
  for (const auto& [path, content] : files) writeFile(path, content);
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  std::printf("%.6f %zu\n", elapsed.count(), input.size());
}
