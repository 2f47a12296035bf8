// Nothing that the user keeps is lost: whatever changes files is interrupted and made to fail at each of its
// operations.
#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <map>

#include "data/file_names.h"
#include "data/journal.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "engine/file_recording.h"
#include "support/fakes.h"
#include "support/file_faults.h"
#include "support/folders.h"
#include "support/matches.h"

namespace kickwell {
namespace {

namespace fs = std::filesystem;

/// The files by their path from the program folder.
using Files = std::map<std::string, std::string>;

Files FilesIn(const ProgramFolder& folder) {
  Files files;
  for (const auto& entry : fs::recursive_directory_iterator(folder.Root)) {
    if (!entry.is_regular_file()) continue;
    files[fs::relative(entry.path(), folder.Root).string()] = ReadBytes(entry.path());
  }
  return files;
}

void Record(const ProgramFolder& folder, Desktop& desktop, MatchMode mode) {
  MatchSession s;
  s.Setup = MakeSetup(mode);
  s.Setup.ChampionshipName = "Cup";
  s.Setup.MatchNumber = 1;
  s.Side1.Team = s.WinnerName = s.ResultText = "Rovers";
  s.Side2.Team = s.LoserName = "United";
  s.Side1.Goals = s.Side1.FinalGoals = s.WinnerGoals = 2;
  FileRecording recording(folder, desktop, [](const std::string&) {});
  recording.StoreResult(s);
  recording.StoreLeagueResult(s);
}

/// Everything that changes what the user keeps.
const std::pair<const char*, std::function<void(const ProgramFolder&, Desktop&)>> Changes[] = {
    {"league match",
     [](const auto& folder, Desktop& desktop) { Record(folder, desktop, MatchMode::League); }},
    {"cup match", [](const auto& folder, Desktop& desktop) { Record(folder, desktop, MatchMode::KnockOut); }},
    {"goal",
     [](const auto& folder, Desktop& desktop) {
       MatchSession s;
       s.Setup = MakeSetup(MatchMode::League);
       s.Setup.ChampionshipName = "Cup";
       s.LastScorer = "Ann";
       FileRecording(folder, desktop, [](const std::string&) {}).StoreScorer(s);
     }},
    {"team",
     [](const auto& folder, Desktop& desktop) {
       TeamEditor editor(folder, desktop, std::string(NoChampionship));
       editor.Text2 = "New";
       editor.Text4 = "50";
       editor.Command8_Click();
     }},
    {"stadium",
     [](const auto& folder, Desktop& desktop) {
       StadEditor editor(folder, desktop);
       editor.Text1 = editor.Text2 = "New";
       editor.Text3 = "50";
       editor.Command2_Click();
     }},
    {"championship",
     [](const auto& folder, Desktop& desktop) {
       TellFailure(desktop, ReplaceChampionship(folder, {ChampionshipKind::League, "Cup", {"Rovers"}, {}}));
     }},
    {"deleted championship",
     [](const auto& folder, Desktop& desktop) {
       TellFailure(desktop, DeleteChampionship(folder, ChampionshipKind::KnockOut, "Cup"));
     }},
};

class NothingLostTest : public testing::Test {
 protected:
  NothingLostTest() {
    for (const char* name : {"Rovers", "United"}) {
      EXPECT_TRUE(SaveTeam(start_.Folder, MakeTeam(name, name)).Ok());
    }
    WriteBytes(start_ / "stadiums.sim", AsWritten("1\nNeutral\nThe Mill\nLeat\n500\n"));
    WriteBytes(start_ / "Leagues/Cup.leg", AsWritten("Cup\n2\nRovers\nUnited\n1\nNP\nRovers\nUnited\n"));
    WriteBytes(start_ / "Leagues/Cup.rec",
               AsWritten("Rovers\n0\n0\n0\n0\n0\n0\n0\nUnited\n0\n0\n0\n0\n0\n0\n0\n"));
    WriteBytes(start_ / "Leagues/Cup.sco", AsWritten("Ann\nRovers\n1\n"));
    WriteBytes(start_ / "Leagues/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
    WriteBytes(start_ / "Tournies/Cup.trn",
               AsWritten("1\nCup\n2\nRovers\nUnited\nNP\nRovers\nUnited\nWinner 1\n"));
    WriteBytes(start_ / "Tournies/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
    before_ = FilesIn(start_.Folder);
  }

  /// The program folder as it was at the beginning.
  const ProgramFolder& Fresh() { return As(start_.Folder); }
  const ProgramFolder& As(const ProgramFolder& other) {
    fs::remove_all(folder_.Folder.Root);
    fs::copy(other.Root, folder_.Folder.Root, fs::copy_options::recursive);
    return folder_.Folder;
  }

  TestFolder start_, folder_;
  FakeDesktop desktop_;
  Files before_;
};

TEST_F(NothingLostTest, AKilledProcessLeavesTheFilesBeforeOrAfterTheChange) {
  for (const auto& [name, act] : Changes) {
    act(Fresh(), desktop_);
    const Files after = FilesIn(folder_.Folder);
    ASSERT_NE(after, before_) << name;
    for (const bool powerCut : {false, true}) {
      int changed = 0, operation = 1;
      const auto change = [&, &act = act] { act(folder_.Folder, desktop_); };
      for (; Fresh(), KilledAt(operation, powerCut, change); ++operation) {
        EXPECT_TRUE(CleanUp(folder_.Folder).Ok()) << name << operation;
        const Files found = FilesIn(folder_.Folder);
        changed += found == after ? 1 : 0;
        EXPECT_TRUE(found == before_ || found == after) << name << " killed at operation " << operation;
      }
      EXPECT_GT(operation, 8) << name;  // It was killed, again and again,
      EXPECT_GT(changed, 0) << name;    // before the change and behind it.
      EXPECT_LT(changed, operation - 1) << name;
    }
  }
  EXPECT_EQ(desktop_.Messages.size(), 2U);  // Nothing but the questions of the editors.
}

TEST_F(NothingLostTest, AStartThatIsKilledOrFailsCanBeRepeated) {
  for (const auto& [name, act] : {Changes[0], Changes[5]}) {
    const TestFolder crashed;
    const auto start = [this] { EXPECT_TRUE(CleanUp(folder_.Folder).Ok()); };
    const auto change = [&, &act = act] { act(folder_.Folder, desktop_); };
    act(Fresh(), desktop_);
    const Files after = FilesIn(folder_.Folder);
    int unfinished = 0;
    for (int operation = 1; Fresh(), KilledAt(operation, false, change); ++operation) {
      if (!fs::exists(folder_ / std::string(JournalName))) continue;
      ++unfinished;
      fs::remove_all(crashed.Folder.Root);
      fs::copy(folder_.Folder.Root, crashed.Folder.Root, fs::copy_options::recursive);
      for (int again = 1; As(crashed.Folder), KilledAt(again, false, start); ++again) {
        start();
        EXPECT_EQ(FilesIn(folder_.Folder), after) << name << operation << " and " << again;
        As(crashed.Folder);
        Faults() = {.FailAt = again, .Error = EIO};
        const FileResult failed = CleanUp(folder_.Folder);
        Faults() = {};
        start();
        EXPECT_EQ(FilesIn(folder_.Folder), after) << name << operation << ": " << failed.Failure;
      }
    }
    EXPECT_GT(unfinished, 4) << name;
  }
}

TEST_F(NothingLostTest, EachStageIsOnTheDiskBeforeTheNext) {
  Faults() = {};
  Record(Fresh(), desktop_, MatchMode::League);
  const Texts paths = Faults().Paths;
  const std::string root = folder_.Folder.Root.string();
  auto place = paths.begin();
  for (const std::string& path :
       {TemporaryName(3), std::string(), std::string(JournalName), std::string(),
        std::string("Leagues/Cup.leg"), std::string("Leagues"), std::string(JournalName), std::string()}) {
    place = std::find(place, paths.end(), path.empty() ? root : root + "/" + path);
    ASSERT_NE(place, paths.end()) << path;  // A folder is named when it is flushed.
    ++place;
  }
}

TEST_F(NothingLostTest, AFailingDiskIsToldAndTheChangeCanBeMadeAgain) {
  for (const auto& [name, act] : Changes) {
    Faults() = {};
    act(Fresh(), desktop_);
    const int operations = Faults().Operations;
    const Files after = FilesIn(folder_.Folder);
    for (int failAt = 1; failAt <= operations; ++failAt) {
      for (const auto& [error, failOn] : {std::pair(ENOSPC, false), {EACCES, false}, {EIO, true}}) {
        Fresh();
        desktop_.Taken();
        Faults() = {.FailAt = failAt, .FailOn = failOn, .Error = error};
        act(folder_.Folder, desktop_);
        Faults() = {};
        const std::string where = std::string(name) + " " + std::to_string(failAt);
        const bool unfinished = fs::exists(folder_ / std::string(JournalName));
        const auto isWarning = [](const std::string& text) { return text.starts_with("!: The file "); };
        const bool told = std::any_of(desktop_.Messages.begin(), desktop_.Messages.end(), isWarning);
        EXPECT_TRUE(CleanUp(folder_.Folder).Ok()) << where;
        Files found = FilesIn(folder_.Folder);
        const auto left = std::erase_if(found, [](const auto& file) { return IsTemporaryName(file.first); });
        EXPECT_TRUE(left == 0 || failOn) << where;
        EXPECT_TRUE(found == after || (found == before_ && !unfinished)) << where;
        EXPECT_TRUE(told || found == after) << where;
        if (found == before_) {
          act(folder_.Folder, desktop_);
          EXPECT_EQ(FilesIn(folder_.Folder), after) << where;
        }
      }
    }
  }
}

}  // namespace
}  // namespace kickwell
