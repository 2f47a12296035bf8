// Files: the one place that knows how a file is read whole and replaced safely.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/desktop.h"
#include "data/text_encoding.h"

namespace kickwell {

/// How work on a file went.
struct [[nodiscard]] FileResult {
  std::string Failure;  ///< Which file and why, as a sentence for the user; empty when all went well.

  bool Ok() const { return Failure.empty(); }
};

/// The bytes of `file`; nothing when it is no regular file, is larger than any
/// that the program writes, or cannot be read to its end. Where there is such
/// a file all the same, `failure` is told why: what builds on its content must not replace it then.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file, FileResult* failure = nullptr);

/// The lines of `file`, under the same promises.
std::optional<Lines> ReadLines(const std::filesystem::path& file, FileResult* failure = nullptr);

/// Whether there is such a file, readable or not.
bool FileExists(const std::filesystem::path& file);

/// Whether there is certainly none: what cannot be asked is not known to be missing.
bool FileIsMissing(const std::filesystem::path& file);

/// Replaces `file` (through symbolic links, keeping its permissions) by `bytes`. Missing folders on the way
/// are made. The bytes go into a temporary file in `temporaryFolder` that is flushed to disk and renamed over
/// `file`: whatever happens, the old file or the new one is there whole. On failure the old one is.
FileResult WriteWholeFile(const std::filesystem::path& file, std::string_view bytes,
                          const std::filesystem::path& temporaryFolder);

/// Replaces `file` by `lines`, under the same promises.
FileResult WriteLines(const std::filesystem::path& file, const Lines& lines,
                      const std::filesystem::path& temporaryFolder);

/// The first half of WriteWholeFile: everything but the renaming, with `bytes` safely in `temporary`. Nothing
/// is left of that on failure.
FileResult PrepareFile(const std::filesystem::path& file, std::string_view bytes,
                       const std::filesystem::path& temporary);

/// The second half: `temporary` becomes `file`, for good once FlushFolderOf has been called on it.
FileResult MoveIntoPlace(const std::filesystem::path& temporary, const std::filesystem::path& file);

/// Makes what was renamed and deleted beside `file`, the real one behind symbolic links, last. A file system
/// that cannot has still renamed.
void FlushFolderOf(const std::filesystem::path& file);

/// Deletes `file`; a file that is not there is no failure.
FileResult DeleteFile(const std::filesystem::path& file);

/// The name of a temporary file of this process; `number` tells several from each other.
std::string TemporaryName(int number = 0);

/// Whether TemporaryName gives such a name in some process.
bool IsTemporaryName(std::string_view name);

/// Deletes the temporary files in `folder` of processes that are no more.
void DeleteLeftovers(const std::filesystem::path& folder);

/// Tells the user about a failure in an exclamation box; true when there is none to tell.
bool TellFailure(Desktop& desktop, const FileResult& result);

}  // namespace kickwell
