#include "engine/recording.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

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

/// Adds to a figure that a file may hold as large as any; it stops at the largest.
void Add(int& figure, int more) {
  figure += std::min(more, std::numeric_limits<int>::max() - std::max(figure, 0));
}

void AddMatch(StandingsRow& row, int& outcome, int goalsFor, int goalsAgainst, int points) {
  Add(row.Played, 1);
  Add(outcome, 1);
  Add(row.GoalsFor, goalsFor);
  Add(row.GoalsAgainst, goalsAgainst);
  Add(row.Points, points);
}

/// A side's part of the result line, with its penalties after a shoot-out.
std::string SideResult(const Side& side, int penalties, bool shootOut) {
  return side.Team + " " + std::to_string(side.Goals) +
         (shootOut ? "(" + std::to_string(penalties) + ")" : "");
}

}  // namespace

void FileRecording::StoreScorer(const MatchSession& session) {
  if (IsFriendly(session)) return;
  const ChampionshipKind kind = KindOf(session);
  const std::string& name = session.Setup.ChampionshipName;
  FileResult failure;
  std::vector<ScorerRow> scorers = ReadScorers(folder_, kind, name, &failure);
  if (!Report(desktop_, failure)) return;
  bool known = false;
  for (ScorerRow& row : scorers) {
    if (row.Player != session.LastScorer) continue;
    Add(row.Goals, 1);
    known = true;
  }
  if (!known) scorers.push_back({session.LastScorer, session.LastScoringTeam, 1});
  Report(desktop_, WriteScorers(folder_, kind, name, std::move(scorers)));
}

/// Files that an interruption has left in the middle of a change must not be built upon.
void FileRecording::FinishEarlierChanges() {
  Report(desktop_, FinishChanges(folder_));
}

void FileRecording::StoreResult(const MatchSession& session) {
  if (session.Setup.Mode != MatchMode::League) return;
  FinishEarlierChanges();
  const std::string& name = session.Setup.ChampionshipName;
  const std::optional<Championship> league = ReadChampionship(
      folder_, ChampionshipKind::League, MainFileName(ChampionshipKind::League, name), &failure_);
  if (!league) return;
  std::vector<StandingsRow> standings = ReadStandings(folder_, name, league->Teams, &failure_);
  const bool level = session.Side1FinalGoals == session.Side2FinalGoals;
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
      SideResult(session.Side1, session.Side1Penalties, shootOut) + " vs " +
          SideResult(session.Side2, session.Side2Penalties, shootOut),
      "Venue: " + session.Venue, AttendanceText(session), "Winner: " + session.ResultText};
  if (session.Setup.Mode == MatchMode::KnockOut) FinishEarlierChanges();
  const ChampionshipKind kind = KindOf(session);
  const std::string& name = session.Setup.ChampionshipName;
  changes_.push_back(ChangedResults(folder_, kind, name, block, &failure_));
  FileChanges(session);
  Report(desktop_, failure_.Ok() ? ChangeFiles(folder_, changes_) : failure_);
  changes_.clear();
  failure_ = {};
  selectAgain_(MainFileName(kind, name));
}

void FileRecording::FileChanges(const MatchSession& session) {
  const ChampionshipKind kind = KindOf(session);
  const MatchSetup& setup = session.Setup;
  std::optional<Championship> championship =
      ReadChampionship(folder_, kind, MainFileName(kind, setup.ChampionshipName), &failure_);
  if (!championship) return;
  // A team that has come through by toss has played without the suffix, where no team is really called so.
  const auto names = [&](const std::string& entry, const std::string& team) {
    return entry == team || (WithoutToss(entry) == team && !LoadTeam(folder_, entry));
  };
  for (Fixture& fixture : championship->Fixtures) {
    if (!names(fixture.Home, setup.Team1Name) || !names(fixture.Away, setup.Team2Name)) continue;
    fixture.Status = Played;
    fixture.Winner = session.ResultText;
  }
  if (kind == ChampionshipKind::KnockOut) {
    const std::string placeholder = WinnerPlaceholder(setup.MatchNumber);
    for (Fixture& fixture : championship->Fixtures) {
      if (fixture.Home == placeholder) {
        fixture.Home = session.ResultText;
      } else if (fixture.Away == placeholder) {
        fixture.Away = session.ResultText;
      }
    }
  }
  changes_.push_back(ChangedChampionship(*championship));
}

}  // namespace kickwell
