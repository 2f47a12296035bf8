// Names of files: which ones are safe to use, and folders listed in the order the user sees.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kickwell {

/// Whether a new file may bear `name` on every common desktop system: no path separator, none of : * ? " < >
/// |, no control character, no trailing dot or blank, not empty, no reserved device name (with or without an
/// extension), at most 255 bytes.
bool IsFileName(std::string_view name);

/// What the user is told of a name that fails IsFileName.
std::string FileNameRefusal(std::string_view name);

/// Whether `name` addresses an entry of its folder itself and nothing beyond it. Wider than IsFileName: a
/// file that the user made by hand under a name of this system can be read.
bool StaysInFolder(std::string_view name);

/// Whether `a` comes before `b` in a listing: alphabetical ignoring letter case in any script, then by exact
/// text.
bool ListedBefore(std::string_view a, std::string_view b);

/// The names of all regular files in `folder` that end in `extension`, in the order of
/// ListedBefore; a folder that cannot be read lists none.
std::vector<std::string> ListFiles(const std::filesystem::path& folder, std::string_view extension = "");

}  // namespace kickwell
