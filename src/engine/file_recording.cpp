#include "engine/file_recording.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "base/number.h"
#include "data/team_store.h"

namespace kickwell {
namespace {

constexpr int PointsForWin = 3, PointsForDraw = 1;

ChampionshipKind KindOf(const MatchSession& session) {
  return session.Setup.Mode == MatchMode::League ? ChampionshipKind::League : ChampionshipKind::KnockOut;
}

bool IsFriendly(const MatchSession& session) {
  return session.Setup.Mode == MatchMode::Friendly;
}

void AddMatch(StandingsRow& row, int& outcome, int goalsFor, int goalsAgainst, int points) {
  row.Played = Raised(row.Played, 1);
  outcome = Raised(outcome, 1);
  row.GoalsFor = Raised(row.GoalsFor, goalsFor);
  row.GoalsAgainst = Raised(row.GoalsAgainst, goalsAgainst);
  row.Points = Raised(row.Points, points);
}

/// A side's part of the result line, with its penalties after a shoot-out.
std::string SideResult(const Side& side, bool shootOut) {
  return side.Team + " " + std::to_string(side.Goals) +
         (shootOut ? "(" + std::to_string(side.Penalties) + ")" : "");
}

}  // namespace

void FileRecording::StoreScorer(const MatchSession& session) {
  if (IsFriendly(session)) return;
  TellFailure(desktop_, AddGoal(folder_, KindOf(session), session.Setup.ChampionshipName, session.LastScorer,
                                session.LastScoringTeam));
}

void FileRecording::ReadChampionshipOnce(const MatchSession& session) {
  if (championship_) return;
  // Files that an interruption has left in the middle of a change must not be built upon.
  TellFailure(desktop_, FinishChanges(folder_));
  const ChampionshipKind kind = KindOf(session);
  const std::string fileName = MainFileName(kind, session.Setup.ChampionshipName);
  championship_ = ReadChampionship(folder_, kind, fileName, &failure_);
}

void FileRecording::StoreResult(const MatchSession& session) {
  if (session.Setup.Mode != MatchMode::League) return;
  ReadChampionshipOnce(session);
  if (!championship_) return;
  const std::string& name = session.Setup.ChampionshipName;
  std::vector<StandingsRow> standings = ReadStandings(folder_, name, championship_->Teams, &failure_);
  const bool level = session.Side1.FinalGoals == session.Side2.FinalGoals;
  for (StandingsRow& row : standings) {
    const bool winner = row.Team == session.WinnerName;
    if (!winner && row.Team != session.LoserName) continue;
    if (level) {
      AddMatch(row, row.Drawn, session.WinnerGoals, session.WinnerGoals, PointsForDraw);
    } else if (winner) {
      AddMatch(row, row.Won, session.WinnerGoals, session.LoserGoals, PointsForWin);
    } else {
      AddMatch(row, row.Lost, session.LoserGoals, session.WinnerGoals, 0);
    }
  }
  changes_.push_back(ChangedStandings(name, standings));
}

void FileRecording::StoreLeagueResult(const MatchSession& session) {
  if (IsFriendly(session)) return;
  const bool shootOut = session.DecidedByShootOut;
  const std::array<std::string, 5> block = {
      "Match " + std::to_string(session.Setup.MatchNumber) + ":",
      SideResult(session.Side1, shootOut) + " vs " + SideResult(session.Side2, shootOut),
      "Venue: " + session.Venue, AttendanceText(session), "Winner: " + session.ResultText};
  ReadChampionshipOnce(session);
  const ChampionshipKind kind = KindOf(session);
  const std::string& name = session.Setup.ChampionshipName;
  changes_.push_back(ChangedResults(folder_, kind, name, block, &failure_));
  FileChanges(session);
  TellFailure(desktop_, failure_.Ok() ? ChangeFiles(folder_, changes_) : failure_);
  championship_.reset();
  changes_.clear();
  failure_ = {};
  selectAgain_(MainFileName(kind, name));
}

void FileRecording::FileChanges(const MatchSession& session) {
  const ChampionshipKind kind = KindOf(session);
  const MatchSetup& setup = session.Setup;
  if (!championship_) return;
  // A team that has come through by toss has played without the suffix, where no team is really called so.
  const auto names = [&](const std::string& entry, const std::string& team) {
    return entry == team || (WithoutToss(entry) == team && !LoadTeam(folder_, entry));
  };
  for (Fixture& fixture : championship_->Fixtures) {
    if (!names(fixture.Home, setup.Team1Name) || !names(fixture.Away, setup.Team2Name)) continue;
    fixture.Status = Played;
    fixture.Winner = session.ResultText;
  }
  if (kind == ChampionshipKind::KnockOut) {
    const std::string placeholder = WinnerPlaceholder(setup.MatchNumber);
    for (Fixture& fixture : championship_->Fixtures) {
      if (fixture.Home == placeholder) {
        fixture.Home = session.ResultText;
      } else if (fixture.Away == placeholder) {
        fixture.Away = session.ResultText;
      }
    }
  }
  championship_->Name = setup.ChampionshipName;  // Whatever the file says meanwhile: its name is what counts.
  changes_.push_back(ChangedChampionship(*championship_));
}

}  // namespace kickwell
