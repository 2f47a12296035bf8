#include "data/posix_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <set>

namespace kickwell {
namespace {

namespace fs = std::filesystem;

constexpr off_t LargestFile = 1 << 28;  ///< Bytes: a thousand times the limits of any file.

std::error_code Error(int error) {
  return {error, std::generic_category()};
}

/// The error of the last call, unless that succeeded.
std::error_code ErrorUnless(bool succeeded) {
  return succeeded ? std::error_code() : Error(errno);
}

/// An open file or folder; not open when opening failed.
class Descriptor {
 public:
  Descriptor(const fs::path& file, int flags, mode_t mode = 0)
      : number_(::open(file.c_str(), flags | O_CLOEXEC, mode)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (IsOpen()) ::close(number_);
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  std::error_code Close() {
    const int result = ::close(number_);
    number_ = -1;  // Closed even where the call fails.
    return ErrorUnless(result == 0);
  }

 private:
  int number_;
};

std::error_code ReadWhole(const Descriptor& file, std::string& bytes) {
  struct stat facts {};
  if (::fstat(file.Number(), &facts) != 0) return Error(errno);
  if (!S_ISREG(facts.st_mode)) return Error(EISDIR);
  if (facts.st_size > LargestFile) return Error(EFBIG);
  bytes.resize(static_cast<std::size_t>(facts.st_size));
  std::size_t taken = 0;
  while (taken < bytes.size()) {
    const ssize_t read = ::read(file.Number(), bytes.data() + taken, bytes.size() - taken);
    if (read < 0 && errno == EINTR) continue;
    if (read < 0) return Error(errno);
    if (read == 0) break;
    taken += static_cast<std::size_t>(read);
  }
  bytes.resize(taken);
  return {};
}

std::error_code WriteWhole(const Descriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return Error(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

/// The file that a symbolic link leads to.
fs::path BehindLinks(fs::path file) {
  constexpr int LongestChain = 40;
  std::error_code error;
  for (int i = 0; i < LongestChain && fs::is_symlink(file, error); ++i) {
    file = file.parent_path() / fs::read_symlink(file, error);
  }
  return file;
}

/// Whether `file` is a link to nothing. What it led to may be on a disk that is away, so it is neither
/// missing nor replaced.
bool LeadsNowhere(const fs::path& file) {
  std::error_code error;
  return fs::is_symlink(file, error) && ::access(file.c_str(), F_OK) != 0 && errno == ENOENT;
}

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Why `target` must not or cannot be replaced by a file of the folder `from`.
std::error_code MayReplace(const fs::path& target, const fs::path& from) {
  // Renaming would get past the protection of a file. One that cannot be written is meant to stay, and the
  // content of one that cannot be read is not in what is about to replace it.
  if (::access(target.c_str(), R_OK | W_OK) != 0 && errno != ENOENT) return Error(errno);
  struct stat old {
  }, targetFolder{}, fromFolder{};
  if (::stat(target.c_str(), &old) == 0 && !S_ISREG(old.st_mode)) return Error(EISDIR);
  if (::stat(FolderOf(target).c_str(), &targetFolder) != 0 || ::stat(from.c_str(), &fromFolder) != 0)
    return Error(errno);
  if (targetFolder.st_dev != fromFolder.st_dev) return Error(EXDEV);
  return ErrorUnless(::access(FolderOf(target).c_str(), W_OK | X_OK) == 0);
}

std::error_code KeepPermissions(const Descriptor& file, const fs::path& target) {
  struct stat old {
  }, made{};
  if (::stat(target.c_str(), &old) != 0 || ::fstat(file.Number(), &made) != 0) return {};
  if (old.st_mode == made.st_mode) return {};
  return ErrorUnless(::fchmod(file.Number(), old.st_mode & 07777) == 0);
}

}  // namespace

FileKind PosixFileSystem::Ask(const fs::path& file) {
  struct stat facts {};
  if (::stat(file.c_str(), &facts) == 0) return S_ISREG(facts.st_mode) ? FileKind::File : FileKind::Other;
  return errno == ENOENT ? FileKind::Missing : FileKind::Unknown;
}

std::error_code PosixFileSystem::Read(const fs::path& file, std::string& bytes) {
  // Without O_NONBLOCK, opening a named pipe would wait for its other end.
  const Descriptor descriptor(file, O_RDONLY | O_NONBLOCK);
  if (descriptor.IsOpen()) return ReadWhole(descriptor, bytes);
  const int error = errno == ENOTDIR ? ENOENT : errno;
  return Error(error == ENOENT && LeadsNowhere(file) ? ENOLINK : error);
}

std::error_code PosixFileSystem::Prepare(const fs::path& temporary, std::string_view bytes,
                                         const fs::path& target, Flush flush) {
  std::error_code error;
  fs::create_directories(FolderOf(target), error);  // What it could not make, the next line notices.
  if (LeadsNowhere(target)) return Error(ENOLINK);
  const fs::path real = BehindLinks(target);
  error = MayReplace(real, FolderOf(temporary));
  if (error) return error;
  Descriptor file(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, 0666);
  if (!file.IsOpen()) return Error(errno);
  error = KeepPermissions(file, real);
  if (!error) error = WriteWhole(file, bytes);
  if (!error && flush == Flush::Now) error = ErrorUnless(::fsync(file.Number()) == 0);
  const std::error_code closing = file.Close();
  if (!error) error = closing;
  if (error) ::unlink(temporary.c_str());
  return error;
}

std::error_code PosixFileSystem::Replace(const fs::path& temporary, const fs::path& target) {
  return ErrorUnless(::rename(temporary.c_str(), BehindLinks(target).c_str()) == 0);
}

std::error_code PosixFileSystem::Delete(const fs::path& file) {
  return ErrorUnless(::unlink(file.c_str()) == 0 || errno == ENOENT);
}

void PosixFileSystem::FlushFoldersOf(const std::vector<fs::path>& files) {
  std::set<fs::path> flushed;
  for (const fs::path& file : files) {
    const fs::path path = FolderOf(BehindLinks(file));
    if (!flushed.insert(path).second) continue;
    const Descriptor folder(path, O_RDONLY | O_DIRECTORY);
    if (folder.IsOpen()) ::fsync(folder.Number());
  }
}

std::error_code PosixFileSystem::List(const fs::path& folder, std::vector<std::string>& names) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code typeError;
    if (entry->is_regular_file(typeError)) names.push_back(entry->path().filename().string());
  }
  return error == std::errc::no_such_file_or_directory ? std::error_code() : error;
}

int PosixFileSystem::Process() const {
  return ::getpid();
}

bool PosixFileSystem::IsRunning(int process) const {
  return ::kill(process, 0) == 0 || errno != ESRCH;
}

}  // namespace kickwell
