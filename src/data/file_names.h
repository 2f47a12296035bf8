// Names of files: which ones are safe to use, and folders listed in the order the user sees.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/file_result.h"
#include "data/file_system.h"
#include "data/program_folder.h"

namespace kickwell {

/// Whether every common desktop system allows a new file of that name: no path separator, none of : * ? " < >
/// |, no control character, no trailing dot or blank, not empty, no reserved device name (with or without an
/// extension), at most 255 bytes.
bool IsFileName(std::string_view name);

/// What the user reads about a name that fails IsFileName.
std::string FileNameRefusal(std::string_view name);

/// Whether `name` is an entry of its folder itself and nothing beyond it. Wider than IsFileName: what users
/// name by hand as this system allows can be read.
bool StaysInFolder(std::string_view name);

/// Whether teams and championships can be listed. A missing folder has none.
FileResult FoldersCanBeRead(const ProgramFolder& folder);

/// The names of all regular files in `folder` that end in `extension`, in the order of ListedBefore; none
/// when the folder cannot be read.
std::vector<std::string> ListFiles(FileSystem& files, const std::filesystem::path& folder,
                                   std::string_view extension = "");

}  // namespace kickwell
