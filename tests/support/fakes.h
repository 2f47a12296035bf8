// Stand-ins for what the logic is handed.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/desktop.h"
#include "engine/match_screen.h"
#include "engine/recording.h"

namespace kickwell {

/// Notes every message and gives the answers that a test has laid ready.
class FakeDesktop : public Desktop {
 public:
  void Inform(const std::string& text) override { Messages.push_back("i: " + text); }
  void Warn(const std::string& text) override { Messages.push_back("!: " + text); }
  bool Ask(const std::string& text) override {
    Messages.push_back("?: " + text);
    WhileAsked();
    return Yes;
  }
  std::optional<std::string> AskSaveName(const std::string& proposedName) override {
    ProposedName = proposedName;
    WhileAsked();
    return SaveName;
  }
  void LoadSounds() override { SoundsLoaded = true; }
  void PlaySound(Sound sound) override {
    constexpr const char* Names[] = {"whistle", "goal", "boo"};
    Messages.push_back(std::string("* ") + Names[static_cast<std::size_t>(sound)]);
  }

  /// The messages and sounds since the last call.
  std::vector<std::string> Taken() { return std::exchange(Messages, {}); }

  std::vector<std::string> Messages;
  bool Yes = true;
  std::function<void()> WhileAsked = [] {};  ///< What happens behind a question or the save dialog.
  bool SoundsLoaded = false;
  std::string ProposedName;
  std::optional<std::string> SaveName;
};

/// Notes the calls with what they would record.
class FakeRecording : public Recording {
 public:
  void StoreScorer(const MatchSession& s) override {
    Calls.push_back("scorer " + s.LastScorer + " of " + s.LastScoringTeam);
  }
  void StoreResult(const MatchSession& s) override { Calls.push_back("standings " + s.ResultText); }
  void StoreLeagueResult(const MatchSession& s) override {
    Calls.push_back((s.DecidedByShootOut ? "shoot-out " : "result ") + s.ResultText);
  }

  std::vector<std::string> Calls;
};

/// Counts the goal pauses and runs what a test does in them.
class FakeScreen : public MatchScreen {
 public:
  void Show() override {}
  void PauseFunction() override {
    ++Pauses;
    WhilePaused();
  }

  int Pauses = 0;
  std::function<void()> WhilePaused = [] {};
};

}  // namespace kickwell
