// A disk that is full.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace veneerer::test {

/// While it lives no file grows beyond so many bytes: a write begins and isn't done.
class FullDisk {
public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit now{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &now);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace veneerer::test
