#include "engine/file_recording.h"

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "base/number.h"
#include "data/knock_out.h"
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
  match_.Goals.push_back({session.LastScorer, session.LastScoringTeam, 1});
  (void)SaveGoals(*id);  // What fails now is tried again with the next goal, and at the end of the match.
}

void FileRecording::MatchLeft() {
  TellFailure(desktop_, UndoGoals());
  match_ = {};
}

/// Saves all goals of the match that the scorers' file does not hold yet.
FileResult FileRecording::SaveGoals(const ChampionshipId& id) {
  FileResult result;
  if (!match_.ScorersAreSetAside) {
    result = SetScorersAside(folder_, id);
    match_.ScorersAreSetAside = result.Ok();
  }
  while (result.Ok() && match_.SavedGoals < match_.Goals.size()) {
    auto [scorers, saved] = AddGoals(folder_, id, match_.Goals[match_.SavedGoals]);
    result = std::move(saved);
    if (!result.Ok()) break;
    match_.Scorers = std::move(scorers);
    ++match_.SavedGoals;
  }
  return result;
}

/// Restores the scorers as they were before the match.
FileResult FileRecording::UndoGoals() {
  FileResult restored = match_.ScorersAreSetAside ? Restore(folder_) : FileResult();
  if (!restored.Ok()) restored.Failure += " The scorers will be corrected when you next start the program.";
  return restored;
}

/// The value that was loaded. What could not be read keeps the match from being recorded.
template <typename T>
T FileRecording::Value(Loaded<T> loaded) {
  if (match_.Failure.Ok()) match_.Failure = std::move(loaded.Result);
  return std::move(loaded.Value);
}

void FileRecording::ReadChampionshipOnce(const ChampionshipId& id) {
  if (match_.Main) return;
  // Nothing may build on files that an interruption has left in the middle of a change.
  if (match_.Failure.Ok()) match_.Failure = match_.Goals.empty() ? Restore(folder_) : SaveGoals(id);
  match_.Main = Value(ReadChampionship(folder_, id));
}

void FileRecording::StoreResult(const MatchSession& session) {
  const std::optional<ChampionshipId> id = ChampionshipOf(session);
  if (!id || id->Kind != ChampionshipKind::League) return;
  ReadChampionshipOnce(*id);
  if (!match_.Main) return;
  std::vector<StandingsRow> standings = Value(ReadStandings(folder_, *id, match_.Main->Teams));
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
  match_.Changes.push_back(ChangedStandings(*id, standings));
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
  match_.Changes.push_back(Value(ChangedResults(folder_, *id, block)));
  FileChanges(session, *id);
  const bool isRecorded = TellFailure(desktop_, Record(session, *id));
  match_ = {};
  if (isRecorded) selectAgain_(MainFileName(*id));
}

/// Makes all that the match changes one change. Where that fails, nothing of the match stays.
FileResult FileRecording::Record(const MatchSession& session, const ChampionshipId& id) {
  FileResult result = std::move(match_.Failure);
  if (result.Ok()) {
    if (match_.Scorers) match_.Changes.push_back(*match_.Scorers);
    if (match_.ScorersAreSetAside) match_.Changes.push_back({std::string(SetAsideName), {}});
    result = ChangeFiles(folder_, match_.Changes);
    if (result.Ok() || ChangesAreUnfinished(folder_)) return result;
  }
  const char* const kind = id.Kind == ChampionshipKind::League ? "league " : "knock-out ";
  std::string told = "Match " + std::to_string(session.Setup.MatchNumber) + " of the " + kind + id.Name +
                     " was not recorded and is still to be played. " + result.Failure;
  if (const FileResult undone = UndoGoals(); !undone.Ok()) told += " " + undone.Failure;
  return {std::move(told)};
}

void FileRecording::FileChanges(const MatchSession& session, const ChampionshipId& id) {
  if (!match_.Main) return;
  const MatchSetup& setup = session.Setup;
  for (Fixture& fixture : match_.Main->Fixtures) {
    const Pairing teams{TeamOf(folder_, id.Kind, fixture.Home), TeamOf(folder_, id.Kind, fixture.Away)};
    if (teams != Pairing{setup.Team1Name, setup.Team2Name}) continue;
    fixture.Status = Played;
    fixture.Winner = session.ResultText;
  }
  if (id.Kind == ChampionshipKind::KnockOut) Advance(*match_.Main, setup.MatchNumber, session.ResultText);
  match_.Main->Id = id;  // Its file's name counts, whatever the file says meanwhile.
  match_.Changes.push_back(ChangedChampionship(*match_.Main));
}

}  // namespace kickwell
