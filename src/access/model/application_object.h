// The Access application, and the machine it runs on as far as the application needs to know it.
#pragma once

#include <memory>
#include <string>

#include "access/access_host.h"
#include "access/model/model_object.h"

namespace tarrowin {

class ApplicationObject;

// Shared by the host and its application.
struct HostState {
  HostOptions options;
  std::string selectedDatabase;  // as put, in the code page
  std::string openProblem;
  std::weak_ptr<ApplicationObject> application;  // the one that runs

  // A recording read ahead of its opening, and which state of the file it was.
  struct ReadAhead {
    std::string path;
    std::string fileState;
    std::unique_ptr<DatabaseModel> model;
  };
  ReadAhead readAhead;

  // The tree of the database; throws OpenFailure. Uses what was read ahead.
  std::unique_ptr<DatabaseModel> open(const std::string& path);
  // What the application of the selected recording answers; no errors for any other source.
  std::shared_ptr<const ApplicationErrors> selectedErrors();
  // A path of the code page as the disk knows it.
  std::string diskPath(const std::string& path) const;
};

class ApplicationObject : public NamedObject {
 public:
  explicit ApplicationObject(std::shared_ptr<HostState> host) : host_(std::move(host)) {}
  ~ApplicationObject() override;

 protected:
  const NameTable& names() const override;
  Value read(const MemberUse& use) override;
  Value invoke(const MemberUse& use) override;
  void write(const MemberUse& use, const Value& value) override;

 private:
  const ApplicationErrors& errors();
  void openCurrentDatabase(const std::string& path);
  [[noreturn]] void fail(const std::string& path, std::int32_t number, const std::string& reason);
  void closeCurrentDatabase();
  void quit();
  // Raises 91 while no database is open.
  const std::shared_ptr<Session>& openSession() const;
  Value createControl(const MemberUse& use);
  Value designs(bool reports, const MemberUse& use);
  Value modules(const MemberUse& use);
  Value recordedDocument(const MemberUse& use) const;

  std::shared_ptr<HostState> host_;
  std::shared_ptr<Session> session_;  // none while no database is open
  // What the recording says, and of which selection; stays with the database opened last.
  std::shared_ptr<const ApplicationErrors> errors_;
  std::string errorsOf_;
  bool opened_ = false;
  bool visible_ = false;
  bool running_ = true;
};

}  // namespace tarrowin
