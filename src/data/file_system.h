// All that the program asks of the operating system about files. Paths are those of the user's folders; what
// a system knows of links, permissions and flushing stays behind this interface.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kickwell {

enum class FileKind {
  Missing,  ///< There is certainly nothing of that name.
  File,     ///< A regular file, readable or not.
  Other,    ///< A folder, a device, or anything else that is no file.
  Unknown,  ///< The system does not say, for example because a disk is away.
};

/// Whether a call returns only when what it wrote is on the disk.
enum class Flush { Now, Never };

class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  virtual FileKind Ask(const std::filesystem::path& file) = 0;

  /// Reads the whole of `file` into `bytes`. Gives std::errc::no_such_file_or_directory when there is none,
  /// and another error when it is a link to nothing, no regular file, larger than any file of the program, or
  /// not readable to its end.
  virtual std::error_code Read(const std::filesystem::path& file, std::string& bytes) = 0;

  /// Writes `bytes` to `temporary`, so that Replace can put them in the place of `target`: with the
  /// permissions of an old `target`, and in a folder that exists, or is made. Refuses a `target` that is
  /// protected, that cannot be read, that is a link to nothing, or whose disk is another one than that of
  /// `temporary` (std::errc::cross_device_link). Leaves nothing of `temporary` on failure.
  virtual std::error_code Prepare(const std::filesystem::path& temporary, std::string_view bytes,
                                  const std::filesystem::path& target, Flush flush) = 0;

  /// Puts `temporary` in the place of `target`, through symbolic links, in one step. Durable once
  /// FlushFoldersOf has been called. On failure both are as before.
  virtual std::error_code Replace(const std::filesystem::path& temporary,
                                  const std::filesystem::path& target) = 0;

  /// Deletes a file, or the link to one. Success when there is none.
  virtual std::error_code Delete(const std::filesystem::path& file) = 0;

  /// Makes durable what was replaced and deleted beside each of `files`, or beside the file behind it where
  /// it is a link. Flushes each folder once, in the order of `files`. Errors are ignored: a disk that cannot
  /// flush a folder has still made the changes.
  virtual void FlushFoldersOf(const std::vector<std::filesystem::path>& files) = 0;

  /// Adds the names of all regular files in `folder` to `names`, in any order. A missing folder has none; one
  /// that cannot be read gives an error.
  virtual std::error_code List(const std::filesystem::path& folder, std::vector<std::string>& names) = 0;

  virtual int Process() const = 0;  ///< Identifies the running program, above 0.
  virtual bool IsRunning(int process) const = 0;
};

}  // namespace kickwell
