#include "support/memory_files.h"

#include <algorithm>
#include <iterator>

namespace kickwell {
namespace {

void Apply(const std::map<MemoryFiles::Path, std::optional<std::string>>& change,
           std::map<MemoryFiles::Path, std::string>& entries) {
  for (const auto& [path, bytes] : change) {
    entries.erase(path);
    if (bytes) entries.emplace(path, *bytes);
  }
}

bool IsWithin(const MemoryFiles::Path& file, const MemoryFiles::Path& folder) {
  return file != folder && std::ranges::mismatch(folder, file).in1 == folder.end();
}

}  // namespace

std::error_code MemoryFiles::Begin(const Path& file) {
  ++Operations;
  Touched.insert(file);
  if (Operations == StopAt) throw Stopped();
  const bool fails = FailAt > 0 && Operations >= FailAt && Operations - FailAt < FailCount;
  return fails ? Failure : std::error_code();
}

bool MemoryFiles::IsFolder(const Path& path) const {
  return std::ranges::any_of(entries_, [&](const auto& entry) { return IsWithin(entry.first, path); });
}

void MemoryFiles::Make(const Change& change) {
  Apply(change, entries_);
  unflushed_.push_back(change);
}

FileKind MemoryFiles::Ask(const Path& file) {
  if (Begin(file)) return FileKind::Unknown;
  if (entries_.contains(file)) return FileKind::File;
  return IsFolder(file) ? FileKind::Other : FileKind::Missing;
}

std::error_code MemoryFiles::Read(const Path& file, std::string& bytes) {
  if (const std::error_code error = Begin(file)) return error;
  if (Unreadable.contains(file)) return std::make_error_code(std::errc::permission_denied);
  if (IsFolder(file)) return std::make_error_code(std::errc::is_a_directory);
  const auto entry = entries_.find(file);
  if (entry == entries_.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
  bytes = entry->second;
  return {};
}

std::error_code MemoryFiles::Prepare(const Path& temporary, std::string_view bytes, const Path& target) {
  Touched.insert(target);
  try {
    if (const std::error_code error = Begin(temporary)) return error;
  } catch (const Stopped&) {
    Make({{temporary, std::string(bytes.substr(0, bytes.size() / 2))}});
    throw;
  }
  if (Unreadable.contains(target)) return std::make_error_code(std::errc::permission_denied);
  if (IsFolder(target)) return std::make_error_code(std::errc::is_a_directory);
  if (entries_.contains(target.parent_path())) return std::make_error_code(std::errc::not_a_directory);
  Make({{temporary, std::string(bytes)}});
  return {};
}

std::error_code MemoryFiles::Replace(const Path& temporary, const Path& target) {
  Touched.insert(target);
  if (const std::error_code error = Begin(temporary)) return error;
  const auto entry = entries_.find(temporary);
  if (entry == entries_.end()) return std::make_error_code(std::errc::no_such_file_or_directory);
  if (IsFolder(target)) return std::make_error_code(std::errc::is_a_directory);
  Make({{target, entry->second}, {temporary, std::nullopt}});
  return {};
}

std::error_code MemoryFiles::Delete(const Path& file) {
  if (const std::error_code error = Begin(file)) return error;
  if (IsFolder(file)) return std::make_error_code(std::errc::is_a_directory);
  if (entries_.contains(file)) Make({{file, std::nullopt}});
  return {};
}

void MemoryFiles::FlushFolderOf(const Path& file) {
  if (Begin(file.parent_path())) return;
  const auto isFlushed = [&](const auto& entry) { return entry.first.parent_path() == file.parent_path(); };
  for (Change& change : unflushed_) {
    Change flushed;
    std::ranges::copy_if(change, std::inserter(flushed, flushed.end()), isFlushed);
    Apply(flushed, durable_);
    std::erase_if(change, isFlushed);
  }
  std::erase_if(unflushed_, [](const Change& change) { return change.empty(); });
}

std::vector<std::string> MemoryFiles::List(const Path& folder) {
  Begin(folder);  // The contract knows no failure.
  std::vector<std::string> names;
  for (const auto& [file, bytes] : entries_) {
    if (file.parent_path() == folder) names.push_back(file.filename().string());
  }
  return names;
}

void MemoryFiles::Put(const Path& file, const std::string& bytes) {
  entries_[file] = durable_[file] = bytes;
}

std::string MemoryFiles::Bytes(const Path& file) const {
  const auto entry = entries_.find(file);
  return entry == entries_.end() ? std::string() : entry->second;
}

void MemoryFiles::Remove(const Path& file) {
  for (auto* const entries : {&entries_, &durable_}) {
    std::erase_if(*entries,
                  [&](const auto& entry) { return entry.first == file || IsWithin(entry.first, file); });
  }
}

void MemoryFiles::Restart() {
  FailAt = StopAt = Operations = 0;
  ++process_;
}

void MemoryFiles::CutPower(const std::set<std::size_t>& kept) {
  for (const std::size_t place : kept) Apply(unflushed_.at(place), durable_);
  entries_ = durable_;
  unflushed_.clear();
  Restart();
}

}  // namespace kickwell
