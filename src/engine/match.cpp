#include "engine/match.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/number.h"
#include "data/stadium_store.h"
#include "data/tell_failure.h"
#include "engine/goal.h"
#include "engine/pages.h"

namespace kickwell {
namespace {

constexpr int GoalNumbers = 100;

constexpr int CommentaryView = 0;

/// Counts an action that waits for the user, for as long as it does.
class Waiting {
 public:
  explicit Waiting(int& count) : count_(count) { ++count_; }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;
  ~Waiting() { --count_; }

 private:
  int& count_;
};

}  // namespace

Match::Match(ProgramFolder folder, Desktop& desktop, Random& random, Recording& recording,
             const MatchSetup& setup)
    : folder_(std::move(folder)),
      desktop_(desktop),
      random_(random),
      recording_(recording),
      announcement_(session_, random, recording),
      instant_(session_, random, announcement_, recording),
      simulation_(session_, random, desktop, recording),
      clock_(session_, random, desktop, simulation_, announcement_),
      shootOut_(session_, random, desktop, announcement_) {
  Form_Load(setup);
}

void Match::Form_Load(const MatchSetup& setup) {
  Reset();
  MatchSession& s = session_;
  s.Setup = setup;
  s.Side1.Team = setup.Team1Name;
  s.Side1.GoalRange = GoalRangeOf(setup.Team1Strength);
  s.Side1.Outfield = setup.Team1Outfield;
  s.Side2.Team = setup.Team2Name;
  s.Side2.GoalRange = GoalRangeOf(setup.Team2Strength);
  s.Side2.Outfield = setup.Team2Outfield;
  if (setup.Mode == MatchMode::Friendly) {
    s.ExtraTime = setup.ExtraTime;
    s.PenaltyShootOut = setup.PenaltyShootOut;
    s.Venue = setup.Venue;
    s.Weather = setup.Weather;
    s.Capacity = setup.Capacity;
  } else {
    s.ExtraTime = s.PenaltyShootOut = setup.Mode == MatchMode::KnockOut;
    LeagueVenue();
  }
  if (s.Weather) DrawAttendance(s.Weather->AttendanceFactor);
  s.CentreBall();
  s.GoalNumber = random_.Int(GoalNumbers);
  if (setup.SimulationType == SimulationKind::InstantResult) {
    s.Controls.instantVisible = true;
    s.Controls.halftimeVisible = false;
    s.Controls.Option1Enabled = false;
  } else {
    desktop_.LoadSounds();
  }
}

void Match::Reset() {
  session_ = MatchSession();
}

void Match::LeagueVenue() {
  MatchSession& s = session_;
  if (!StadiumListExists(folder_)) return;
  const auto [stadiums, result] = LoadStadiums(folder_);
  TellFailure(desktop_, result);
  for (const Stadium& own : stadiums) {
    const bool home = own.HomeTeam == s.Side1.Team;
    const Stadium chosen = home ? own : PickFrom(stadiums, random_);
    s.Venue = VenueText(chosen);
    s.Capacity = ToNumber(chosen.Capacity);
    if (home) break;
  }
  s.Weather = PickFrom(Weathers, random_);
}

void Match::DrawAttendance(int weatherFactor) {
  MatchSession& s = session_;
  do {
    s.AttendancePercent = random_.Int(weatherFactor);
  } while (s.AttendancePercent < SmallestCrowd);
  s.Attendance = static_cast<int>(s.AttendancePercent / 100.0 * std::max(s.Capacity, 0));
}

void Match::instant_Click() {
  instant_.instant_Click();
}

void Match::halftime_Click() {
  clock_.halftime_Click();
}

void Match::kick_Click() {
  shootOut_.kick_Click();
}

void Match::nextshot_Click() {
  shootOut_.nextshot_Click();
}

void Match::Timer1_Timer(MatchScreen& screen) {
  if (waiting_ > 0) return;
  const Waiting tick(waiting_);
  clock_.Timer1_Timer(screen);
}

void Match::Option1_Click(int index) {
  session_.Controls.Option1 = index;
}

std::string Match::ComSaveCaption() const {
  return session_.Controls.Option1 == CommentaryView ? "Save Commentary" : "Save Summary";
}

void Match::ComSave_Click() {
  const bool commentary = session_.Controls.Option1 == CommentaryView;
  const std::string proposed =
      session_.Side1.Team + "_" + session_.Side2.Team + (commentary ? "_Commentary" : "_Summary");
  const Waiting dialog(waiting_);
  const std::optional<std::string> name = desktop_.AskSaveName(proposed);
  if (!name || name->empty()) return;
  const Lines page = commentary ? CommentaryPage(session_) : SummaryPage(session_);
  TellFailure(desktop_, WritePage(folder_, PageFile(*name), page));
}

void Match::Command1_Click() {
  const Waiting question(waiting_);
  if (!desktop_.Ask("Do you really want to exit?", session_.IsOver() ? Enter::Yes : Enter::No)) return;
  session_.UserLeft = true;
  recording_.MatchLeft();
}

}  // namespace kickwell
