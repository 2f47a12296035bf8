// Results of championship matches, recorded in the championship's files.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/desktop.h"
#include "data/championship_store.h"
#include "data/program_folder.h"
#include "engine/recording.h"

namespace kickwell {

/// Records in the championship's files. Each goal is saved as it is scored, and undone if the match is left
/// or cannot be recorded, at the latest when the program next starts. StoreLeagueResult saves everything that
/// the match changes, or nothing; then it reports why, once for each match.
class FileRecording final : public Recording {
 public:
  /// Has the championship read again, which is named by its main file.
  using SelectAgain = std::function<void(const std::string& fileName)>;

  FileRecording(ProgramFolder folder, Desktop& desktop, SelectAgain selectAgain)
      : folder_(std::move(folder)), desktop_(desktop), selectAgain_(std::move(selectAgain)) {}

  void StoreScorer(const MatchSession& session) override;
  void StoreResult(const MatchSession& session) override;
  void StoreLeagueResult(const MatchSession& session) override;
  void MatchLeft() override;

 private:
  FileResult SaveGoals(const ChampionshipId& id);
  FileResult UndoGoals();
  FileResult Record(const MatchSession& session, const ChampionshipId& id);
  void FileChanges(const MatchSession& session, const ChampionshipId& id);
  void ReadChampionshipOnce(const ChampionshipId& id);
  template <typename T>
  T Value(Loaded<T> loaded);

  ProgramFolder folder_;
  Desktop& desktop_;
  SelectAgain selectAgain_;

  /// What there is to record of one match.
  struct Recorded {
    std::vector<ScorerRow> Goals;  ///< In the order scored.
    std::size_t SavedGoals = 0;    ///< How many of them the scorers' file holds.
    bool ScorersAreSetAside = false;
    std::optional<ChangedFile> Scorers;  ///< What the scorers' file holds, with these goals.
    std::optional<Championship> Main;
    std::vector<ChangedFile> Changes;
    FileResult Failure;  ///< Why it cannot be recorded.
  };
  Recorded match_;
};

}  // namespace kickwell
