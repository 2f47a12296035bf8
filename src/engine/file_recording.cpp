#include "engine/file_recording.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "base/number.h"
#include "data/knock_out.h"
#include "data/team_store.h"
#include "data/tell_failure.h"

namespace kickwell {
namespace {

constexpr int PointsForWin = 3, PointsForDraw = 1;

/// The championship that the match belongs to; none for a friendly.
std::optional<ChampionshipId> ChampionshipOf(const MatchSession& session) {
  const std::optional<ChampionshipKind> kind = KindOf(session.Setup.Mode);
  if (!kind) return std::nullopt;
  return ChampionshipId{*kind, session.Setup.ChampionshipName};
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
  const std::optional<ChampionshipId> id = ChampionshipOf(session);
  if (!id) return;
  TellFailure(desktop_, AddGoals(folder_, *id, {session.LastScorer, session.LastScoringTeam, 1}));
}

/// The value that was loaded. What could not be read keeps the match from being recorded.
template <typename T>
T FileRecording::Value(Loaded<T> loaded) {
  if (failure_.Ok()) failure_ = std::move(loaded.Result);
  return std::move(loaded.Value);
}

void FileRecording::ReadChampionshipOnce(const ChampionshipId& id) {
  if (championship_) return;
  // Nothing may build on files that an interruption has left in the middle of a change.
  TellFailure(desktop_, FinishChanges(folder_));
  championship_ = Value(ReadChampionship(folder_, id));
}

void FileRecording::StoreResult(const MatchSession& session) {
  const std::optional<ChampionshipId> id = ChampionshipOf(session);
  if (!id || id->Kind != ChampionshipKind::League) return;
  ReadChampionshipOnce(*id);
  if (!championship_) return;
  std::vector<StandingsRow> standings = Value(ReadStandings(folder_, *id, championship_->Teams));
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
  changes_.push_back(ChangedStandings(*id, standings));
}

void FileRecording::StoreLeagueResult(const MatchSession& session) {
  const std::optional<ChampionshipId> id = ChampionshipOf(session);
  if (!id) return;
  const bool shootOut = session.DecidedByShootOut;
  const std::array<std::string, 5> block = {
      "Match " + std::to_string(session.Setup.MatchNumber) + ":",
      SideResult(session.Side1, shootOut) + " vs " + SideResult(session.Side2, shootOut),
      "Venue: " + session.Venue, AttendanceText(session), "Winner: " + session.ResultText};
  ReadChampionshipOnce(*id);
  changes_.push_back(Value(ChangedResults(folder_, *id, block)));
  FileChanges(session, *id);
  const bool allWasRead = failure_.Ok();
  TellFailure(desktop_, allWasRead ? ChangeFiles(folder_, changes_) : failure_);
  championship_.reset();
  changes_.clear();
  failure_ = {};
  if (allWasRead) selectAgain_(MainFileName(*id));  // Else nothing has changed, and the user has been told.
}

void FileRecording::FileChanges(const MatchSession& session, const ChampionshipId& id) {
  if (!championship_) return;
  const MatchSetup& setup = session.Setup;
  // A team that came through by toss plays without the suffix, unless a team is really called so.
  const auto names = [&](const std::string& entry, const std::string& team) {
    return entry == team || (WithoutToss(entry) == team && !TeamExists(folder_, entry));
  };
  for (Fixture& fixture : championship_->Fixtures) {
    if (!names(fixture.Home, setup.Team1Name) || !names(fixture.Away, setup.Team2Name)) continue;
    fixture.Status = Played;
    fixture.Winner = session.ResultText;
  }
  if (id.Kind == ChampionshipKind::KnockOut) Advance(*championship_, setup.MatchNumber, session.ResultText);
  championship_->Id = id;  // Its file's name counts, whatever the file says meanwhile.
  changes_.push_back(ChangedChampionship(*championship_));
}

}  // namespace kickwell
