// Each screen opened with as much to show as the program allows.
#include <QApplication>
#include <QWindow>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "championship/championship_play.h"
#include "championship/fixtures.h"
#include "championship/knock_charts.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "data/knock_out.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "figures.h"
#include "folders.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "stand_ins.h"
#include "ui/windows/championship_play_window.h"
#include "ui/windows/knock_charts_window.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/leg_results_window.h"
#include "ui/windows/ranking_window.h"
#include "ui/windows/selection_window.h"
#include "ui/windows/settings_window.h"
#include "ui/windows/stad_editor_window.h"
#include "ui/windows/team_editor_window.h"

namespace kickwell {
namespace {

constexpr auto League = ChampionshipKind::League;
constexpr int Many = 1000;  ///< Teams, players of a team, and stadiums.

/// A team whose players, all of one skill, are a 4-4-2 and substitutes over and over.
Team MakeTeam(const std::string& name, int players) {
  constexpr std::array Positions = {"GK",  "DFL", "DFC", "DFC", "DFR", "MFL", "MFC", "MFC",
                                    "MFR", "FDL", "FDR", "GK",  "DFC", "MFC", "FDC"};
  Team team{name, "70", {}};
  for (int i = 0; i < players; ++i) {
    const char* const position = Positions.at(static_cast<std::size_t>(i) % Positions.size());
    team.Players.push_back({name + " player " + std::to_string(i), "70", position});
  }
  return team;
}

void WriteChampionships(const ProgramFolder& folder) {
  Championship league;
  league.Id = {League, AtLimits};
  league.Teams = TeamNames(MostTeamsOfLeague);
  for (int i = 0; i < MostFixtures; ++i) {
    league.Fixtures.push_back(
        {i % 2 == 0 ? Played : NotPlayed, TeamName(i % MostTeamsOfLeague), TeamName(99 - i % 50), {}});
  }
  WriteLeague(folder, league, {.Scorers = 5000, .LogLines = 15001});

  SeededRandom random(1);
  Championship knockOut;
  knockOut.Id = {ChampionshipKind::KnockOut, AtLimits};
  knockOut.Teams = TeamNames(MostTeamsOfKnockOut);
  for (const Pairing& fixture : KnockOutFixture(knockOut.Teams, random)) {
    const int number = static_cast<int>(knockOut.Fixtures.size()) + 1;
    knockOut.Fixtures.push_back({NotPlayed, fixture.Home, fixture.Away, WinnerPlaceholder(number)});
  }
  Require(WriteChampionship(folder, knockOut));
}

void FillAtLimits(const ProgramFolder& folder) {
  std::vector<Stadium> stadiums;
  for (int i = 0; i < Many; ++i) {
    Require(SaveTeam(folder, MakeTeam(TeamName(i), i < 2 ? Many : 0)));
    stadiums.push_back({TeamName(i), "Ground " + std::to_string(i), "Town", "50000"});
  }
  Require(SaveStadiums(folder, stadiums));
  WriteChampionships(folder);
}

/// 1,000 teams, of which "Team 0" and "Team 1" have 1,000 players; 1,000 stadiums; a league of 100 teams with
/// 1,001 fixtures, 5,000 scorers and 15,001 lines of results; a knock-out of 16 teams.
const ProgramFolder& FolderAtLimits() {
  static const BenchFolder folder;
  static const bool filled = (FillAtLimits(folder.Folder), true);
  benchmark::DoNotOptimize(filled);
  return folder.Folder;
}

SilentDesktop& Silence() {
  static SilentDesktop desktop;
  return desktop;
}

/// Loads the logic with `load` from the folder at the limits, makes its window with `open`, and waits until
/// the window has been drawn.
template <typename Load, typename Open>
void AddScreen(Figures& figures, const std::string& name, Load load, Open open) {
  Figures::Register(name, [load, open](benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) {
      auto logic = load(FolderAtLimits());
      const std::unique_ptr<QWidget> window(open(logic));
      window->show();
      do {
        QCoreApplication::processEvents();
      } while (!window->windowHandle()->isExposed());
    }
  });
  figures.AtMost(name, 100);
}

/// Makes a window that needs nothing but its logic.
template <typename Window>
constexpr auto Opened = [](auto& logic) -> QWidget* { return new Window(logic, nullptr); };

void AddSettingUp(Figures& figures) {
  AddScreen(
      figures, "Match settings, 1,000 teams and stadiums",
      [](const ProgramFolder& folder) { return Settings(folder, Silence(), {}); }, Opened<SettingsWindow>);
  const auto select = [](const ProgramFolder& folder) {
    MatchSetup setup;
    setup.Team1Name = TeamName(0);
    setup.Team2Name = TeamName(1);
    Selection selection(folder, Silence(), {}, setup);
    selection.Timer1_Timer();
    return selection;
  };
  AddScreen(figures, "Line-up selection, 1,000 players a side", select, Opened<SelectionWindow>);
}

void AddChampionships(Figures& figures) {
  const ChampionshipId league{League, AtLimits};
  AddScreen(
      figures, "Play settings, 1,001 fixtures",
      [](const ProgramFolder& folder) {
        return ChampionshipPlay(League, folder, Silence(), [](const std::string&) {}, {});
      },
      [](ChampionshipPlay& logic) { return new ChampionshipPlayWindow(logic, League, nullptr); });
  AddScreen(
      figures, "League table, 100 rows",
      [](const ProgramFolder& folder) { return StandingsTable(folder, Silence(), AtLimits); },
      [](Ranking& table) { return new RankingWindow(table, TableScreen(), nullptr); });
  AddScreen(
      figures, "Top scorers, 5,000",
      [league](const ProgramFolder& folder) { return TopScorers(folder, Silence(), league); },
      [](Ranking& scorers) { return new RankingWindow(scorers, TopScorersScreen(), nullptr); });
  AddScreen(
      figures, "Results, 15,001 lines",
      [league](const ProgramFolder& folder) { return LegResults(folder, Silence(), league); },
      Opened<LegResultsWindow>);
  AddScreen(
      figures, "Chart, 16 teams",
      [](const ProgramFolder& folder) { return KnockCharts(folder, Silence(), AtLimits); },
      Opened<KnockChartsWindow>);
}

void AddEditors(Figures& figures) {
  AddScreen(
      figures, "Team editor, 1,000 teams and players",
      [](const ProgramFolder& folder) { return TeamEditor(folder, Silence(), std::string(NoChampionship)); },
      Opened<TeamEditorWindow>);
  AddScreen(
      figures, "Stadium editor, 1,000 stadiums",
      [](const ProgramFolder& folder) { return StadEditor(folder, Silence()); }, Opened<StadEditorWindow>);
  const auto edit = [](const ProgramFolder& folder) {
    static SeededRandom random(1);
    LegEditor editor(folder, Silence(), random);
    editor.Load_Click(editor.League, 0);
    return editor;
  };
  AddScreen(figures, "Championship editor, 1,000 teams, a league of 100", edit, Opened<LegEditorWindow>);
}

}  // namespace

void AddScreenFigures(Figures& figures) {
  AddSettingUp(figures);
  AddChampionships(figures);
  AddEditors(figures);
}

}  // namespace kickwell
