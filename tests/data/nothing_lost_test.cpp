// Nothing that users keep is lost: whatever changes files is stopped, cut off from power and made to fail at
// each of its operations.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>

#include "championship/championship_play.h"
#include "data/championship_store.h"
#include "data/tell_failure.h"
#include "data/text_file.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "engine/file_recording.h"
#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"

namespace kickwell {
namespace {

using Files = std::map<std::filesystem::path, std::string>;

/// A program folder with two clubs, a stadium, a league and a knock-out in the middle of play.
struct Season : TestFolder {
  Season() {
    for (const char* name : {"Rovers", "United"}) Write(std::string("Teams/") + name, AsWritten("75\n"));
    Write("stadiums.sim", AsWritten("1\nNeutral\nThe Mill\nLeat\n500\n"));
    Write("Leagues/Cup.leg", AsWritten("Cup\n2\nRovers\nUnited\n1\nNP\nRovers\nUnited\n"));
    Write("Leagues/Cup.rec", AsWritten("Rovers\n0\n0\n0\n0\n0\n0\n0\nUnited\n0\n0\n0\n0\n0\n0\n0\n"));
    Write("Leagues/Cup.sco", AsWritten("Ann\nRovers\n1\n"));
    Write("Leagues/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
    Write("Tournies/Cup.trn", AsWritten("1\nCup\n2\nRovers\nUnited\nNP\nRovers\nUnited\nWinner 1\n"));
    Write("Tournies/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
  }

  bool HasJournal() const { return Exists(std::string(JournalName)); }
};

bool HasTemporary(const Season& season) {
  return std::ranges::any_of(
      season.Files.All(), [](const auto& file) { return IsTemporaryName(file.first.filename().string()); });
}

constexpr int ForEver = std::numeric_limits<int>::max();

/// A match of the championship "Cup" that Rovers have won by 2-0.
MatchSession Won(MatchMode mode) {
  MatchSession s;
  s.Setup = MakeSetup(mode);
  s.Setup.ChampionshipName = "Cup";
  s.Setup.MatchNumber = 1;
  s.Side1.Team = s.WinnerName = s.ResultText = s.LastScoringTeam = "Rovers";
  s.Side2.Team = s.LoserName = "United";
  s.Side1.Goals = s.Side1.FinalGoals = s.WinnerGoals = 2;
  s.LastScorer = "Ann";
  return s;
}

void RecordMatch(const ProgramFolder& folder, Desktop& desktop, MatchMode mode) {
  FileRecording recording(folder, desktop, [](const std::string&) {});
  recording.StoreResult(Won(mode));
  recording.StoreLeagueResult(Won(mode));
}

void RecordGoal(const ProgramFolder& folder, Desktop& desktop) {
  FileRecording(folder, desktop, [](const std::string&) {}).StoreScorer(Won(MatchMode::League));
}

void AddPlayer(const ProgramFolder& folder, Desktop& desktop) {
  TeamEditor editor(folder, desktop, std::string(NoChampionship));
  editor.Text2 = "New";
  editor.Text4 = "50";
  editor.Command8_Click();
}

void AddStadium(const ProgramFolder& folder, Desktop& desktop) {
  StadEditor editor(folder, desktop);
  editor.Text1 = editor.Text2 = "New";
  editor.Text3 = "50";
  editor.Command2_Click();
}

const ChampionshipId League{ChampionshipKind::League, "Cup"}, KnockOut{ChampionshipKind::KnockOut, "Cup"};

/// Everything that changes what users keep.
struct Change {
  const char* Name;
  std::function<void(const ProgramFolder& folder, Desktop& desktop)> Make;
};
const Change LeagueMatch{"league match", [](const auto& folder, Desktop& desktop) {
                           RecordMatch(folder, desktop, MatchMode::League);
                         }};
const Change ReplacedLeague{"replaced league", [](const auto& folder, Desktop& desktop) {
                              TellFailure(desktop, ReplaceChampionship(folder, {League, {"Rovers"}, {}}));
                            }};
const Change Changes[] = {
    LeagueMatch,
    ReplacedLeague,
    {"cup match",
     [](const auto& folder, Desktop& desktop) { RecordMatch(folder, desktop, MatchMode::KnockOut); }},
    {"goal", RecordGoal},
    {"player", AddPlayer},
    {"stadium", AddStadium},
    {"deleted cup", [](const auto& folder,
                       Desktop& desktop) { TellFailure(desktop, DeleteChampionship(folder, KnockOut)); }},
};

class NothingLostTest : public testing::Test {
 protected:
  Files After(const Change& change) {
    Season season;
    change.Make(season.Folder, desktop_);
    return season.Files.All();
  }

  /// Makes the change until it stops at an operation; false when it was over before.
  bool StopsAt(int operation, Season& season, const Change& change) {
    season.Files.StopAt = operation;
    try {
      change.Make(season.Folder, desktop_);
    } catch (const MemoryFiles::Stopped&) {
      return true;
    }
    return false;
  }

  /// Starts the program in the folder; false when it stops at an operation.
  static bool Starts(Season& season, int stopAt = 0) {
    season.Files.StopAt = stopAt;
    try {
      EXPECT_TRUE(CleanUp(season.Folder).Ok());
    } catch (const MemoryFiles::Stopped&) {
      return false;
    }
    return true;
  }

  FakeDesktop desktop_;
  const Files before_ = Season().Files.All();
};

/// Which of `count` changes of folders survive a power cut: none, all, each alone, and all but one.
std::vector<std::set<std::size_t>> Survivors(std::size_t count) {
  std::set<std::size_t> all;
  for (std::size_t i = 0; i < count; ++i) all.insert(i);
  std::vector<std::set<std::size_t>> survivors = {{}, all};
  for (std::size_t i = 0; i < count; ++i) {
    survivors.push_back({i});
    survivors.push_back(all);
    survivors.back().erase(i);
  }
  return survivors;
}

TEST_F(NothingLostTest, APowerCutLeavesTheFilesBeforeOrAfterTheChange) {
  for (const Change& change : Changes) {
    const Files after = After(change);
    ASSERT_NE(after, before_) << change.Name;
    int unchanged = 0, changed = 0;
    for (int operation = 1;; ++operation) {
      Season stopped;
      if (!StopsAt(operation, stopped, change)) break;
      for (const auto& survivors : Survivors(stopped.Files.Unflushed())) {
        Season season;
        StopsAt(operation, season, change);
        season.Files.CutPower(survivors);
        Starts(season);
        unchanged += season.Files.All() == before_ ? 1 : 0;
        changed += season.Files.All() == after ? 1 : 0;
        EXPECT_TRUE(season.Files.All() == before_ || season.Files.All() == after)
            << change.Name << " cut off at operation " << operation;
      }
    }
    EXPECT_GT(unchanged, 0) << change.Name;
    EXPECT_GT(changed, 0) << change.Name;
  }
}

TEST_F(NothingLostTest, WhatIsSavedSurvivesAPowerCutRightAfterIt) {
  for (const Change& change : Changes) {
    Season season;
    change.Make(season.Folder, desktop_);
    season.Files.CutPower({});
    Starts(season);
    EXPECT_EQ(season.Files.All(), After(change)) << change.Name;
  }
}

TEST_F(NothingLostTest, AStartThatStopsOrFailsCanBeRepeated) {
  for (const Change& change : {LeagueMatch, ReplacedLeague}) {
    const Files after = After(change);
    int journals = 0;
    for (int operation = 1;; ++operation) {
      Season stopped;
      if (!StopsAt(operation, stopped, change)) break;
      if (!stopped.HasJournal()) continue;
      ++journals;
      bool finished = false;
      for (int again = 1; !finished; ++again) {
        Season season;
        StopsAt(operation, season, change);
        season.Files.Restart();
        finished = Starts(season, again);
        season.Files.Restart();
        Starts(season);
        EXPECT_EQ(season.Files.All(), after)
            << change.Name << " " << operation << ", start stopped at " << again;

        for (const int failures : {1, 2}) {
          Season failing;
          StopsAt(operation, failing, change);
          failing.Files.Restart();
          failing.Files.FailAt = again;
          failing.Files.FailCount = failures;
          const FileResult failed = CleanUp(failing.Folder);
          failing.Files.Restart();
          Starts(failing);
          EXPECT_EQ(failing.Files.All(), after) << change.Name << " " << operation << ": " << failed.Failure;
        }
      }
    }
    EXPECT_GT(journals, 4) << change.Name;
  }
}

TEST_F(NothingLostTest, AFailingDiskIsToldAndTheChangeCanBeMadeAgain) {
  for (const Change& change : Changes) {
    const Files after = After(change);
    Season counting;
    change.Make(counting.Folder, desktop_);
    for (int failAt = 1; failAt <= counting.Files.Operations; ++failAt) {
      for (const int failures : {1, 2, 3, ForEver}) {
        SCOPED_TRACE(std::string(change.Name) + ", operation " + std::to_string(failAt));
        Season season;
        season.Files.FailAt = failAt;
        season.Files.FailCount = failures;
        desktop_.Taken();
        change.Make(season.Folder, desktop_);
        const bool told = std::ranges::any_of(
            desktop_.Messages, [](const std::string& text) { return text.starts_with("!: "); });
        const bool unfinished = season.HasJournal();
        EXPECT_TRUE(failures > 1 || unfinished || !HasTemporary(season));
        season.Files.Restart();
        Starts(season);
        EXPECT_TRUE(season.Files.All() == after || (season.Files.All() == before_ && !unfinished));
        EXPECT_TRUE(told || season.Files.All() == after);
        if (season.Files.All() == before_) change.Make(season.Folder, desktop_);
        EXPECT_EQ(season.Files.All(), after);
      }
    }
  }
}

TEST_F(NothingLostTest, AnEndedChangeIsNotMadeAgain) {
  const auto play = [this](Season& season) {
    ReplacedLeague.Make(season.Folder, desktop_);  // Deletes the scorers;
    RecordGoal(season.Folder, desktop_);           // the next goal must not be deleted, too.
  };
  Season played;
  play(played);
  for (const auto& survivors : Survivors(played.Files.Unflushed())) {
    Season season;
    play(season);
    season.Files.CutPower(survivors);
    Starts(season);
    EXPECT_EQ(season.Files.All(), played.Files.All());
  }
}

TEST_F(NothingLostTest, NothingBuildsOnAnUnfinishedChange) {
  Season season;
  season.Write("~kickwell-7-1.tmp", AsWritten("new\n"));
  season.Write("Leagues/Cup.rec/in the way", "");
  season.Write(std::string(JournalName), "Kickwell journal 1\n~kickwell-7-1.tmp\nLeagues/Cup.rec\nEnd\n");
  const Files before = season.Files.All();

  const ChampionshipPlay play(ChampionshipKind::League, season.Folder, desktop_, [](const std::string&) {},
                              {});
  EXPECT_EQ(play.FixtureList.Count(), 0);
  RecordGoal(season.Folder, desktop_);
  RecordMatch(season.Folder, desktop_, MatchMode::League);
  EXPECT_FALSE(AppendStandings(season.Folder, League, "City").Ok());
  EXPECT_FALSE(WriteChampionship(season.Folder, {KnockOut, {}, {}}).Ok());
  EXPECT_EQ(season.Files.All(), before);
  EXPECT_EQ(desktop_.Messages.size(), 4U);  // One for the play settings, one for the goal, two for the match.
}

}  // namespace
}  // namespace kickwell
