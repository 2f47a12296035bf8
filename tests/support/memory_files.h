// A file system in memory. It counts the operations on files, lets any of them fail or stop the program, and
// forgets what was not flushed when the power is cut.
#pragma once

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "data/file_system.h"

namespace kickwell {

class MemoryFiles final : public FileSystem {
 public:
  using Path = std::filesystem::path;
  using Entries = std::map<Path, std::string>;

  /// Thrown by the operation at which the program stops.
  struct Stopped {};

  FileKind Ask(const Path& file) override {
    if (Begin(file)) return FileKind::Unknown;
    if (entries_.contains(file)) return FileKind::File;
    return IsFolder(file) ? FileKind::Other : FileKind::Missing;
  }

  std::error_code Read(const Path& file, std::string& bytes) override {
    if (const std::error_code error = Begin(file)) return error;
    if (Unreadable.contains(file)) return std::make_error_code(std::errc::permission_denied);
    if (IsFolder(file)) return std::make_error_code(std::errc::is_a_directory);
    if (!entries_.contains(file)) return std::make_error_code(std::errc::no_such_file_or_directory);
    bytes = entries_.at(file);
    return {};
  }

  std::error_code Prepare(const Path& temporary, std::string_view bytes, const Path& target,
                          Flush flush) override {
    Touched.insert(target);
    try {
      if (const std::error_code error = Begin(temporary)) return error;
    } catch (const Stopped&) {
      Make({{temporary, std::string(bytes.substr(0, bytes.size() / 2))}});
      throw;
    }
    if (Unreadable.contains(target)) return std::make_error_code(std::errc::permission_denied);
    if (IsFolder(target)) return std::make_error_code(std::errc::is_a_directory);
    Make({{temporary, std::string(bytes)}});
    if (flush == Flush::Now) {
      ++Flushes;
      torn_.erase(temporary);
    } else {
      torn_.insert(temporary);
      unflushed_.back() = {{temporary, "torn"}};
    }
    return {};
  }

  std::error_code Replace(const Path& temporary, const Path& target) override {
    Touched.insert(target);
    if (const std::error_code error = Begin(temporary)) return error;
    if (!entries_.contains(temporary)) return std::make_error_code(std::errc::no_such_file_or_directory);
    if (IsFolder(target)) return std::make_error_code(std::errc::is_a_directory);
    Make({{target, entries_.at(temporary)}, {temporary, std::nullopt}});
    if (torn_.erase(temporary) > 0) unflushed_.back()[target] = "torn";
    return {};
  }

  std::error_code Delete(const Path& file) override {
    if (const std::error_code error = Begin(file)) return error;
    if (IsFolder(file)) return std::make_error_code(std::errc::is_a_directory);
    if (entries_.contains(file)) Make({{file, std::nullopt}});
    return {};
  }

  void FlushFoldersOf(const std::vector<Path>& files) override {
    std::set<Path> flushed;
    for (const Path& file : files) {
      if (flushed.insert(file.parent_path()).second) FlushFolder(file.parent_path());
    }
  }

  std::error_code List(const Path& folder, std::vector<std::string>& names) override {
    if (const std::error_code error = Begin(folder)) return error;
    for (const auto& [file, bytes] : entries_) {
      if (file.parent_path() == folder) names.push_back(file.filename().string());
    }
    return {};
  }

  int Process() const override { return process_; }
  bool IsRunning(int process) const override { return process == process_; }

  // What a test arranges and looks at; none of it counts as an operation.

  /// Writes a file, on the disk for good.
  void Put(const Path& file, const std::string& bytes) { entries_[file] = durable_[file] = bytes; }
  const Entries& All() const { return entries_; }

  /// Removes a file, or a folder with all that is in it.
  void Remove(const Path& file) {
    for (Entries* const entries : {&entries_, &durable_}) {
      std::erase_if(*entries,
                    [&](const auto& entry) { return entry.first == file || IsWithin(entry.first, file); });
    }
  }

  /// Starts the program again after it stopped, as another process.
  void Restart() {
    FailAt = StopAt = Operations = 0;
    ++process_;
  }

  /// How many changes of folders a power cut could lose now, each on its own.
  std::size_t Unflushed() const { return unflushed_.size(); }

  /// Restarts after a power cut that lost every change of a folder which was neither flushed nor `kept`.
  void CutPower(const std::set<std::size_t>& kept) {
    for (const std::size_t place : kept) Apply(unflushed_.at(place), durable_);
    entries_ = durable_;
    unflushed_.clear();
    Restart();
  }

  std::set<Path> Unreadable;  ///< Files that exist and can neither be read nor replaced.
  int Operations = 0;         ///< Since the last restart.
  int Flushes = 0;            ///< Waits for the disk.
  int FailAt = 0;             ///< The first operation that fails, from 1; 0 for none.
  int FailCount = 1;          ///< How many fail from there on.
  std::error_code Failure = std::make_error_code(std::errc::io_error);
  int StopAt = 0;            ///< The operation at which the program stops, a write half done; 0 for none.
  std::set<Path> Touched{};  ///< All paths that operations have named.

 private:
  /// Entries of folders that one operation changes: to the content of a file, or to nothing.
  using Change = std::map<Path, std::optional<std::string>>;

  static void Apply(const Change& change, Entries& entries) {
    for (const auto& [path, bytes] : change) {
      entries.erase(path);
      if (bytes) entries.emplace(path, *bytes);
    }
  }

  static bool IsWithin(const Path& file, const Path& folder) {
    return file != folder && std::ranges::mismatch(folder, file).in1 == folder.end();
  }

  bool IsFolder(const Path& path) const {
    return std::ranges::any_of(entries_, [&](const auto& entry) { return IsWithin(entry.first, path); });
  }

  std::error_code Begin(const Path& file) {
    ++Operations;
    Touched.insert(file);
    if (Operations == StopAt) throw Stopped();
    const bool fails = FailAt > 0 && Operations >= FailAt && Operations - FailAt < FailCount;
    return fails ? Failure : std::error_code();
  }

  void FlushFolder(const Path& folder) {
    if (Begin(folder)) return;
    ++Flushes;
    const auto isFlushed = [&](const auto& entry) { return entry.first.parent_path() == folder; };
    for (Change& change : unflushed_) {
      Change flushed;
      std::ranges::copy_if(change, std::inserter(flushed, flushed.end()), isFlushed);
      Apply(flushed, durable_);
      std::erase_if(change, isFlushed);
    }
    std::erase_if(unflushed_, [](const Change& change) { return change.empty(); });
  }

  void Make(const Change& change) {
    Apply(change, entries_);
    unflushed_.push_back(change);
  }

  Entries entries_, durable_;
  std::vector<Change> unflushed_;
  std::set<Path> torn_;  ///< Temporary files whose content a power cut would not leave whole.
  int process_ = 1000;
};

}  // namespace kickwell
