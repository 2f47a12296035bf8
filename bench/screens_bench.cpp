// The screens at the limits: their logic's loading beside the plain reading of what it reads, and their
// opening beside that of an empty window.
#include <QApplication>
#include <QDialog>
#include <QWindow>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "championship/championship_play.h"
#include "championship/knock_charts.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
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

using Places = std::vector<std::filesystem::path>;

constexpr Demand Loading{.Milliseconds = 200};
constexpr auto League = ChampionshipKind::League;
const char* const EmptyWindow = "An empty window opened (floor)";

/// Returns when the window stands on the screen with its first picture.
void ShowDrawn(QWidget& window) {
  window.show();
  do {
    QCoreApplication::processEvents();
  } while (!window.windowHandle()->isExposed());
}

void OpenEmptyWindow(benchmark::State& state) {
  for ([[maybe_unused]] auto iteration : state) {
    QDialog window;
    window.resize(800, 600);  // The screens are no larger, but for the match.
    ShowDrawn(window);
  }
}

/// The loading of what `load` gives.
template <typename Load>
void AddLoading(Figures& figures, const std::string& name, const Places& read, Load load) {
  const auto figure = [load](benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) benchmark::DoNotOptimize(load());
  };
  const auto floor = [read](benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) ReadAllPlainly(read);
  };
  figures.Add(name + " loaded", Loading, figure, floor);
}

/// The loading of a screen's logic, and with it the opening of the window that `open` makes for the logic.
template <typename Load, typename Open>
void AddScreen(Figures& figures, const std::string& name, const Places& read, Load load, Open open) {
  AddLoading(figures, name, read, load);
  const std::string opened = name + " opened";
  Figures::Register(opened, [load, open](benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) {
      auto logic = load();
      const std::unique_ptr<QWidget> window(open(logic));
      ShowDrawn(*window);
    }
  });
  figures.Compare(opened, {opened}, {EmptyWindow}, Loading);
}

SilentDesktop& Silence() {
  static SilentDesktop desktop;
  return desktop;
}

/// The window of a logic that it alone is made of.
template <typename Window>
constexpr auto Opened = [](auto& logic) -> QWidget* { return new Window(logic, nullptr); };

void AddSettingUp(Figures& figures, const ProgramFolder& folder) {
  AddLoading(figures, "1,000 teams", {folder.Teams()}, [folder] { return ListTeams(folder); });
  AddScreen(
      figures, "Match settings, 1,000 teams and stadiums", {folder.Teams(), folder.Stadiums()},
      [folder] { return Settings(folder, Silence(), {}); }, Opened<SettingsWindow>);
  const auto select = [folder] {
    MatchSetup setup;
    setup.Team1Name = TeamName(0);
    setup.Team2Name = TeamName(1);
    Selection selection(folder, Silence(), {}, setup);
    selection.Timer1_Timer();
    return selection;
  };
  AddScreen(figures, "Line-up selection, 1,000 players a side",
            {folder.Teams() / TeamName(0), folder.Teams() / TeamName(1)}, select, Opened<SelectionWindow>);
}

void AddChampionships(Figures& figures, const ProgramFolder& folder) {
  const auto file = [folder](const char* extension) { return folder.Leagues() / (AtLimits + extension); };
  const auto play = [folder] {
    return ChampionshipPlay(League, folder, Silence(), [](const std::string&) {}, {});
  };
  AddScreen(figures, "Play settings, 1,001 fixtures", {folder.Leagues(), file(".leg")}, play,
            [](ChampionshipPlay& logic) { return new ChampionshipPlayWindow(logic, League, nullptr); });
  AddScreen(
      figures, "League table, 100 rows", {file(".leg"), file(".rec")},
      [folder] { return StandingsTable(folder, AtLimits); },
      [](Ranking& table) { return new RankingWindow(table, TableScreen(), nullptr); });
  AddScreen(
      figures, "Top scorers, 5,000", {file(".sco")},
      [folder] { return TopScorers(folder, League, AtLimits); },
      [](Ranking& scorers) { return new RankingWindow(scorers, TopScorersScreen(), nullptr); });
  AddScreen(
      figures, "Results, 15,001 lines", {file(".lrs")},
      [folder] { return LegResults(folder, Silence(), League, AtLimits); }, Opened<LegResultsWindow>);
  AddScreen(
      figures, "Chart, 16 teams", {folder.Tournies() / (AtLimits + ".trn")},
      [folder] { return KnockCharts(folder, AtLimits); }, Opened<KnockChartsWindow>);
}

void AddEditors(Figures& figures, const ProgramFolder& folder) {
  AddScreen(
      figures, "Team editor, 1,000 teams and players", {folder.Teams(), folder.Teams() / TeamName(0)},
      [folder] { return TeamEditor(folder, Silence(), std::string(NoChampionship)); },
      Opened<TeamEditorWindow>);
  AddScreen(
      figures, "Stadium editor, 1,000 stadiums", {folder.Teams(), folder.Stadiums()},
      [folder] { return StadEditor(folder, Silence()); }, Opened<StadEditorWindow>);
  const auto edit = [folder] {
    static SeededRandom random(1);
    LegEditor editor(folder, Silence(), random);
    editor.Load_Click(editor.League, 0);
    return editor;
  };
  AddScreen(figures, "Championship editor, 1,000 teams, a league of 100",
            {folder.Teams(), folder.Leagues(), folder.Tournies(), folder.Leagues() / (AtLimits + ".leg")},
            edit, Opened<LegEditorWindow>);
}

}  // namespace

void AddScreenFigures(Figures& figures) {
  const ProgramFolder& folder = FolderAtLimits();
  Figures::Register(EmptyWindow, OpenEmptyWindow);
  AddSettingUp(figures, folder);
  AddChampionships(figures, folder);
  AddEditors(figures, folder);
}

}  // namespace kickwell
