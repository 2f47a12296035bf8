// What tests of screens share: a program folder of their own and stand-ins for what screens are handed.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"

namespace kickwell {

template <typename ProgramFolderOfTest>
class ScreenTestIn : public testing::Test {
 protected:
  void Write(const std::string& file, const std::string& text) { folder_.Write(file, text); }
  void Remove(const std::string& file) { folder_.Remove(file); }
  std::string Bytes(const std::string& file) const { return folder_.Bytes(file); }
  bool Exists(const std::string& file) const { return folder_.Exists(file); }

  /// Keeps a file of a folder in memory from being read; gives the message that the user is to see.
  std::string MakeUnreadable(const std::string& file) {
    folder_.Files.Unreadable.insert(folder_ / file);
    return "!: The file " + (folder_ / file).string() + " can't be read: Permission denied.";
  }

  /// Writes teams of eleven of skill 80, whose players are called after them: "A0" to "A10".
  void AddTeams(std::initializer_list<const char*> names) {
    for (const char* name : names) EXPECT_TRUE(SaveTeam(folder_.Folder, MakeTeam(name, name)).Ok());
  }

  /// Writes the stadium of Albion and a neutral one.
  void AddStadiums() { Write("stadiums.sim", "2\nAlbion\nMill\nLeat\n1000\nNeutral\nBowl\nOss\n500\n"); }

  ProgramFolderOfTest folder_;
  FakeDesktop desktop_;
  FakeRecording recording_;
  FakeScreen screen_;
  QuietRandom random_;
};

using ScreenTest = ScreenTestIn<TestFolder>;
using WindowTest = ScreenTestIn<DiskFolder>;  ///< Dialogs for files show the disk.

}  // namespace kickwell
