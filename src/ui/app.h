// The wiring of all screens.
#pragma once

#include <QWidget>
#include <memory>

#include "base/desktop.h"
#include "base/random.h"
#include "championship/championship_play.h"
#include "data/program_folder.h"
#include "engine/match_setup.h"
#include "setup/opening.h"
#include "ui/windows/match_window.h"

namespace kickwell {

class OpeningWindow;

/// The running program: the main menu and every screen that it leads to. Needs a QApplication; the references
/// must outlive it.
class App {
 public:
  App(ProgramFolder folder, Desktop& desktop, Random& random, MatchTimings timings = {});
  ~App();

  void Start();  ///< Shows the main menu; the program ends when it is closed.
  void ComeToFront();

 private:
  QWidget* Owner() const;  ///< The window in use, over which the next one opens.
  OpeningScreens Screens();
  void OpenSettings();
  void OpenLegEditor();
  void OpenTeamEditor();
  void OpenStadEditor();
  void OpenPlay(ChampionshipKind kind);
  void OpenTable();
  void OpenTopScorers();
  void OpenLegResults();
  void OpenKnockCharts();
  ChampionshipId Current() const;
  void OpenSelection(const MatchSetup& setup);
  void OpenMatch(const MatchSetup& setup);

  ProgramFolder folder_;
  Desktop& desktop_;
  Random& random_;
  MatchTimings timings_;
  Opening opening_;
  ChampionshipPlay* play_ = nullptr;  ///< The play settings, while they are open.
  std::unique_ptr<OpeningWindow> window_;
};

}  // namespace kickwell
