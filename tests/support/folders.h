// Program folders of a test's own.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "data/posix_file_system.h"
#include "data/program_folder.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/memory_files.h"

namespace kickwell {

/// A program folder in memory. Files are named by their path from it.
class TestFolder {
 public:
  std::filesystem::path operator/(const std::string& name) const { return Folder.Root / name; }

  void Write(const std::string& file, const std::string& bytes) { Files.Put(*this / file, bytes); }
  std::string Bytes(const std::string& file) const {
    return Exists(file) ? Files.All().at(*this / file) : "";
  }
  bool Exists(const std::string& file) const { return Files.All().contains(*this / file); }
  void Remove(const std::string& file) { Files.Remove(*this / file); }

  MemoryFiles Files;
  ProgramFolder Folder{"/kickwell", Files};
};

/// A program folder on the disk that is deleted with the test.
class DiskFolder {
 public:
  DiskFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "kickwell-XXXXXX").string();
    Folder.Root = ::mkdtemp(path.data());
  }
  DiskFolder(const DiskFolder&) = delete;
  DiskFolder& operator=(const DiskFolder&) = delete;
  ~DiskFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Folder.Root, ignored);
  }

  std::filesystem::path operator/(const std::string& name) const { return Folder.Root / name; }

  void Write(const std::string& file, const std::string& bytes) const {
    std::filesystem::create_directories((*this / file).parent_path());
    std::ofstream(*this / file, std::ios::binary) << bytes;
  }
  std::string Bytes(const std::string& file) const {
    std::ifstream stream(*this / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }
  bool Exists(const std::string& file) const { return std::filesystem::exists(*this / file); }
  void Remove(const std::string& file) const { std::filesystem::remove_all(*this / file); }

  PosixFileSystem Files;
  ProgramFolder Folder{{}, Files};
};

/// ASCII text as the program writes it: each "\n" is a line end.
inline std::string AsWritten(std::string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char c : text) {
    if (c == '\n') bytes.append("\r\0", 2);
    bytes.push_back(c);
    bytes.push_back('\0');
  }
  return bytes;
}

/// A team of eleven in 4-4-2 whose players are called PREFIX0 (the goalkeeper) to PREFIX10, all of one skill.
inline Team MakeTeam(const std::string& name, const std::string& prefix, const std::string& skill = "80") {
  constexpr const char* Positions[] = {"GK",  "DFL", "DFC", "DFC", "DFR", "MFL",
                                       "MFC", "MFC", "MFR", "FDL", "FDR"};
  Team team{name, "75", {}};
  for (const char* position : Positions) {
    team.Players.push_back({prefix + std::to_string(team.Players.size()), skill, position});
  }
  return team;
}

}  // namespace kickwell
