// Results of championship matches, recorded in the championship's files.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/desktop.h"
#include "base/program.h"
#include "data/championship_store.h"
#include "engine/recording.h"

namespace kickwell {

/// Records into the championship's files. A goal is on disk when it has fallen; what the end of a match
/// changes goes there all at once in StoreLeagueResult, or not at all. Failures are told to the user.
class FileRecording final : public Recording {
 public:
  /// Asks for the championship to be read again, by the name of its main file.
  using SelectAgain = std::function<void(const std::string& fileName)>;

  FileRecording(ProgramFolder folder, Desktop& desktop, SelectAgain selectAgain)
      : folder_(std::move(folder)), desktop_(desktop), selectAgain_(std::move(selectAgain)) {}

  void StoreScorer(const MatchSession& session) override;
  void StoreResult(const MatchSession& session) override;
  void StoreLeagueResult(const MatchSession& session) override;

 private:
  void FileChanges(const MatchSession& session);
  void ReadChampionshipOnce(const MatchSession& session);

  ProgramFolder folder_;
  Desktop& desktop_;
  SelectAgain selectAgain_;

  // Of the match that is being recorded.
  std::optional<Championship> championship_;
  std::vector<ChangedFile> changes_;
  FileResult failure_;  ///< What keeps it from being recorded.
};

}  // namespace kickwell
