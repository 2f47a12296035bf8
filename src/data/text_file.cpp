#include "data/text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <system_error>

#include "data/file_names.h"

namespace kickwell {
namespace {

constexpr std::string_view TemporaryPrefix = "~kickwell-", TemporaryExtension = ".tmp";

constexpr off_t LargestFile = 1 << 28;  ///< Bytes: a thousand times the limits of any file.

/// An errno value, 0 for success.
using Error = int;

FileResult Result(const std::filesystem::path& file, const char* what, Error error) {
  if (error == 0) return {};
  return {"The file " + file.string() + what + std::generic_category().message(error) + "."};
}

FileResult SaveResult(const std::filesystem::path& file, Error error) {
  return Result(file, " can't be saved: ", error);
}

Error ReadWhole(int descriptor, std::string& bytes) {
  struct stat facts {};
  if (::fstat(descriptor, &facts) != 0) return errno;
  if (!S_ISREG(facts.st_mode)) return EISDIR;
  if (facts.st_size > LargestFile) return EFBIG;
  bytes.resize(static_cast<std::size_t>(facts.st_size));
  std::size_t taken = 0;
  while (taken < bytes.size()) {
    const ssize_t read = ::read(descriptor, bytes.data() + taken, bytes.size() - taken);
    if (read < 0 && errno == EINTR) continue;
    if (read < 0) return errno;
    if (read == 0) break;
    taken += static_cast<std::size_t>(read);
  }
  bytes.resize(taken);
  return 0;
}

Error WriteWhole(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return ::fsync(descriptor) == 0 ? 0 : errno;
}

/// Writes and flushes `temporary` with the permissions of `target`. Nothing is left of it on failure.
Error WriteTemporary(const std::filesystem::path& temporary, const std::filesystem::path& target,
                     std::string_view bytes) {
  const int descriptor =
      ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
  if (descriptor < 0) return errno;
  struct stat old {
  }, made{};
  Error error = 0;
  if (::stat(target.c_str(), &old) == 0 && ::fstat(descriptor, &made) == 0 && old.st_mode != made.st_mode &&
      ::fchmod(descriptor, old.st_mode & 07777) != 0) {
    error = errno;
  }
  if (error == 0) error = WriteWhole(descriptor, bytes);
  if (::close(descriptor) != 0 && error == 0) error = errno;
  if (error != 0) ::unlink(temporary.c_str());
  return error;
}

/// The file itself where `file` is a symbolic link, whether it exists or not.
std::filesystem::path BehindLinks(std::filesystem::path file) {
  constexpr int LongestChain = 40;
  std::error_code error;
  for (int i = 0; i < LongestChain && std::filesystem::is_symlink(file, error); ++i) {
    file = file.parent_path() / std::filesystem::read_symlink(file, error);
  }
  return file;
}

/// Renames; on failure the temporary file is still there.
Error Rename(const std::filesystem::path& temporary, const std::filesystem::path& target) {
  return ::rename(temporary.c_str(), target.c_str()) == 0 ? 0 : errno;
}

/// A folder on another disk cannot be renamed into; a copy beside the file can.
Error MoveToOtherDisk(const std::filesystem::path& temporary, const std::filesystem::path& target) {
  FileResult failure;
  const std::optional<std::string> bytes = ReadWholeFile(temporary, &failure);
  if (!bytes) return EIO;
  const std::filesystem::path beside = target.parent_path() / TemporaryName();
  Error error = WriteTemporary(beside, target, *bytes);
  if (error != 0) return error;
  error = Rename(beside, target);
  if (error == 0) FlushFolderOf(target);
  ::unlink(error == 0 ? temporary.c_str() : beside.c_str());
  return error;
}

/// The process whose temporary file this is; 0 when it is none.
pid_t ProcessOf(std::string_view name) {
  if (!name.starts_with(TemporaryPrefix) || !name.ends_with(TemporaryExtension)) return 0;
  name.remove_prefix(TemporaryPrefix.size());
  name.remove_suffix(std::min(name.size(), TemporaryExtension.size()));
  pid_t process = 0;
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto [dash, error] = std::from_chars(name.data(), end, process);
  if (error != std::errc() || process <= 0 || dash == end || *dash != '-') return 0;
  const auto [stop, numberError] = std::from_chars(dash + 1, end, number);
  return numberError == std::errc() && stop == end && number >= 0 ? process : 0;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::filesystem::path& file, FileResult* failure) {
  std::string bytes;
  // Without O_NONBLOCK the opening of a named pipe would wait for its other end.
  const int descriptor = ::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  Error error = descriptor < 0 ? errno : ReadWhole(descriptor, bytes);
  if (descriptor >= 0) ::close(descriptor);
  if (error == 0) return bytes;
  const bool missing = error == ENOENT || error == ENOTDIR;
  if (failure != nullptr && !missing) *failure = Result(file, " can't be read: ", error);
  return std::nullopt;
}

std::optional<Lines> ReadLines(const std::filesystem::path& file, FileResult* failure) {
  const std::optional<std::string> bytes = ReadWholeFile(file, failure);
  if (!bytes) return std::nullopt;
  return Decode(*bytes);
}

bool FileExists(const std::filesystem::path& file) {
  return ::access(file.c_str(), F_OK) == 0;
}

bool FileIsMissing(const std::filesystem::path& file) {
  return !FileExists(file) && errno == ENOENT;
}

FileResult WriteWholeFile(const std::filesystem::path& file, std::string_view bytes,
                          const std::filesystem::path& temporaryFolder) {
  const std::filesystem::path temporary = temporaryFolder / TemporaryName();
  FileResult result = PrepareFile(file, bytes, temporary);
  if (!result.Ok()) return result;
  result = MoveIntoPlace(temporary, file);
  if (result.Ok()) {
    FlushFolderOf(file);
  } else {
    ::unlink(temporary.c_str());
  }
  return result;
}

FileResult WriteLines(const std::filesystem::path& file, const Lines& lines,
                      const std::filesystem::path& temporaryFolder) {
  return WriteWholeFile(file, Encode(lines), temporaryFolder);
}

FileResult PrepareFile(const std::filesystem::path& file, std::string_view bytes,
                       const std::filesystem::path& temporary) {
  std::error_code ignored;
  std::filesystem::create_directories(file.parent_path(), ignored);
  const std::filesystem::path target = BehindLinks(file);
  // Renaming would get past the protection of a file. One that cannot be written is meant to stay, and one
  // that cannot be read has not been taken into what is about to replace it.
  if (FileExists(target) && ::access(target.c_str(), R_OK | W_OK) != 0) {
    return SaveResult(file, errno);
  }
  return SaveResult(file, WriteTemporary(temporary, target, bytes));
}

FileResult MoveIntoPlace(const std::filesystem::path& temporary, const std::filesystem::path& file) {
  const std::filesystem::path target = BehindLinks(file);
  Error error = Rename(temporary, target);
  if (error == EXDEV) error = MoveToOtherDisk(temporary, target);
  return SaveResult(file, error);
}

void FlushFolderOf(const std::filesystem::path& file) {
  const int descriptor = ::open(BehindLinks(file).parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

FileResult DeleteFile(const std::filesystem::path& file) {
  const Error error = ::unlink(file.c_str()) == 0 || errno == ENOENT ? 0 : errno;
  return Result(file, " can't be deleted: ", error);
}

std::string TemporaryName(int number) {
  return std::string(TemporaryPrefix) + std::to_string(::getpid()) + "-" + std::to_string(number) +
         std::string(TemporaryExtension);
}

bool IsTemporaryName(std::string_view name) {
  return ProcessOf(name) != 0;
}

void DeleteLeftovers(const std::filesystem::path& folder) {
  for (const std::string& name : ListFiles(folder, TemporaryExtension)) {
    const pid_t process = ProcessOf(name);
    if (process != 0 && ::kill(process, 0) != 0 && errno == ESRCH) ::unlink((folder / name).c_str());
  }
}

bool TellFailure(Desktop& desktop, const FileResult& result) {
  if (!result.Ok()) desktop.Warn(result.Failure);
  return result.Ok();
}

}  // namespace kickwell
