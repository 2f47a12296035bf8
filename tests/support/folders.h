// Program folders of a test's own, and the bytes of files.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "base/program.h"
#include "data/stadium_store.h"
#include "data/team_store.h"

namespace kickwell {

/// A fresh empty folder, gone with the test.
class TestFolder {
 public:
  TestFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "kickwell-XXXXXX").string();
    Folder.Root = ::mkdtemp(path.data());
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Folder.Root, ignored);
  }

  std::filesystem::path operator/(const std::string& name) const { return Folder.Root / name; }

  ProgramFolder Folder;
};

inline void WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

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

/// Writes teams of eleven of skill 80, whose players are called after them: "A0" to "A10".
inline void AddTeams(const TestFolder& folder, std::initializer_list<const char*> names) {
  for (const char* name : names) EXPECT_TRUE(SaveTeam(folder.Folder, MakeTeam(name, name)).Ok());
}

}  // namespace kickwell
