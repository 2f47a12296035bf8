// Files read whole and replaced whole, with failures as sentences for the user.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "data/file_result.h"
#include "data/file_system.h"
#include "data/text_encoding.h"

namespace kickwell {

/// The bytes of `file`; none when there is no such file. If the file exists but cannot be read, the result
/// says why: do not replace it by anything that builds on its content.
Loaded<std::optional<std::string>> ReadBytesOf(FileSystem& files, const std::filesystem::path& file);

/// The lines of `file`, likewise.
Loaded<std::optional<std::string>> ReadText(FileSystem& files, const std::filesystem::path& file);

/// Whether there is anything of that name, readable or not.
bool FileExists(FileSystem& files, const std::filesystem::path& file);

/// Whether there is certainly nothing of that name.
bool FileIsMissing(FileSystem& files, const std::filesystem::path& file);

/// Replaces `file`, through symbolic links and with its permissions, or makes it, together with missing
/// folders on the way. The bytes go to a temporary file in `temporaryFolder`, are flushed to the disk, and
/// replace `file` by renaming. Whatever happens, the old file or the new one is there whole; on failure, the
/// old one. With Flush::Never a power cut may leave anything.
FileResult ReplaceFile(FileSystem& files, const std::filesystem::path& file, std::string_view bytes,
                       const std::filesystem::path& temporaryFolder, Flush flush = Flush::Now);

/// The first half of ReplaceFile: everything but the renaming. On failure nothing is left of `temporary`.
FileResult PrepareFile(FileSystem& files, const std::filesystem::path& temporary, std::string_view bytes,
                       const std::filesystem::path& file, Flush flush = Flush::Now);

/// The second half: `temporary` becomes `file`, for good once the folder has been flushed.
FileResult MoveIntoPlace(FileSystem& files, const std::filesystem::path& temporary,
                         const std::filesystem::path& file);

/// Deletes `file`. Succeeds when there is none.
FileResult DeleteFile(FileSystem& files, const std::filesystem::path& file);

/// The name of a temporary file of this process; `number` tells several apart.
std::string TemporaryName(const FileSystem& files, int number = 0);

/// Whether TemporaryName gives such a name in any process.
bool IsTemporaryName(std::string_view name);

/// Deletes the temporary files in `folder` of processes that have ended.
void DeleteLeftovers(FileSystem& files, const std::filesystem::path& folder);

}  // namespace kickwell
