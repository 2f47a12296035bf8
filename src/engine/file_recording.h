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

/// Records in the championship's files. Each goal is saved as it falls. What the end of a match changes is
/// saved all at once by StoreLeagueResult, or not at all. The user is told of failures.
class FileRecording final : public Recording {
 public:
  /// Has the championship read again, which is named by its main file.
  using SelectAgain = std::function<void(const std::string& fileName)>;

  FileRecording(ProgramFolder folder, Desktop& desktop, SelectAgain selectAgain)
      : folder_(std::move(folder)), desktop_(desktop), selectAgain_(std::move(selectAgain)) {}

  void StoreScorer(const MatchSession& session) override;
  void StoreResult(const MatchSession& session) override;
  void StoreLeagueResult(const MatchSession& session) override;

 private:
  void FileChanges(const MatchSession& session, const ChampionshipId& id);
  void ReadChampionshipOnce(const ChampionshipId& id);
  template <typename T>
  T Value(Loaded<T> loaded);

  ProgramFolder folder_;
  Desktop& desktop_;
  SelectAgain selectAgain_;

  // Of the match being recorded.
  std::optional<Championship> championship_;
  std::vector<ChangedFile> changes_;
  FileResult failure_;  ///< Why it cannot be recorded.
};

}  // namespace kickwell
