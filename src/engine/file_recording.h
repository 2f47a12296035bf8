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

/// Records in the championship's files. Each goal is saved as it falls, and taken back if the match is left
/// or cannot be recorded, at the latest by the next start of the program. What the end of a match changes is
/// saved all at once by StoreLeagueResult, or not at all; then the user is told, once for each match.
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
  FileResult TakeGoalsBack();
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
    std::vector<ScorerRow> Goals;  ///< As they fell.
    std::size_t SavedGoals = 0;    ///< How many of them the scorers' file holds.
    bool ScorersArePutBy = false;
    std::optional<Championship> Main;
    std::vector<ChangedFile> Changes;
    FileResult Failure;  ///< Why it cannot be recorded.
  };
  Recorded match_;
};

}  // namespace kickwell
