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

using Texts = std::vector<std::string>;

/// Notes every message and sound and gives the answers that a test has laid ready.
class FakeDesktop : public Desktop {
 public:
  void Inform(const std::string& text) override { Messages.push_back("i: " + text); }
  void Warn(const std::string& text) override { Messages.push_back("!: " + text); }
  bool Ask(const std::string& text, Enter enter) override {
    Messages.push_back((enter == Enter::Yes ? "?: " : "? (No): ") + text);
    WhileAsked();
    return Yes;
  }
  std::optional<std::string> AskSaveName(const std::string& proposedName) override {
    ProposedName = proposedName;
    WhileAsked();
    return SaveName;
  }
  void OpenDocument(const std::string& /*file*/, std::function<void()> otherwise) override { otherwise(); }
  void LoadSounds() override { Messages.emplace_back("* loaded"); }
  void PlaySound(Sound sound) override {
    Messages.emplace_back(sound == Sound::Whistle ? "* whistle" : sound == Sound::Goal ? "* goal" : "* boo");
  }

  /// The messages and sounds since the last call.
  Texts Taken() { return std::exchange(Messages, {}); }

  Texts Messages;
  bool Yes = true;
  std::function<void()> WhileAsked = [] {};  ///< What happens behind a question or the save dialog.
  std::string ProposedName;
  std::optional<std::string> SaveName;
};

/// Notes the calls with what they would record.
class FakeRecording : public Recording {
 public:
  void StoreScorer(const MatchSession& s) override {
    Calls.push_back("scorer " + s.LastScorer + " of " + s.LastScoringTeam);
  }
  void StoreResult(const MatchSession& s) override { Calls.push_back("standings " + s.WinnerName); }
  void StoreLeagueResult(const MatchSession& s) override {
    Calls.push_back((s.DecidedByShootOut ? "shoot-out " : "result ") + s.ResultText);
  }
  void MatchLeft() override { Calls.emplace_back("left"); }

  Texts Calls;
};

/// Runs what a test does in a goal pause.
class FakeScreen : public MatchScreen {
 public:
  void Refresh() override {}
  void PauseFunction() override { WhilePaused(); }

  std::function<void()> WhilePaused = [] {};
};

}  // namespace kickwell
