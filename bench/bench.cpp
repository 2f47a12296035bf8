// What the program's work costs, each beside its floor in the same run.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "championship/championship_play.h"
#include "championship/fixtures.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "data/championship_store.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "engine/goal.h"
#include "engine/instant.h"
#include "engine/match.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "ui/championship_play_window.h"
#include "ui/match_window.h"
#include "ui/opening_window.h"
#include "ui/selection_window.h"
#include "ui/settings_window.h"

namespace kickwell {
namespace {

class NoRecording : public Recording {
 public:
  void StoreScorer(const MatchSession& /*session*/) override {}
  void StoreResult(const MatchSession& /*session*/) override {}
  void StoreLeagueResult(const MatchSession& /*session*/) override {}
};

class SilentDesktop : public Desktop {
 public:
  void Inform(const std::string& /*text*/) override {}
  void Warn(const std::string& /*text*/) override {}
  bool Ask(const std::string& /*text*/) override { return true; }
  std::optional<std::string> AskSaveName(const std::string& /*proposedName*/) override {
    return std::nullopt;
  }
  void LoadSounds() override {}
  void PlaySound(Sound /*sound*/) override {}
};

constexpr int Strength = 80;
constexpr int SecondsOfMatch = 89 * 60;

/// The floor of an instant match: its goal draws and nothing else.
void BareDraws(benchmark::State& state) {
  SeededRandom random(1);
  const int range = GoalRange(Strength);
  for ([[maybe_unused]] auto iteration : state) {
    for (int i = 0; i < 2 * SecondsOfMatch; ++i) benchmark::DoNotOptimize(random.Int(range));
  }
}
BENCHMARK(BareDraws)->Unit(benchmark::kMicrosecond);

void InstantMatch(benchmark::State& state) {
  SeededRandom random(1);
  NoRecording recording;
  for ([[maybe_unused]] auto iteration : state) {
    MatchSession session;
    session.Setup.Team1Name = session.Side1.Team = "Rovers";
    session.Setup.Team2Name = session.Side2.Team = "United";
    session.Setup.Team1Attackers = session.Setup.Team2Attackers = {"A", "B", "C", "D", "E", "F"};
    session.Side1.GoalRange = session.Side2.GoalRange = GoalRange(Strength);
    Announcement announcement(session, random, recording);
    Instant(session, random, announcement, recording).instant_Click();
    benchmark::DoNotOptimize(session.Summary.Entries.data());
  }
}
BENCHMARK(InstantMatch)->Unit(benchmark::kMicrosecond);

MatchSetup FullMatch() {
  MatchSetup setup;
  setup.SimulationType = SimulationKind::FullSimulation;
  setup.Team1Name = "Rovers";
  setup.Team2Name = "United";
  setup.Team1Strength = setup.Team2Strength = Strength;
  setup.Team1Attackers = setup.Team2Attackers = {"A", "B", "C", "D", "E", "F"};
  setup.Team1Outfield = setup.Team2Outfield = {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J"};
  return setup;
}

/// Makes the draws of a source and writes their ranges down.
class NotingRandom : public Random {
 public:
  int Int(int n) override {
    Ranges.push_back(n);
    return source_.Int(n);
  }

  std::vector<int> Ranges;

 private:
  SeededRandom source_{1};
};

class NoScreen : public MatchScreen {
 public:
  void Show() override {}
  void PauseFunction() override {}
};

constexpr int MinutesOfHalf = 45;

/// One half without a window. The session stays small: the next one starts anew.
void PlayHalf(Random& random) {
  SilentDesktop desktop;
  NoRecording recording;
  NoScreen screen;
  Match match({}, desktop, random, recording, FullMatch());
  match.halftime_Click();
  for (int minute = 0; minute < MinutesOfHalf; ++minute) match.Timer1_Timer(screen);
  benchmark::DoNotOptimize(match.Session().Commentary.Entries.data());
}

/// The floor of a simulated half: exactly its draws, of as many different halves as there are iterations.
void BareDrawsOfHalf(benchmark::State& state) {
  NotingRandom noting;
  constexpr int Halves = 200;
  std::vector<std::size_t> ends;
  for (int i = 0; i < Halves; ++i) {
    PlayHalf(noting);
    ends.push_back(noting.Ranges.size());
  }
  SeededRandom random(1);
  std::size_t half = 0;
  for ([[maybe_unused]] auto iteration : state) {
    for (std::size_t i = half == 0 ? 0 : ends[half - 1]; i < ends[half]; ++i) {
      benchmark::DoNotOptimize(random.Int(noting.Ranges[i]));
    }
    half = (half + 1) % Halves;
  }
}
BENCHMARK(BareDrawsOfHalf)->Unit(benchmark::kMicrosecond);

void SimulatedHalf(benchmark::State& state) {
  SeededRandom random(1);
  for ([[maybe_unused]] auto iteration : state) PlayHalf(random);
}
BENCHMARK(SimulatedHalf)->Unit(benchmark::kMicrosecond);

/// No goals, and a remark in every second: a match that goes on to minute 120 with thousands of lines.
class TalkativeRandom : public Random {
 public:
  int Int(int n) override { return n == 4 || n == 30 || n == GoalRange(Strength) ? 0 : source_.Int(n); }

 private:
  SeededRandom source_{1};
};

/// What a tick costs with the real window, its drawing included, before and after so many minutes of play.
void TickInWindow(benchmark::State& state) {
  const auto lastMinute = static_cast<int>(state.range(0));
  int lines = 0;
  for ([[maybe_unused]] auto iteration : state) {
    SilentDesktop desktop;
    NoRecording recording;
    TalkativeRandom random;
    MatchSetup setup = FullMatch();
    setup.ExtraTime = true;
    Match match({}, desktop, random, recording, setup);
    MatchWindow window(match, {}, nullptr);
    window.show();
    match.Option1_Click(0);
    auto* const timer = window.findChild<QTimer*>("Timer1");
    const auto tick = [timer] { QMetaObject::invokeMethod(timer, "timeout"); };
    while (match.Session().Minute < lastMinute) {
      match.halftime_Click();
      tick();
    }
    const auto start = std::chrono::steady_clock::now();
    tick();
    benchmark::DoNotOptimize(window.grab());
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    lines = match.Session().Commentary.Count();
  }
  state.counters["lines"] = lines;
}
BENCHMARK(TickInWindow)->Arg(1)->Arg(119)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A program folder with 1,000 teams, two of them with squads of 1,000 players, and 1,000 stadiums.
class LargeFolder {
 public:
  LargeFolder()
      : Folder{std::filesystem::temp_directory_path() / ("kickwell-bench-" + std::to_string(getpid()))} {
    constexpr int Many = 1000;
    std::filesystem::create_directories(Folder.Teams());
    std::vector<Stadium> stadiums;
    for (int i = 0; i < Many; ++i) {
      Team team{"Team " + std::to_string(i), "70", {}};
      const int players = i < 2 ? Many : 0;
      for (int k = 0; k < players; ++k) {
        team.Players.push_back({"Player " + std::to_string(k), "70",
                                k == 0       ? "GK"
                                : k % 2 == 0 ? "MFC"
                                             : "FDL"});
      }
      if (!SaveTeam(Folder, team).Ok()) std::abort();
      stadiums.push_back({team.Name, "Ground " + std::to_string(i), "Town", "5000"});
    }
    if (!SaveStadiums(Folder, stadiums).Ok()) std::abort();
  }
  LargeFolder(const LargeFolder&) = delete;
  LargeFolder& operator=(const LargeFolder&) = delete;
  ~LargeFolder() { std::filesystem::remove_all(Folder.Root); }

  static const ProgramFolder& Get() {
    static const LargeFolder folder;
    return folder.Folder;
  }

  ProgramFolder Folder;
};

void ListThousandTeams(benchmark::State& state) {
  const ProgramFolder& folder = LargeFolder::Get();
  for ([[maybe_unused]] auto iteration : state) benchmark::DoNotOptimize(ListTeams(folder));
}
BENCHMARK(ListThousandTeams)->Unit(benchmark::kMillisecond);

/// From the opening of a screen to its picture.
void OpenSettingsWindow(benchmark::State& state) {
  SilentDesktop desktop;
  const ProgramFolder& folder = LargeFolder::Get();
  for ([[maybe_unused]] auto iteration : state) {
    Settings settings(folder, desktop, {});
    SettingsWindow window(settings, nullptr);
    benchmark::DoNotOptimize(window.grab());
  }
}
BENCHMARK(OpenSettingsWindow)->Unit(benchmark::kMillisecond);

void OpenSelectionWindow(benchmark::State& state) {
  SilentDesktop desktop;
  const ProgramFolder& folder = LargeFolder::Get();
  MatchSetup setup;
  setup.Team1Name = "Team 0";
  setup.Team2Name = "Team 1";
  for ([[maybe_unused]] auto iteration : state) {
    Selection selection(folder, desktop, {}, setup);
    selection.Timer1_Timer();
    SelectionWindow window(selection, nullptr);
    benchmark::DoNotOptimize(window.grab());
  }
}
BENCHMARK(OpenSelectionWindow)->Unit(benchmark::kMillisecond);

/// A league at its limits but for one match: 992 fixtures with 991 played, 5,951 log lines, 5,000 scorers.
class FullLeague {
 public:
  FullLeague() : Folder{std::filesystem::path("/dev/shm") / ("kickwell-bench-" + std::to_string(getpid()))} {
    Championship league{ChampionshipKind::League, "Full", {}, {}};
    for (int i = 0; i < MostTeamsOfGeneratedLeague; ++i) league.Teams.push_back("Team " + std::to_string(i));
    SeededRandom random(1);
    for (const Pairing& fixture : LeagueFixture(league.Teams, random)) {
      league.Fixtures.push_back({Played, fixture.Home, fixture.Away, {}});
    }
    league.Fixtures.back().Status = NotPlayed;
    constexpr int Scorers = 5000;
    std::vector<ScorerRow> scorers;
    scorers.reserve(Scorers);
    for (int i = 0; i < Scorers; ++i) scorers.push_back({"Player " + std::to_string(i), "Team 1", 3});
    Lines log(5951, "Total Attendence: 40632 (83%)");
    const bool written =
        WriteChampionship(Folder, league).Ok() &&
        ChangeFiles(Folder, {ChangedStandings("Full", ReadStandings(Folder, "Full", league.Teams))}).Ok() &&
        WriteScorers(Folder, ChampionshipKind::League, "Full", scorers).Ok() &&
        WriteLines(Folder.Leagues() / "Full.lrs", log, Folder.Root).Ok();
    if (!written) std::abort();
    std::filesystem::copy(Folder.Leagues(), Folder.Root / "Fresh");
    Session.Setup.Mode = MatchMode::League;
    Session.Setup.ChampionshipName = "Full";
    Session.Setup.MatchNumber = static_cast<int>(league.Fixtures.size());
    Session.Setup.Team1Name = Session.Side1.Team = Session.WinnerName = league.Fixtures.back().Home;
    Session.Setup.Team2Name = Session.Side2.Team = Session.LoserName = league.Fixtures.back().Away;
    Session.LastScorer = "Player 4999";
  }
  FullLeague(const FullLeague&) = delete;
  FullLeague& operator=(const FullLeague&) = delete;
  ~FullLeague() { std::filesystem::remove_all(Folder.Root); }

  /// Puts the log back to its length: it grows with each recording.
  void Refresh() const {
    std::filesystem::copy(Folder.Root / "Fresh", Folder.Leagues(),
                          std::filesystem::copy_options::overwrite_existing);
  }

  ProgramFolder Folder;
  MatchSession Session;
};

/// The floor of a recording: every file that it reads and writes, as often as it does, as plain bytes, in a
/// folder that needs no disk.
void PlainReadingAndWriting(benchmark::State& state) {
  const FullLeague league;
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    league.Refresh();
    state.ResumeTiming();
    for (const char* extension : {".sco", ".leg", ".rec", ".lrs", ".leg"}) {
      const std::filesystem::path file = league.Folder.Leagues() / (std::string("Full") + extension);
      std::ifstream in(file, std::ios::binary);
      std::string bytes(std::filesystem::file_size(file), '\0');
      in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      if (bytes.empty()) std::abort();
      std::ofstream(file, std::ios::binary) << bytes;
    }
  }
}
BENCHMARK(PlainReadingAndWriting)->Unit(benchmark::kMillisecond);

/// A goal and the result of the last match.
void RecordMatch(benchmark::State& state) {
  const FullLeague league;
  SilentDesktop desktop;
  FileRecording recording(league.Folder, desktop, [](const std::string&) {});
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    league.Refresh();
    state.ResumeTiming();
    recording.StoreScorer(league.Session);
    recording.StoreResult(league.Session);
    recording.StoreLeagueResult(league.Session);
  }
}
BENCHMARK(RecordMatch)->Unit(benchmark::kMillisecond);

void OpenPlaySettings(benchmark::State& state) {
  const FullLeague league;
  Championship full = ReadChampionship(league.Folder, ChampionshipKind::League, "Full.leg").value();
  full.Fixtures.resize(MostFixtures, full.Fixtures.back());
  if (!WriteChampionship(league.Folder, full).Ok()) std::abort();
  SilentDesktop desktop;
  for ([[maybe_unused]] auto iteration : state) {
    ChampionshipPlay play(ChampionshipKind::League, league.Folder, desktop, [](const std::string&) {}, {});
    ChampionshipPlayWindow window(play, ChampionshipKind::League, nullptr);
    benchmark::DoNotOptimize(window.grab());
  }
}
BENCHMARK(OpenPlaySettings)->Unit(benchmark::kMillisecond);

/// The loading of the statistics screens at the limits: 100 rows, 5,000 scorers, 15,001 log lines.
void LoadStatistics(benchmark::State& state) {
  const FullLeague league;
  SilentDesktop desktop;
  Championship large{ChampionshipKind::League, "Large", {}, {}};
  for (int i = 0; i < MostTeamsOfLeague; ++i) large.Teams.push_back("Team " + std::to_string(i));
  const bool written = WriteChampionship(league.Folder, large).Ok() &&
                       WriteLines(league.Folder.Leagues() / "Large.lrs",
                                  Lines(15001, "Total Attendence: 1 (50%)"), league.Folder.Root)
                           .Ok();
  if (!written) std::abort();
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(StandingsTable(league.Folder, "Large"));
    benchmark::DoNotOptimize(TopScorers(league.Folder, ChampionshipKind::League, "Full"));
    benchmark::DoNotOptimize(LegResults(league.Folder, desktop, ChampionshipKind::League, "Large"));
  }
}
BENCHMARK(LoadStatistics)->Unit(benchmark::kMillisecond);

void OpenMainMenu(benchmark::State& state) {
  SilentDesktop desktop;
  for ([[maybe_unused]] auto iteration : state) {
    Opening opening(desktop, {});
    OpeningWindow window(opening);
    benchmark::DoNotOptimize(window.grab());
  }
}
BENCHMARK(OpenMainMenu)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kickwell

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
