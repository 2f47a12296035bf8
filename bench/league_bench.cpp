// A whole league of 32 teams: 992 instant matches from the play settings to the recorded files, without
// windows.
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "championship/championship_play.h"
#include "championship/fixtures.h"
#include "engine/file_recording.h"
#include "engine/goal.h"
#include "engine/match.h"
#include "figures.h"
#include "folders.h"
#include "setup/selection.h"
#include "stand_ins.h"

namespace kickwell {
namespace {

constexpr std::size_t LeagueTeams = MostTeamsOfGeneratedLeague;
constexpr std::size_t Matches = LeagueTeams * (LeagueTeams - 1);
constexpr std::size_t Hundred = 100;
constexpr std::array Companions = {".rec", ".lrs", ".leg"};  ///< What each result changes.
const char* const Scorers = ".sco";                          ///< What each goal changes.

/// A program folder with the 32 teams, their stadiums and the fixtures.
class NewLeague {
 public:
  NewLeague() {
    for (int i = 0; i < MostTeamsOfGeneratedLeague; ++i) WriteTeam(Folder(), TeamName(i), 18);
    WriteStadiums(Folder(), MostTeamsOfGeneratedLeague);
    if (!WriteChampionship(Folder(), GeneratedLeague()).Ok()) std::abort();
  }

  const ProgramFolder& Folder() const { return memory_.Folder; }
  std::filesystem::path File(const char* extension) const {
    return Folder().Leagues() / (AtLimits + extension);
  }

 private:
  MemoryFolder memory_;
};

using AfterMatch = std::function<void(const MatchSession&)>;

/// All fixtures in one range, each through the screens' logic.
void PlayLeague(const ProgramFolder& folder, const AfterMatch& afterMatch) {
  SilentDesktop desktop;
  SeededRandom random(1);
  ChampionshipPlay* playing = nullptr;
  const auto openMatch = [&](const MatchSetup& setup) {
    FileRecording recording(folder, desktop, [&](const std::string& fileName) { playing->Load(fileName); });
    Match match(folder, desktop, random, recording, setup);
    match.instant_Click();
    afterMatch(match.Session());
  };
  const auto openSelection = [&](const MatchSetup& setup) {
    Selection selection(folder, desktop, openMatch, setup);
    selection.Timer1_Timer();
    selection.Command1_Click();
  };
  ChampionshipPlay play(
      ChampionshipKind::League, folder, desktop, [](const std::string&) {}, openSelection);
  playing = &play;
  play.From_Click(0);
  play.To_Click(play.To.Count() - 1);
  play.Command1_Click();
}

/// Takes the time from match to match and gives the whole, with three of its hundreds as counters.
class Laps {
 public:
  void Next() { times_.push_back(Clock::now()); }

  void TellFailure(benchmark::State& state) const {
    if (times_.size() != Matches + 1) std::abort();  // Not every match was played.
    state.SetIterationTime(Between(0, Matches));
    state.counters["first"] = Between(0, Hundred);
    state.counters["middle"] = Between((Matches - Hundred) / 2, (Matches + Hundred) / 2);
    state.counters["last"] = Between(Matches - Hundred, Matches);
  }

 private:
  using Clock = std::chrono::steady_clock;

  double Between(std::size_t from, std::size_t to) const {
    return std::chrono::duration<double>(times_[to] - times_[from]).count();
  }

  std::vector<Clock::time_point> times_{Clock::now()};
};

void PlayWholeLeague(benchmark::State& state) {
  for ([[maybe_unused]] auto iteration : state) {
    const NewLeague league;
    Laps laps;
    PlayLeague(league.Folder(), [&laps](const MatchSession&) { laps.Next(); });
    laps.TellFailure(state);
  }
}

/// What a match read and left behind: how long each file was then.
struct MatchBytes {
  std::string Home, Away;
  int Goals;
  std::uintmax_t ScorersSize;
  std::array<std::uintmax_t, Companions.size()> CompanionSizes;
};

struct LeagueBytes {
  std::vector<MatchBytes> Each;
  std::string FinalScorers;
  std::array<std::string, Companions.size()> FinalCompanions;
};

LeagueBytes NoteBytes() {
  LeagueBytes bytes;
  const NewLeague league;
  PlayLeague(league.Folder(), [&](const MatchSession& session) {
    std::error_code none;  // There are no scorers before the first goal.
    const std::uintmax_t scorers = std::filesystem::file_size(league.File(Scorers), none);
    MatchBytes match{session.Setup.Team1Name,
                     session.Setup.Team2Name,
                     session.Side1.Goals + session.Side2.Goals,
                     none ? 0 : scorers,
                     {}};
    for (std::size_t i = 0; i < Companions.size(); ++i) {
      match.CompanionSizes.at(i) = std::filesystem::file_size(league.File(Companions.at(i)));
    }
    bytes.Each.push_back(match);
  });
  bytes.FinalScorers = ReadPlainly(league.File(Scorers));
  for (std::size_t i = 0; i < Companions.size(); ++i) {
    bytes.FinalCompanions.at(i) = ReadPlainly(league.File(Companions.at(i)));
  }
  return bytes;
}

void ReadAndWrite(const std::filesystem::path& file, const std::string& final, std::uintmax_t size) {
  benchmark::DoNotOptimize(ReadPlainly(file));
  WritePlainly(file, final.substr(0, size));
}

/// The goal draws of each match, the reading of its teams and stadiums, and the plain reading and writing of
/// the files that its goals and its result change, as long as they were then.
void PlainLeague(benchmark::State& state) {
  static const LeagueBytes bytes = NoteBytes();
  const int range = GoalRangeOf(70);
  for ([[maybe_unused]] auto iteration : state) {
    const NewLeague league;
    SeededRandom random(1);
    Laps laps;
    for (const MatchBytes& match : bytes.Each) {
      for (int i = 0; i < 2 * 89 * 60; ++i) benchmark::DoNotOptimize(random.Int(range));
      const std::filesystem::path teams = league.Folder().Teams();
      ReadAllPlainly({teams / match.Home, teams / match.Away, league.Folder().Stadiums()});
      for (int i = 0; i < match.Goals; ++i) {
        ReadAndWrite(league.File(Scorers), bytes.FinalScorers, match.ScorersSize);
      }
      for (std::size_t i = 0; i < Companions.size(); ++i) {
        ReadAndWrite(league.File(Companions.at(i)), bytes.FinalCompanions.at(i), match.CompanionSizes.at(i));
      }
      benchmark::DoNotOptimize(ReadPlainly(league.File(".leg")));  // By the play settings.
      laps.Next();
    }
    laps.TellFailure(state);
  }
}

}  // namespace

void AddLeagueFigures(Figures& figures) {
  const std::string name = "A league of 32 teams, 992 matches";
  const std::string floor = name + " (floor)";
  for (const auto& [benchmark, work] : {std::pair(name, &PlayWholeLeague), std::pair(floor, &PlainLeague)}) {
    Figures::Register(benchmark, work)->Iterations(1)->Repetitions(10)->UseManualTime();
  }
  figures.Compare(name, {name}, {floor}, {});
  for (const std::string part : {"first", "middle", "last"}) {
    figures.Compare("  its " + part + " hundred matches", {name, part}, {floor, part}, {});
  }
  figures.Compare("  its last hundred (floor: its first hundred)", {name, "last"}, {name, "first"}, {});
}

}  // namespace kickwell
