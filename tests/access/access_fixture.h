// A host with a recording written for the test, and short ways to ask its objects.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "access/access_host.h"
#include "access/snapshot/atomic_file.h"

namespace tarrowin {

inline std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::filesystem::path& path, std::string_view text) {
  std::ofstream(path, std::ios::binary) << text;
}

inline Value get(const ObjectRef& object, std::string_view name,
                 std::initializer_list<Value> arguments = {}) {
  return object->get(name, {arguments.begin(), arguments.size()});
}
inline Value call(const ObjectRef& object, std::string_view name,
                  std::initializer_list<Value> arguments = {}) {
  return object->call(name, {arguments.begin(), arguments.size()});
}
inline ObjectRef child(const ObjectRef& object, std::string_view name,
                       std::initializer_list<Value> arguments = {}) {
  return toObject(get(object, name, arguments));
}
// The item of a collection.
inline ObjectRef item(const ObjectRef& collection, Value which) {
  return child(collection, "", {std::move(which)});
}
inline std::string text(const ObjectRef& object, std::string_view name) {
  return toText(get(object, name));
}
inline std::int32_t number(const ObjectRef& object, std::string_view name) {
  return toLong(get(object, name));
}

// The number that the action raises; 0 when it raises nothing.
inline std::int32_t errorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const VbError& error) {
    return error.number();
  }
  return 0;
}
inline std::string descriptionOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const VbError& error) {
    return error.description();
  }
  return "(no error)";
}

class AccessTest : public testing::Test {
 protected:
  AccessTest() {
    std::string path = (std::filesystem::temp_directory_path() / "access-test-XXXXXX").string();
    if (::mkdtemp(path.data()) == nullptr) ADD_FAILURE() << "no temporary directory";
    directory = path;
  }
  ~AccessTest() override {
    std::error_code ignored;
    std::filesystem::remove_all(directory, ignored);
  }

  std::size_t filesInDirectory() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(directory))
      ++count;
    return count;
  }

  std::string pathOf(std::string_view name) const { return (directory / name).string(); }

  void startHost(CodePage page = CodePage()) {
    host = createAccessHost({page, diskOperations});
    application = toObject(call(host, "CreateObject", {"Access.Application"}));
  }
  // Writes the recording, opens it, and takes its database.
  void openRecording(std::string_view json, CodePage page = CodePage()) {
    writeFile(pathOf("test.access.json"), json);
    openFile(pathOf("test.access.json"), page);
  }
  void openFile(const std::string& path, CodePage page = CodePage()) {
    startHost(page);
    host->put("SelectedDatabase", path);
    call(application, "OpenCurrentDatabase", {path, true});
    database = get(application, "CurrentDb").object();
    doCmd = child(application, "DoCmd");
  }

  ObjectRef openForm(const std::string& name) {
    call(doCmd, "OpenForm", {name, 1, Value(), Value(), -1, 1});
    return child(application, "Forms", {name});
  }
  // The names of the documents of a container, with a blank behind each.
  std::string documents(const char* container) const {
    std::string names;
    const ObjectRef list = child(child(database, "Containers", {container}), "Documents");
    for (std::int32_t i = 0; i < number(list, "Count"); ++i)
      names += text(item(list, i), "Name") + " ";
    return names;
  }
  ObjectRef createForm(const std::string& templateName) {
    return toObject(call(application, "CreateForm", {Value(), templateName}));
  }
  void closeAndSave(const std::string& form) { call(doCmd, "Close", {2, form, 1}); }
  void convertMacro(const std::string& name) {
    call(doCmd, "SelectObject", {4, name, true});
    call(doCmd, "RunCommand", {279});
  }

  ObjectRef openReport(const std::string& name) {
    call(doCmd, "OpenReport", {name, 1});
    return child(application, "Reports", {name});
  }

  std::filesystem::path directory;
  std::shared_ptr<ReplaceOperations> diskOperations;  // of the hosts that are started
  ObjectRef host, application, database, doCmd;
};

}  // namespace tarrowin
