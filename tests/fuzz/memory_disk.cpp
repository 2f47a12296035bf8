#include "fuzz/memory_disk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <utility>

namespace kickwell {
namespace {

constexpr const char* Root = "/dev/null/";
constexpr int First = 1 << 20;  ///< Descriptors from here on are files in memory.

struct OpenFile {
  std::string* Bytes;
  std::size_t Place;
};

std::map<int, OpenFile> opened;

/// The name in memory of a path; nothing when it is elsewhere.
const char* NameOf(const char* path) {
  return std::strncmp(path, Root, std::strlen(Root)) == 0 ? path + std::strlen(Root) : nullptr;
}

int NoSuchFile() {
  errno = ENOENT;
  return -1;
}

int Facts(const std::string& bytes, struct stat* facts) {
  *facts = {};
  facts->st_mode = S_IFREG | 0644;
  facts->st_size = static_cast<off_t>(bytes.size());
  return 0;
}

}  // namespace

std::map<std::string, std::string>& Disk() {
  static std::map<std::string, std::string> disk;
  return disk;
}

const ProgramFolder& MemoryFolder() {
  static const ProgramFolder folder{std::string(Root).substr(0, std::strlen(Root) - 1)};
  return folder;
}

}  // namespace kickwell

using namespace kickwell;

// NOLINTBEGIN: the linker gives these names.
extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_close(int descriptor);
ssize_t __real_read(int descriptor, void* bytes, size_t size);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
int __real_fsync(int descriptor);
int __real_fchmod(int descriptor, mode_t mode);
int __real_fstat(int descriptor, struct stat* facts);
int __real_stat(const char* path, struct stat* facts);
int __real_access(const char* path, int mode);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);

int __wrap_open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  const char* const name = NameOf(path);
  if (name == nullptr) return __real_open(path, flags, mode);
  if ((flags & O_CREAT) == 0 && !Disk().contains(name)) return NoSuchFile();
  const int descriptor = opened.empty() ? First : opened.rbegin()->first + 1;
  opened[descriptor] = {&Disk()[name], 0};
  if ((flags & O_TRUNC) != 0) Disk()[name].clear();
  return descriptor;
}

int __wrap_close(int descriptor) {
  return opened.erase(descriptor) != 0 ? 0 : __real_close(descriptor);
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t size) {
  const auto file = opened.find(descriptor);
  if (file == opened.end()) return __real_read(descriptor, bytes, size);
  const size_t taken = std::min(size, file->second.Bytes->size() - file->second.Place);
  std::memcpy(bytes, file->second.Bytes->data() + file->second.Place, taken);
  file->second.Place += taken;
  return static_cast<ssize_t>(taken);
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size) {
  const auto file = opened.find(descriptor);
  if (file == opened.end()) return __real_write(descriptor, bytes, size);
  file->second.Bytes->append(static_cast<const char*>(bytes), size);
  return static_cast<ssize_t>(size);
}

int __wrap_fsync(int descriptor) {
  return descriptor >= First ? 0 : __real_fsync(descriptor);
}

int __wrap_fchmod(int descriptor, mode_t mode) {
  return descriptor >= First ? 0 : __real_fchmod(descriptor, mode);
}

int __wrap_fstat(int descriptor, struct stat* facts) {
  const auto file = opened.find(descriptor);
  return file == opened.end() ? __real_fstat(descriptor, facts) : Facts(*file->second.Bytes, facts);
}

int __wrap_stat(const char* path, struct stat* facts) {
  const char* const name = NameOf(path);
  if (name == nullptr) return __real_stat(path, facts);
  return Disk().contains(name) ? Facts(Disk()[name], facts) : NoSuchFile();
}

int __wrap_access(const char* path, int mode) {
  const char* const name = NameOf(path);
  if (name == nullptr) return __real_access(path, mode);
  return Disk().contains(name) ? 0 : NoSuchFile();
}

int __wrap_rename(const char* from, const char* to) {
  const char* const name = NameOf(from);
  if (name == nullptr) return __real_rename(from, to);
  Expect(NameOf(to) != nullptr);  // Nothing goes out of the program folder.
  if (!Disk().contains(name)) return NoSuchFile();
  Disk()[NameOf(to)] = std::exchange(Disk()[name], {});
  Disk().erase(name);
  return 0;
}

int __wrap_unlink(const char* path) {
  const char* const name = NameOf(path);
  if (name == nullptr) return __real_unlink(path);
  return Disk().erase(name) != 0 ? 0 : NoSuchFile();
}
}
// NOLINTEND
