// What measured logic is handed: nothing that costs time or asks anyone.
#pragma once

#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

#include "base/desktop.h"
#include "engine/recording.h"

namespace kickwell {

/// Ends the program at any message: something went wrong, and the figure would mean nothing.
class SilentDesktop : public Desktop {
 public:
  void Inform(const std::string& /*text*/) override { std::abort(); }
  void Warn(const std::string& /*text*/) override { std::abort(); }
  bool Ask(const std::string& /*text*/, Enter /*enter*/) override { return true; }
  std::optional<std::string> AskSaveName(const std::string& /*proposedName*/) override {
    return std::nullopt;
  }
  void OpenDocument(const std::string& /*file*/, std::function<void()> /*otherwise*/) override {}
  void LoadSounds() override {}
  void PlaySound(Sound /*sound*/) override {}
};

class NoRecording : public Recording {
 public:
  void StoreScorer(const MatchSession& /*session*/) override {}
  void StoreResult(const MatchSession& /*session*/) override {}
  void StoreLeagueResult(const MatchSession& /*session*/) override {}
  void MatchLeft() override {}
};

}  // namespace kickwell
