// The line-up selection: both elevens of a match.
#pragma once

#include <functional>
#include <string>

#include "base/desktop.h"
#include "data/program_folder.h"
#include "engine/match_setup.h"
#include "setup/line_up.h"

namespace kickwell {

class Selection {
 public:
  using OpenMatch = std::function<void(const MatchSetup&)>;  ///< Returns when the match screen has closed.

  /// `setup` names the two teams and holds what the opener has chosen for the match. Squads are loaded later,
  /// by Timer1_Timer.
  Selection(ProgramFolder folder, Desktop& desktop, OpenMatch openMatch, MatchSetup setup);

  /// Loads both squads, once the screen has been drawn, and puts the first eleven players of each into the
  /// slots. A squad that is too small or can't be read is reported and disables "Continue" for good; a
  /// missing one stays empty, which its note explains. Later calls do nothing.
  void Timer1_Timer();

  /// Puts player `entry` of the squad into slot `slot` (0..10) of side 1 or 2.
  void Combo1_Click(int slot, int entry) { Side1.Choose(slot, entry); }
  void Combo2_Click(int slot, int entry) { Side2.Choose(slot, entry); }

  /// Reports the first fault of the line-ups. Without one, plays the match and closes after it.
  void Command1_Click();

  void Command2_Click() { Closed = true; }  ///< Cancels: no match is played.

  const MatchSetup& Setup() const { return setup_; }

  LineUp Side1, Side2;
  bool Command1Enabled = true;
  bool Closed = false;

  std::function<void()> Changed = [] {};  ///< Called when a side has been loaded, before its message.

 private:
  void LoadSquad(LineUp& side, const std::string& team);

  ProgramFolder folder_;
  Desktop& desktop_;
  OpenMatch openMatch_;
  MatchSetup setup_;
  bool loaded_ = false;
};

}  // namespace kickwell
