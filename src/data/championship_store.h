// The files of championships: a main file with teams and fixtures for each, and companions that collect what
// is played.
//
// Readers take what is there: a count that is no number is 0, a file that ends early gives its complete
// records, a figure that is no number is 0. What stands behind the complete records stays there when a match
// is recorded. A name that would leave the folder never becomes a path.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "data/championship.h"
#include "data/file_result.h"
#include "data/journal.h"
#include "data/program_folder.h"
#include "data/text_encoding.h"

namespace kickwell {

/// The name of the main file, without its folder: the championship's name and ".leg" or ".trn".
std::string MainFileName(const ChampionshipId& id);

/// The championship whose main file bears that name.
ChampionshipId IdOfMainFile(ChampionshipKind kind, const std::string& fileName);

/// The names of all main files of the kind, in the order of ListedBefore.
std::vector<std::string> ListChampionships(const ProgramFolder& folder, ChampionshipKind kind);

/// Whether there is such a main file, readable or not.
bool ChampionshipExists(const ProgramFolder& folder, const ChampionshipId& id);

/// The team that plays for a fixture's entry. In a knock-out a winner by toss plays under its own name,
/// unless a team is really called so.
std::string TeamOf(const ProgramFolder& folder, ChampionshipKind kind, const std::string& entry);

/// The championship in the main file, under the name stored there; none without such a file.
Loaded<std::optional<Championship>> ReadChampionship(const ProgramFolder& folder, const ChampionshipId& id);

/// A knock-out as its chart takes it: the team count of line 3, whatever team lines there are, and all the
/// fixtures behind them.
struct Bracket {
  std::string Name;
  int TeamCount = 0;
  std::vector<Fixture> Fixtures;
};
Loaded<std::optional<Bracket>> ReadBracket(const ProgramFolder& folder, const ChampionshipId& id);

/// The main file written anew, its counts from what there is.
ChangedFile ChangedChampionship(const Championship& championship);

/// Saves a championship that is not there yet.
FileResult WriteChampionship(const ProgramFolder& folder, const Championship& championship);

/// Saves a championship in the place of one of that name. Its companions are deleted in the same change.
FileResult ReplaceChampionship(const ProgramFolder& folder, const Championship& championship);

/// Deletes the main file and its companions in one change.
FileResult DeleteChampionship(const ProgramFolder& folder, const ChampionshipId& id);

/// A row for each of the teams: the complete rows of the file, then zeros for teams without one. Without a
/// file, zeros for all, in the order of `teams`.
Loaded<std::vector<StandingsRow>> ReadStandings(const ProgramFolder& folder, const ChampionshipId& league,
                                                const std::vector<std::string>& teams);
ChangedFile ChangedStandings(const ChampionshipId& league, const std::vector<StandingsRow>& standings);

/// Adds a row of zeros for `team` behind the rows of the standings file, if there is one.
FileResult AppendStandings(const ProgramFolder& folder, const ChampionshipId& league,
                           const std::string& team);

/// All scorers, in the order in which they first scored.
Loaded<std::vector<ScorerRow>> ReadScorers(const ProgramFolder& folder, const ChampionshipId& id);

/// Keeps the scorers as they are now, so that Restore can bring them back if the match is not recorded.
FileResult SetScorersAside(const ProgramFolder& folder, const ChampionshipId& id);

/// Raises the tally of every scorer called `scored.Player` by `scored.Goals`. If there is none, `scored`
/// becomes the last scorer. All other lines stay as they are. The scorers must have been set aside, because
/// the file is not flushed: returns what it holds now, to be part of the change that records the match.
Loaded<ChangedFile> AddGoals(const ProgramFolder& folder, const ChampionshipId& id, const ScorerRow& scored);

/// The lines of the results log.
Loaded<Lines> ReadResults(const ProgramFolder& folder, const ChampionshipId& id);

/// The log with a block behind it, after an empty line unless it is the first.
Loaded<ChangedFile> ChangedResults(const ProgramFolder& folder, const ChampionshipId& id,
                                   const std::array<std::string, 5>& block);

}  // namespace kickwell
