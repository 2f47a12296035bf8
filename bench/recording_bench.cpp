// A match recorded into a league at its limits.
#include <filesystem>
#include <string>

#include "engine/file_recording.h"
#include "figures.h"
#include "folders.h"
#include "stand_ins.h"

namespace kickwell {
namespace {

/// 992 fixtures with all but the last one played, 5,951 lines of results and 5,000 scorers.
class FullLeague {
 public:
  FullLeague() {
    Championship league = GeneratedLeague();
    for (Fixture& fixture : league.Fixtures) fixture.Status = Played;
    const Fixture& last = league.Fixtures.back();
    league.Fixtures.back().Status = NotPlayed;
    WriteLeague(Folder(), league, 5000, 5951);
    std::filesystem::copy(Folder().Leagues(), Folder().Root / "Fresh");
    Session.Setup.Mode = MatchMode::League;
    Session.Setup.ChampionshipName = league.Name;
    Session.Setup.MatchNumber = static_cast<int>(league.Fixtures.size());
    Session.Setup.Team1Name = Session.Side1.Team = Session.WinnerName = Session.ResultText = last.Home;
    Session.Setup.Team2Name = Session.Side2.Team = Session.LoserName = last.Away;
    Session.LastScoringTeam = last.Home;
    Session.Side1.Goals = Session.Side1.FinalGoals = Session.WinnerGoals = 1;
    Session.LastScorer = "Player 4999";
    Session.Venue = "Ground 12, Town";
  }

  /// Puts the files back to what they were: the log grows with each recording.
  void Refresh() const {
    std::filesystem::copy(Folder().Root / "Fresh", Folder().Leagues(),
                          std::filesystem::copy_options::overwrite_existing);
  }

  const ProgramFolder& Folder() const { return memory_.Folder; }

  MatchSession Session;

 private:
  MemoryFolder memory_;
};

void RecordMatch(benchmark::State& state) {
  const FullLeague league;
  SilentDesktop desktop;
  FileRecording recording(league.Folder(), desktop, [](const std::string&) {});
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    league.Refresh();
    state.ResumeTiming();
    recording.StoreScorer(league.Session);
    recording.StoreResult(league.Session);
    recording.StoreLeagueResult(league.Session);
  }
}

/// Each file of the league once, whatever the recording does with it.
void ReadAndWriteLeague(benchmark::State& state) {
  const FullLeague league;
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    league.Refresh();
    state.ResumeTiming();
    for (const char* extension : {".sco", ".rec", ".lrs", ".leg"}) {
      const std::filesystem::path file = league.Folder().Leagues() / (AtLimits + extension);
      WritePlainly(file, ReadPlainly(file));
    }
  }
}

}  // namespace

void AddRecordingFigures(Figures& figures) {
  figures.Add("A match with a goal recorded", {.Times = 3}, RecordMatch, ReadAndWriteLeague);
}

}  // namespace kickwell
