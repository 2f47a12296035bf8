#include "data/text_file.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "data/file_names.h"

namespace kickwell {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view TemporaryPrefix = "~kickwell-", TemporaryExtension = ".tmp";

std::string Reason(std::error_code error) {
  if (error == std::errc::cross_device_link) return "Its folder is on another disk than the program";
  if (error == std::errc::no_link) return "It is a link to a file that is not there";
  return error.message();
}

/// "The file X can't be `done`: " and why.
FileResult Result(const fs::path& file, const char* done, std::error_code error) {
  if (!error) return {};
  return {"The file " + file.string() + " can't be " + done + ": " + Reason(error) + "."};
}

/// The process whose temporary file this is; 0 when it is none.
int ProcessOf(std::string_view name) {
  if (!name.starts_with(TemporaryPrefix) || !name.ends_with(TemporaryExtension)) return 0;
  name.remove_prefix(TemporaryPrefix.size());
  name.remove_suffix(std::min(name.size(), TemporaryExtension.size()));
  int process = 0, number = 0;
  const char* const end = name.data() + name.size();
  const auto [dash, error] = std::from_chars(name.data(), end, process);
  if (error != std::errc() || process <= 0 || dash == end || *dash != '-') return 0;
  const auto [stop, numberError] = std::from_chars(dash + 1, end, number);
  return numberError == std::errc() && stop == end && number >= 0 ? process : 0;
}

}  // namespace

Loaded<std::optional<std::string>> ReadBytesOf(FileSystem& files, const fs::path& file) {
  std::string bytes;
  const std::error_code error = files.Read(file, bytes);
  if (!error) return {std::move(bytes)};
  if (error == std::errc::no_such_file_or_directory) return {};
  return {std::nullopt, Result(file, "read", error)};
}

Loaded<std::optional<std::string>> ReadText(FileSystem& files, const fs::path& file) {
  const auto [bytes, result] = ReadBytesOf(files, file);
  if (!bytes) return {std::nullopt, result};
  return {Decode(*bytes)};
}

bool FileExists(FileSystem& files, const fs::path& file) {
  const FileKind kind = files.Ask(file);
  return kind == FileKind::File || kind == FileKind::Other;
}

bool FileIsMissing(FileSystem& files, const fs::path& file) {
  return files.Ask(file) == FileKind::Missing;
}

FileResult ReplaceFile(FileSystem& files, const fs::path& file, std::string_view bytes,
                       const fs::path& temporaryFolder, Flush flush) {
  const fs::path temporary = temporaryFolder / TemporaryName(files);
  FileResult result = PrepareFile(files, temporary, bytes, file, flush);
  if (!result.Ok()) return result;
  result = MoveIntoPlace(files, temporary, file);
  if (!result.Ok()) files.Delete(temporary);  // Where that fails too, a later start tries again.
  if (result.Ok() && flush == Flush::Now) files.FlushFoldersOf({file});
  return result;
}

FileResult PrepareFile(FileSystem& files, const fs::path& temporary, std::string_view bytes,
                       const fs::path& file, Flush flush) {
  return Result(file, "saved", files.Prepare(temporary, bytes, file, flush));
}

FileResult MoveIntoPlace(FileSystem& files, const fs::path& temporary, const fs::path& file) {
  return Result(file, "saved", files.Replace(temporary, file));
}

FileResult DeleteFile(FileSystem& files, const fs::path& file) {
  return Result(file, "deleted", files.Delete(file));
}

std::string TemporaryName(const FileSystem& files, int number) {
  return std::string(TemporaryPrefix) + std::to_string(files.Process()) + "-" + std::to_string(number) +
         std::string(TemporaryExtension);
}

bool IsTemporaryName(std::string_view name) {
  return ProcessOf(name) != 0;
}

void DeleteLeftovers(FileSystem& files, const fs::path& folder) {
  std::vector<std::string> names;
  if (files.List(folder, names)) return;
  for (const std::string& name : names) {
    const int process = ProcessOf(name);
    if (process != 0 && !files.IsRunning(process)) files.Delete(folder / name);
  }
}

}  // namespace kickwell
