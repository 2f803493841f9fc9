// Files of a folder of exports, and what goes wrong with them.
#pragma once

#include <memory>
#include <string>

#include "access/snapshot/json_tree.h"
#include "shared/code_page.h"

namespace tarrowin::exports {

// An exported file larger than this is refused rather than read into memory.
inline constexpr std::size_t kLargestFile = std::size_t{256} << 20;
// The same of settings, which are a few kilobytes.
inline constexpr std::size_t kLargestSettings = std::size_t{16} << 20;

class ExportSource {
 public:
  // The path is that of the folder or of a single exported file.
  ExportSource(const std::string& path, const CodePage& codePage);

  const CodePage& codePage() const { return codePage_; }

  // The text of a file in the code page. Raises 3049 when it cannot be read.
  std::string text(const std::string& path) const;
  // A file of settings, whose texts are UTF-8. Raises 3049 when it cannot be read.
  JsonTree json(const std::string& path) const;
  // The path as messages show it, relative to the folder; in the code page.
  std::string shown(const std::string& path) const;

  // Runs what reads the file. Damage becomes error 3049, DAO's number for a file that may be
  // corrupt, with the file, the line and the problem.
  template <class Action>
  auto reading(const std::string& path, Action action) const {
    try {
      return action();
    } catch (const std::exception& error) {
      raiseDamaged(path, error);
    }
  }

 private:
  void refuseLarger(const std::string& path, std::size_t limit) const;
  // Passes on an error that is one of Visual Basic already.
  [[noreturn]] void raiseDamaged(const std::string& path, const std::exception& error) const;

  std::string folder_;
  CodePage codePage_;
};

using SourceRef = std::shared_ptr<const ExportSource>;

}  // namespace tarrowin::exports
