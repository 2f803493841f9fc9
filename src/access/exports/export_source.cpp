// Reading files, and naming them in messages.
#include "access/exports/export_source.h"

#include <cstdint>
#include <filesystem>
#include <new>
#include <span>

#include "access/macro/export_encoding.h"
#include "access/snapshot/whole_file.h"
#include "shared/vb_error.h"

namespace tarrowin::exports {

namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kErrCorrupt = 3049;

bool isFolder(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

}  // namespace

ExportSource::ExportSource(const std::string& path, const CodePage& codePage)
    : folder_(isFolder(path) ? path : fs::path(path).parent_path().string()), codePage_(codePage) {}

std::string ExportSource::shown(const std::string& path) const {
  return codePage_.fromUtf8(fs::path(path).lexically_relative(folder_).string());
}

void ExportSource::refuseLarger(const std::string& path, std::size_t limit) const {
  std::error_code error;
  if (fs::file_size(path, error) > limit && !error)
    throw VbError(kErrCorrupt,
                  shown(path) + ": is larger than " + std::to_string(limit >> 20) + " MB.");
}

JsonTree ExportSource::json(const std::string& path) const {
  refuseLarger(path, kLargestSettings);
  return reading(path, [&] { return JsonTree::parse(codePage_.toUtf8(text(path))); });
}

std::string ExportSource::text(const std::string& path) const {
  refuseLarger(path, kLargestFile);
  const auto bytes = readWholeFile(path);
  if (!bytes) throw VbError(kErrCorrupt, shown(path) + ": cannot be read.");
  return exportText(std::span(reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()),
                    codePage_);
}

void ExportSource::raiseDamaged(const std::string& path, const std::exception& error) const {
  if (const auto* raised = dynamic_cast<const VbError*>(&error)) throw VbError(*raised);
  if (dynamic_cast<const std::bad_alloc*>(&error)) throw;
  throw VbError(kErrCorrupt, shown(path) + ": " + error.what() + ".");
}

}  // namespace tarrowin::exports
