#include "ui/app.h"

#include <QApplication>
#include <utility>

#include "engine/match.h"
#include "engine/recording.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "ui/match_window.h"
#include "ui/opening_window.h"
#include "ui/selection_window.h"
#include "ui/settings_window.h"

namespace kickwell {
namespace {

/// Friendlies are never recorded, and nothing else can be played yet.
class NothingRecorded : public Recording {
 public:
  void StoreScorer(const MatchSession& /*session*/) override {}
  void StoreResult(const MatchSession& /*session*/) override {}
  void StoreLeagueResult(const MatchSession& /*session*/) override {}
};

}  // namespace

App::App(ProgramFolder folder, Desktop& desktop, Random& random, MatchTimings timings)
    : folder_(std::move(folder)),
      desktop_(desktop),
      random_(random),
      timings_(timings),
      opening_(desktop, Screens()),
      window_(std::make_unique<OpeningWindow>(opening_)) {}

App::~App() = default;

void App::Start() {
  window_->show();
}

QWidget* App::Owner() const {
  QWidget* const screen = QApplication::activeModalWidget();
  return screen != nullptr ? screen : window_.get();
}

OpeningScreens App::Screens() {
  OpeningScreens screens;
  screens.Settings = [this] { OpenSettings(); };
  return screens;
}

void App::OpenSettings() {
  Settings settings(folder_, desktop_, [this](const MatchSetup& setup) { OpenSelection(setup); });
  SettingsWindow(settings, Owner()).exec();
}

void App::OpenSelection(const MatchSetup& setup) {
  Selection selection(
      folder_, desktop_, [this](const MatchSetup& chosen) { OpenMatch(chosen); }, setup);
  SelectionWindow(selection, Owner()).exec();
}

void App::OpenMatch(const MatchSetup& setup) {
  NothingRecorded recording;
  Match match(folder_, desktop_, random_, recording, setup);
  MatchWindow(match, timings_, Owner()).exec();
}

}  // namespace kickwell
