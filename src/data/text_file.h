// Text files: the one place that knows how bytes are encoded and how a file is replaced safely.
//
// Inside the program text is UTF-8. A lone surrogate of a UTF-16 file is kept as its three-byte form, so that
// it survives reading and writing.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/desktop.h"

namespace kickwell {

using Lines = std::vector<std::string>;

/// The lines of `file` without their ends; nothing when it is no readable regular file. Takes UTF-16 in
/// either byte order and UTF-8, with or without a byte-order mark, CR LF or LF, and a last line without an
/// end. Never fails on content: what cannot be decoded reads as U+FFFD.
std::optional<Lines> ReadLines(const std::filesystem::path& file);

/// How a change on disk went.
struct [[nodiscard]] FileResult {
  std::string Failure;  ///< Which file and why, as a sentence for the user; empty when all went well.

  bool Ok() const { return Failure.empty(); }
};

/// Replaces `file` (through symbolic links, keeping its permissions) by `lines` as UTF-16 little-endian with
/// the byte-order mark, CR LF after every line; a line break inside a line becomes a blank. Missing folders
/// on the way are made. The lines go into a temporary file in `temporaryFolder` that is flushed to disk and
/// renamed over `file`: whatever happens, the old file or the new one is there whole. On failure the old one
/// is.
FileResult WriteLines(const std::filesystem::path& file, const Lines& lines,
                      const std::filesystem::path& temporaryFolder);

/// Rewrites `file`, as WriteLines does, with its lines unchanged and those of `block` behind them, after an
/// empty line unless they are the first.
FileResult AppendBlock(const std::filesystem::path& file, const Lines& block,
                       const std::filesystem::path& temporaryFolder);

/// Deletes `file`; a file that is not there is no failure.
FileResult DeleteFile(const std::filesystem::path& file);

/// Tells the user about a failure in an exclamation box; true when there is none to tell.
bool Report(Desktop& desktop, const FileResult& result);

/// The code points of UTF-8 text; each byte that cannot be decoded gives U+FFFD.
std::u32string ToCodePoints(std::string_view text);

}  // namespace kickwell
