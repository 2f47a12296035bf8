// The match screen: one match, from its opening to the saved page.
#pragma once

#include "base/desktop.h"
#include "base/random.h"
#include "data/program_folder.h"
#include "engine/announcement.h"
#include "engine/clock.h"
#include "engine/instant.h"
#include "engine/match_screen.h"
#include "engine/match_session.h"
#include "engine/match_setup.h"
#include "engine/recording.h"
#include "engine/shoot_out.h"
#include "engine/simulation.h"

namespace kickwell {

class Match {
 public:
  /// Opens the match from its set-up (see Form_Load). All references are kept and must outlive the match.
  Match(ProgramFolder folder, Desktop& desktop, Random& random, Recording& recording,
        const MatchSetup& setup);

  /// Fills a fresh session: teams, goal ranges, venue, weather and attendance, and the match's goal number. A
  /// championship match is played at the home team's stadium, else at one drawn from the stadium list.
  void Form_Load(const MatchSetup& setup);

  void instant_Click();  ///< Plays an instant match.
  void halftime_Click();
  void kick_Click();
  void nextshot_Click();
  /// A minute of play. Ticks that fall due while another action of the match is under way are dropped.
  void Timer1_Timer(MatchScreen& screen);
  void Option1_Click(int index);  ///< Shows the commentary (0) or the summary (1), which Save then writes.
  void ComSave_Click();           ///< Asks for a file name and writes the list on view as an HTML page.
  void Command1_Click();          ///< Asks whether to leave; a Yes closes the screen.

  const MatchSession& Session() const { return session_; }
  std::string ComSaveCaption() const;
  bool Closed() const { return session_.UserLeft; }

 private:
  void Reset();
  /// Sets venue, capacity and weather of a championship match. Without a stadium list it sets nothing.
  void LeagueVenue();
  void DrawAttendance(int weatherFactor);

  ProgramFolder folder_;
  Desktop& desktop_;
  Random& random_;
  Recording& recording_;
  MatchSession session_;
  Announcement announcement_;
  Instant instant_;
  Simulation simulation_;
  Clock clock_;
  ShootOut shootOut_;
  int waiting_ = 0;  ///< Actions under way that may wait for the user.
};

}  // namespace kickwell
