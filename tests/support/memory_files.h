// A file system in memory. It counts the operations on files, lets any of them fail or stop the program, and
// forgets what was not flushed when the power is cut.
#pragma once

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

  /// Thrown by the operation at which the program stops.
  struct Stopped {};

  FileKind Ask(const Path& file) override;
  std::error_code Read(const Path& file, std::string& bytes) override;
  std::error_code Prepare(const Path& temporary, std::string_view bytes, const Path& target) override;
  std::error_code Replace(const Path& temporary, const Path& target) override;
  std::error_code Delete(const Path& file) override;
  void FlushFolderOf(const Path& file) override;
  std::vector<std::string> List(const Path& folder) override;
  int Process() const override { return process_; }
  bool IsRunning(int process) const override { return process == process_; }

  // What a test arranges and looks at; none of it counts as an operation.
  void Put(const Path& file, const std::string& bytes);  ///< On the disk for good.
  std::string Bytes(const Path& file) const;             ///< Empty without such a file.
  bool Has(const Path& file) const { return entries_.contains(file); }
  void Remove(const Path& file);  ///< A file, or a folder with all that is in it.
  const std::map<Path, std::string>& All() const { return entries_; }

  /// Starts the program again after it stopped, as another process.
  void Restart();

  /// How many changes of folders a power cut could lose now, each on its own.
  std::size_t Unflushed() const { return unflushed_.size(); }

  /// Restarts after a power cut that lost every change of a folder which was neither flushed nor `kept`.
  void CutPower(const std::set<std::size_t>& kept);

  std::set<Path> Unreadable;  ///< Files that exist and can neither be read nor replaced.
  int Operations = 0;         ///< Since the last restart.
  int FailAt = 0;             ///< The first operation that fails, from 1; 0 for none.
  int FailCount = 1;          ///< How many fail from there on.
  std::error_code Failure = std::make_error_code(std::errc::io_error);
  int StopAt = 0;            ///< The operation at which the program stops, a write half done; 0 for none.
  std::set<Path> Touched{};  ///< All paths that operations have named.

 private:
  /// Entries of folders that one operation changes: to the content of a file, or to nothing.
  using Change = std::map<Path, std::optional<std::string>>;

  std::error_code Begin(const Path& file);
  void Make(const Change& change);
  bool IsFolder(const Path& path) const;

  std::map<Path, std::string> entries_, durable_;
  std::vector<Change> unflushed_;
  int process_ = 1000;
};

}  // namespace kickwell
