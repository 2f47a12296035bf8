// The file system of POSIX systems.
#pragma once

#include "data/file_system.h"

namespace kickwell {

class PosixFileSystem final : public FileSystem {
 public:
  FileKind Ask(const std::filesystem::path& file) override;
  std::error_code Read(const std::filesystem::path& file, std::string& bytes) override;
  std::error_code Prepare(const std::filesystem::path& temporary, std::string_view bytes,
                          const std::filesystem::path& target, Flush flush) override;
  std::error_code Replace(const std::filesystem::path& temporary,
                          const std::filesystem::path& target) override;
  std::error_code Delete(const std::filesystem::path& file) override;
  void FlushFoldersOf(const std::vector<std::filesystem::path>& files) override;
  std::error_code List(const std::filesystem::path& folder, std::vector<std::string>& names) override;
  int Process() const override;
  bool IsRunning(int process) const override;
};

}  // namespace kickwell
