// What the benchmarks share: a session of the main object whose output goes nowhere.
#pragma once

#include <filesystem>
#include <string>

#include "access/access_host.h"
#include "core/database_opening.h"
#include "core/main_object.h"
#include "shared/file_system.h"

namespace tarrowin {

// Swallows what is written, so that the conversion alone is measured.
class NullFileSystem : public PosixFileSystem {
 public:
  int open(const std::string& path, Access access, Handle& handle) override {
    if (access == Access::kRead) return PosixFileSystem::open(path, access, handle);
    handle = kNull;
    return 0;
  }
  int write(Handle handle, std::string_view bytes, std::size_t& written) override {
    if (handle != kNull) return PosixFileSystem::write(handle, bytes, written);
    written = bytes.size();
    bytesWritten += bytes.size();
    return 0;
  }
  int close(Handle handle) override { return handle == kNull ? 0 : PosixFileSystem::close(handle); }
  std::size_t bytesWritten = 0;

 private:
  static constexpr Handle kNull = 1 << 20;
};

class SilentUser : public User {
 public:
  explicit SilentUser(std::string path) : path_(std::move(path)) {}
  Answer messageBox(int style, std::string_view, std::string_view) override {
    return message_style::asksYesNo(style) ? Answer::kYes : Answer::kOk;
  }
  std::string openFile(const OpenDialog&) override { return path_; }

 private:
  std::string path_;
};

struct Session {
  explicit Session(const std::string& path)
      : user(path),
        files(fileSystem, CodePage(), "/"),
        main(user, files, AccessHost(createAccessHost()), systemNow) {
    cmdOpen_Click(main);
    main.window.txtCurDir = std::filesystem::temp_directory_path().string();
  }
  NullFileSystem fileSystem;
  SilentUser user;
  FileSlots files;
  MainObject main;
};

}  // namespace tarrowin
