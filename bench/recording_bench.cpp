// A match recorded into a full league.
#include <filesystem>
#include <fstream>
#include <string>

#include "championship/fixtures.h"
#include "engine/file_recording.h"
#include "figures.h"
#include "folders.h"
#include "stand_ins.h"

namespace kickwell {
namespace {

/// The double round robin of 32 teams, all but the last fixture played.
Championship NearlyPlayedLeague() {
  SeededRandom random(1);
  Championship league{{ChampionshipKind::League, AtLimits}, TeamNames(MostTeamsOfGeneratedLeague), {}};
  for (const Pairing& fixture : LeagueFixture(league.Teams, random)) {
    league.Fixtures.push_back({Played, fixture.Home, fixture.Away, {}});
  }
  league.Fixtures.back().Status = NotPlayed;
  return league;
}

/// A league of 992 fixtures with 5,951 lines of results and 5,000 scorers, and its last match.
class FullLeague {
 public:
  FullLeague() {
    const Championship league = NearlyPlayedLeague();
    const Fixture& last = league.Fixtures.back();
    WriteLeague(Folder(), league, {.Scorers = 5000, .LogLines = 5951});
    std::filesystem::copy(Folder().Leagues(), Folder().Root / "Fresh");
    Session.Setup.Mode = MatchMode::League;
    Session.Setup.ChampionshipName = league.Id.Name;
    Session.Setup.MatchNumber = static_cast<int>(league.Fixtures.size());
    Session.Setup.Team1Name = Session.Side1.Team = Session.WinnerName = Session.ResultText = last.Home;
    Session.Setup.Team2Name = Session.Side2.Team = Session.LoserName = last.Away;
    Session.LastScoringTeam = last.Home;
    Session.Side1.Goals = Session.Side1.FinalGoals = Session.WinnerGoals = 1;
    Session.LastScorer = "Player 4999";
    Session.Venue = "Ground 12, Town";
  }

  const ProgramFolder& Folder() const { return folder_.Folder; }

  /// Times `work`, each time on the files as they were at first: recording makes the log longer.
  template <typename Work>
  void Time(benchmark::State& state, Work work) const {
    for ([[maybe_unused]] auto iteration : state) {
      state.PauseTiming();
      std::filesystem::copy(Folder().Root / "Fresh", Folder().Leagues(),
                            std::filesystem::copy_options::overwrite_existing);
      state.ResumeTiming();
      work();
    }
  }

  MatchSession Session;

 private:
  BenchFolder folder_;
};

void RecordMatch(benchmark::State& state) {
  const FullLeague league;
  SilentDesktop desktop;
  FileRecording recording(league.Folder(), desktop, [](const std::string&) {});
  league.Time(state, [&] {
    recording.StoreScorer(league.Session);
    recording.StoreResult(league.Session);
    recording.StoreLeagueResult(league.Session);
  });
}

void ReadAndWritePlainly(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(in.tellg()), '\0');
  in.seekg(0);
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  std::ofstream(file, std::ios::binary) << bytes;
}

/// Each of the league's files once, however often the recording needs it; the scorers twice, because they are
/// set aside before the first goal.
void ReadAndWriteLeague(benchmark::State& state) {
  const FullLeague league;
  league.Time(state, [&] {
    for (const char* extension : {".sco", ".sco", ".rec", ".lrs", ".leg"}) {
      ReadAndWritePlainly(league.Folder().Leagues() / (AtLimits + extension));
    }
  });
}

}  // namespace

void AddRecordingFigures(Figures& figures) {
  const std::string name = "A match with a goal recorded", floor = name + " (floor)";
  Figures::Register(name, RecordMatch);
  Figures::Register(floor, ReadAndWriteLeague);
  figures.AtMost(name, 16, floor);
}

}  // namespace kickwell
