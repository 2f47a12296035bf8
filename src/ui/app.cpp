#include "ui/app.h"

#include <QApplication>
#include <utility>

#include "championship/knock_charts.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "data/file_names.h"
#include "data/journal.h"
#include "data/tell_failure.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "engine/file_recording.h"
#include "engine/match.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "ui/windows/championship_play_window.h"
#include "ui/windows/knock_charts_window.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/leg_results_window.h"
#include "ui/windows/match_window.h"
#include "ui/windows/opening_window.h"
#include "ui/windows/ranking_window.h"
#include "ui/windows/selection_window.h"
#include "ui/windows/settings_window.h"
#include "ui/windows/stad_editor_window.h"
#include "ui/windows/team_editor_window.h"

namespace kickwell {
App::App(ProgramFolder folder, Desktop& desktop, Random& random, MatchTimings timings)
    : folder_(std::move(folder)),
      desktop_(desktop),
      random_(random),
      timings_(timings),
      opening_(desktop, Screens()),
      window_(std::make_unique<OpeningWindow>(opening_)) {}

App::~App() = default;

void App::Start() {
  const FileResult finished = CleanUp(folder_);
  window_->show();
  TellFailure(desktop_, finished);
  TellFailure(desktop_, FoldersCanBeRead(folder_));
}

void App::ComeToFront() {
  for (QWidget* const window : {static_cast<QWidget*>(window_.get()), Owner()}) {
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
  }
}

QWidget* App::Owner() const {
  QWidget* const screen = QApplication::activeModalWidget();
  return screen != nullptr ? screen : window_.get();
}

OpeningScreens App::Screens() {
  OpeningScreens screens;
  screens.Settings = [this] { OpenSettings(); };
  screens.LegSettings = [this] { OpenPlay(ChampionshipKind::League); };
  screens.KnockSettings = [this] { OpenPlay(ChampionshipKind::KnockOut); };
  screens.LegEditor = [this] { OpenLegEditor(); };
  screens.TeamEditor = [this] { OpenTeamEditor(); };
  screens.StadEditor = [this] { OpenStadEditor(); };
  screens.Table = [this] { OpenTable(); };
  screens.TopScorers = [this] { OpenTopScorers(); };
  screens.LegResults = [this] { OpenLegResults(); };
  screens.KnockCharts = [this] { OpenKnockCharts(); };
  return screens;
}

void App::OpenSettings() {
  Settings settings(folder_, desktop_, [this](const MatchSetup& setup) { OpenSelection(setup); });
  SettingsWindow(settings, Owner()).exec();
}

void App::OpenLegEditor() {
  LegEditor editor(folder_, desktop_, random_);
  LegEditorWindow(editor, Owner()).exec();
}

void App::OpenTeamEditor() {
  TeamEditor editor(folder_, desktop_, opening_.ChampionshipName);
  TeamEditorWindow(editor, Owner()).exec();
}

void App::OpenStadEditor() {
  StadEditor editor(folder_, desktop_);
  StadEditorWindow(editor, Owner()).exec();
}

void App::OpenPlay(ChampionshipKind kind) {
  const auto setChampionship = [this](const std::string& name) {
    opening_.ChampionshipName = name;
    opening_.Changed();
  };
  ChampionshipPlay play(kind, folder_, desktop_, setChampionship,
                        [this](const MatchSetup& setup) { OpenSelection(setup); });
  play_ = &play;
  ChampionshipPlayWindow(play, kind, Owner()).exec();
  play_ = nullptr;
}

/// The championship that the statistics show; their menu is disabled in friendlies.
ChampionshipId App::Current() const {
  return {KindOf(opening_.Mode).value_or(ChampionshipKind::League), opening_.ChampionshipName};
}

void App::OpenTable() {
  Ranking table = StandingsTable(folder_, desktop_, opening_.ChampionshipName);
  RankingWindow(table, TableScreen(), Owner()).exec();
}

void App::OpenTopScorers() {
  Ranking scorers = TopScorers(folder_, desktop_, Current());
  RankingWindow(scorers, TopScorersScreen(), Owner()).exec();
}

void App::OpenLegResults() {
  LegResults results(folder_, desktop_, Current());
  LegResultsWindow(results, Owner()).exec();
}

void App::OpenKnockCharts() {
  KnockCharts charts(folder_, desktop_, opening_.ChampionshipName);
  KnockChartsWindow(charts, Owner()).exec();
}

void App::OpenSelection(const MatchSetup& setup) {
  Selection selection(
      folder_, desktop_, [this](const MatchSetup& chosen) { OpenMatch(chosen); }, setup);
  SelectionWindow(selection, Owner()).exec();
}

void App::OpenMatch(const MatchSetup& setup) {
  FileRecording recording(folder_, desktop_, [this](const std::string& fileName) {
    if (play_ != nullptr) play_->Load(fileName);
  });
  Match match(folder_, desktop_, random_, recording, setup);
  MatchWindow(match, timings_, Owner()).exec();
}

}  // namespace kickwell
