// Records: u16 id, u32 size, bytes.
// See project_directory.h.
#include "access/vba/project_directory.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "access/mdb/byte_view.h"
#include "access/mdb/damage.h"
#include "access/vba/wide_text.h"

namespace tarrowin::vba {
namespace {

// Ids of records. Names stand twice: in the project's code page and as UTF-16.
enum Id : std::uint16_t {
  kCodePage = 0x0003,
  kProjectName = 0x0004,
  kProjectVersion = 0x0009,
  kRegisteredLibrary = 0x000D,
  kProjectLibrary = 0x000E,
  kDirectoryEnd = 0x0010,
  kReferenceName = 0x0016,
  kModuleName = 0x0019,
  kModuleStream = 0x001A,
  kStandardModule = 0x0021,
  kClassModule = 0x0022,
  kModuleEnd = 0x002B,
  kModuleOffset = 0x0031,
  kModuleStreamWide = 0x0032,
  kReferenceNameWide = 0x003E,
  kModuleNameWide = 0x0047,
};

constexpr std::size_t kHeadSize = 6;
// The record of the version states a size of 4 but has 6 bytes.
constexpr std::size_t kVersionSize = 6;

// Ten times what Access allows in a database, those of forms and reports included.
constexpr std::size_t kMaximumModules = 10000;

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

std::string_view ansi(const mdb::ByteView& view) {
  return {reinterpret_cast<const char*>(view.bytes().data()), view.size()};
}

class Reader {
 public:
  explicit Reader(ProjectDirectory& target) : target_(target) {}

  void read(const Bytes& stream) {
    const mdb::ByteView view(stream, {"project directory"});
    std::size_t at = 0;
    while (at < view.size()) {
      const std::uint16_t id = view.u16(at);
      if (id == kDirectoryEnd) return;
      const std::size_t size = id == kProjectVersion ? kVersionSize : view.u32(at + 2);
      record(id, view.sub(at + kHeadSize, size));
      at += kHeadSize + size;
    }
    mdb::raiseDamaged("the directory of the Visual Basic project is cut short");
  }

 private:
  void record(std::uint16_t id, const mdb::ByteView& view) {
    switch (id) {
      case kCodePage:
        setCodePage(view.u16(0));
        break;
      case kProjectName:
        target_.name = target_.toUtf8(ansi(view));
        break;
      case kReferenceName:
        target_.references.push_back({nameOf(view), {}});
        break;
      case kReferenceNameWide:
        if (!target_.references.empty()) {
          target_.references.back().name = wideText(view.bytes());
        }
        break;
      case kRegisteredLibrary:
      case kProjectLibrary:
        if (!target_.references.empty()) {
          target_.references.back().library = nameOf(view.sub(4, view.u32(0)));
        }
        break;
      case kModuleName:
        module_ = DirectoryModule{};
        module_->name = nameOf(view);
        break;
      case kModuleEnd:
        endModule();
        break;
      default:
        if (module_) moduleRecord(id, view);
    }
  }

  void moduleRecord(std::uint16_t id, const mdb::ByteView& view) {
    switch (id) {
      case kModuleNameWide:
        module_->name = wideText(view.bytes());
        break;
      case kModuleStream:
        module_->stream = nameOf(view);
        break;
      case kModuleStreamWide:
        module_->stream = wideText(view.bytes());
        break;
      case kModuleOffset:
        module_->offset = view.u32(0);
        break;
      case kClassModule:
        module_->isClass = true;
        break;
      default:
        break;
    }
  }

  void endModule() {
    if (!module_) return;
    if (target_.modules.size() == kMaximumModules) {
      mdb::raiseDamaged("the directory of the Visual Basic project has too many modules");
    }
    target_.modules.push_back(std::move(*module_));
    module_.reset();
  }

  void setCodePage(int number) {
    target_.codePage = number;
    try {
      target_.page.emplace(number);
    } catch (const std::invalid_argument&) {
      target_.page.reset();
    }
  }

  // A name that no known page explains is told by the UTF-16 record behind it.
  std::string nameOf(const mdb::ByteView& view) const {
    const std::string_view text = ansi(view);
    return target_.page || isAscii(text) ? target_.toUtf8(text) : std::string();
  }

  ProjectDirectory& target_;
  std::optional<DirectoryModule> module_;
};

}  // namespace

std::string ProjectDirectory::toUtf8(std::string_view text) const {
  if (isAscii(text)) return std::string(text);
  if (!page) {
    mdb::raiseDamaged("the code page " + std::to_string(codePage) + " of the code is not known");
  }
  return page->toUtf8(text);
}

ProjectDirectory readProjectDirectory(const Bytes& stream) {
  ProjectDirectory directory;
  directory.page.emplace(directory.codePage);
  try {
    Reader(directory).read(stream);
  } catch (const mdb::Error& error) {
    directory.damage = error;
  }
  return directory;
}

}  // namespace tarrowin::vba
