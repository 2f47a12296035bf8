#include "support/file_faults.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <map>

namespace kickwell {
namespace {

std::map<int, std::string> written;  ///< Files open for writing that hold bytes not flushed.

/// Counts an operation; true when it has to fail.
bool Fails(
    const char* path = nullptr, const std::function<void()>& half = [] {}) {
  FileFaults& faults = Faults();
  ++faults.Operations;
  if (path != nullptr) faults.Paths.emplace_back(path);
  if (faults.Operations == faults.StopAt) {
    faults = FileFaults{.LoseUnflushed = faults.LoseUnflushed};
    half();
    for (const auto& [descriptor, file] : written) {
      if (faults.LoseUnflushed && ::truncate(file.c_str(), 0) != 0) std::abort();
    }
    ::raise(SIGSTOP);
  }
  const bool fails = faults.Operations == faults.FailAt ||
                     (faults.FailOn && faults.FailAt > 0 && faults.Operations > faults.FailAt);
  if (fails) errno = faults.Error;
  return fails;
}

}  // namespace

FileFaults& Faults() {
  static FileFaults faults;
  return faults;
}

bool KilledAt(int stopAt, bool loseUnflushed, const std::function<void()>& act) {
  const pid_t child = ::fork();
  if (child == 0) {
    Faults() = FileFaults{.StopAt = stopAt, .LoseUnflushed = loseUnflushed};
    act();
    ::_exit(0);
  }
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, WUNTRACED) != child) std::abort();
  if (!WIFSTOPPED(status)) {
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) std::abort();
    return false;
  }
  ::kill(child, SIGKILL);
  ::waitpid(child, &status, 0);
  return true;
}

}  // namespace kickwell

// NOLINTBEGIN: the linker gives these names.
extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_close(int descriptor);
ssize_t __real_read(int descriptor, void* bytes, size_t size);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
int __real_fsync(int descriptor);
int __real_fchmod(int descriptor, mode_t mode);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);

int __wrap_open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  if (kickwell::Fails(path)) return -1;
  const int descriptor = __real_open(path, flags, mode);
  if (descriptor >= 0 && (flags & O_WRONLY) != 0) kickwell::written[descriptor] = path;
  return descriptor;
}

int __wrap_close(int descriptor) {
  const bool fails = kickwell::Fails();
  const int result = __real_close(descriptor);  // Closed even if it fails.
  return fails ? -1 : result;
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t size) {
  return kickwell::Fails() ? -1 : __real_read(descriptor, bytes, size);
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size) {
  const auto half = [&] { (void)!__real_write(descriptor, bytes, size / 2); };
  return kickwell::Fails(nullptr, half) ? -1 : __real_write(descriptor, bytes, size);
}

int __wrap_fsync(int descriptor) {
  if (kickwell::Fails()) return -1;
  kickwell::written.erase(descriptor);
  return __real_fsync(descriptor);
}

int __wrap_fchmod(int descriptor, mode_t mode) {
  return kickwell::Fails() ? -1 : __real_fchmod(descriptor, mode);
}

int __wrap_rename(const char* from, const char* to) {
  if (kickwell::Fails(from)) return -1;
  kickwell::Faults().Paths.emplace_back(to);
  for (auto& [descriptor, file] : kickwell::written) {
    if (file == from) file = to;
  }
  return __real_rename(from, to);
}

int __wrap_unlink(const char* path) {
  if (kickwell::Fails(path)) return -1;
  return __real_unlink(path);
}
}
// NOLINTEND
