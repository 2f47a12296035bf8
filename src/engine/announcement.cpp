#include "engine/announcement.h"

#include "data/championship.h"

namespace kickwell {
namespace {

std::string ScoreText(int first, int second) {
  return std::to_string(first) + "-" + std::to_string(second);
}

}  // namespace

void Announcement::ShowResult() {
  MatchSession& s = session_;
  s.Controls.ClearMessage();
  AddLine(s.Summary, "");
  AddLine(s.Summary, "Result:");
  if (s.Side1.FinalGoals > s.Side2.FinalGoals) {
    Beats(s.Side1, s.Side2);
  } else if (s.Side2.FinalGoals > s.Side1.FinalGoals) {
    Beats(s.Side2, s.Side1);
  } else {
    s.SummaryLine = "The match was tied at " + ScoreText(s.Side1.Goals, s.Side2.Goals);
    s.WinnerName = s.Side1.Team;
    s.LoserName = s.Side2.Team;
    s.WinnerGoals = s.Side1.Goals;
    s.ResultText = "Match Tied";
  }
  AddLine(s.Summary, s.SummaryLine);
  s.DecidedByShootOut = false;
  if (s.Setup.Mode == MatchMode::League) {
    recording_.StoreResult(s);
    recording_.StoreLeagueResult(s);
  } else if (s.Setup.Mode == MatchMode::KnockOut && !s.IsLevel()) {
    recording_.StoreLeagueResult(s);
  }
}

void Announcement::Beats(const Side& winner, const Side& loser) {
  MatchSession& s = session_;
  s.SummaryLine = winner.Team + " beats " + loser.Team + " " + ScoreText(winner.Goals, loser.Goals);
  AddLine(s.Commentary, "With that, " + winner.Team + " wins the match");
  s.WinnerName = winner.Team;
  s.ResultText = winner.Team;
  s.LoserName = loser.Team;
  s.WinnerGoals = winner.Goals;
  s.LoserGoals = loser.Goals;
}

void Announcement::PenResult() {
  MatchSession& s = session_;
  if (s.Side1.Penalties > s.Side2.Penalties) {
    WinsShootOut(s.Side1, s.Side2);
  } else if (s.Side2.Penalties > s.Side1.Penalties) {
    WinsShootOut(s.Side2, s.Side1);
  } else {
    s.SummaryLine = "PSO was tied at " + ScoreText(s.Side1.Penalties, s.Side2.Penalties);
    AddLine(s.Commentary, "The match still remains undecided after the PSO");
    s.ResultText = (random_.Int(2) == 0 ? s.Side1.Team : s.Side2.Team) + std::string(TossSuffix);
  }
  AddLine(s.Summary, s.SummaryLine);
  if (s.Setup.Mode == MatchMode::KnockOut) {
    s.DecidedByShootOut = true;
    recording_.StoreLeagueResult(s);
  }
}

void Announcement::WinsShootOut(const Side& winner, const Side& loser) {
  MatchSession& s = session_;
  s.SummaryLine =
      winner.Team + " beats " + loser.Team + " " + ScoreText(winner.Penalties, loser.Penalties) + " in PSO";
  AddLine(s.Commentary, "That's it, " + winner.Team + " wins the match in a PSO");
  s.ResultText = winner.Team;
}

}  // namespace kickwell
