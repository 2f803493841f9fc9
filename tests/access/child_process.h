// Runs a part of a test in a process of its own.
#pragma once

#include <functional>

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include "gtest/gtest.h"

namespace tarrowin {

// The exit status of a child process that ends with what the action gives, 0 to 254; 255 when the
// action throws, -1 when the process was ended from outside.
inline int inChildProcess(const std::function<int()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    try {
      ::_exit(action());
    } catch (...) {
      ::_exit(255);
    }
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child) {
    ADD_FAILURE() << "no child process";
    return -1;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Gives up the rights of a superuser, whom no permissions of files would stop.
inline void becomeOrdinaryUser() {
  constexpr unsigned kNobody = 65534;
  if (::geteuid() != 0) return;
  if (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)
    ::_exit(254);
}

}  // namespace tarrowin
