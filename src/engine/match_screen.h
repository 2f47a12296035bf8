// What the engine needs of the match's window in the middle of a minute.
#pragma once

namespace kickwell {

class MatchScreen {
 public:
  MatchScreen() = default;
  MatchScreen(const MatchScreen&) = delete;
  MatchScreen& operator=(const MatchScreen&) = delete;
  virtual ~MatchScreen() = default;

  virtual void Refresh() = 0;  ///< Shows the session as it stands now.

  /// Returns after the goal pause, in which the user's events go on: views can be switched, pages saved, and
  /// the match left. Returns early when it was left.
  virtual void PauseFunction() = 0;
};

}  // namespace kickwell
