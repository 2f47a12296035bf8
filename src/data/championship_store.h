// Championships: a main file for each, with its teams and fixtures, and companions that collect what is
// played.
//
// Readers take what is there: a count that is no number is 0, a file that ends early gives the complete
// records that it holds, a figure that is no number is 0. Of a file that is there and cannot be read they
// tell `failure`. Names that would leave the folder are never built into a path.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/program.h"
#include "data/journal.h"
#include "data/text_file.h"

namespace kickwell {

enum class ChampionshipKind { League, KnockOut };

/// What a fixture's status says.
inline constexpr const char* NotPlayed = "NP";
inline constexpr const char* Played = "P";

/// What a name carries that was decided by toss.
inline constexpr std::string_view TossSuffix = " (By Toss)";

struct Fixture {
  std::string Status;  ///< "NP" or "P".
  std::string Home;    ///< A team, or in a knock-out the placeholder of a fixture's winner.
  std::string Away;
  std::string
      Winner;  ///< Knock-out only: the placeholder of this fixture until it is played, then the winner.

  bool operator==(const Fixture&) const = default;
};

struct Championship {
  ChampionshipKind Kind = ChampionshipKind::League;
  std::string Name;
  std::vector<std::string> Teams;
  std::vector<Fixture> Fixtures;  ///< Number k stands at place k - 1.

  bool operator==(const Championship&) const = default;
};

struct StandingsRow {
  std::string Team;
  int Played = 0, Won = 0, Drawn = 0, Lost = 0, GoalsFor = 0, GoalsAgainst = 0, Points = 0;

  bool operator==(const StandingsRow&) const = default;
};

struct ScorerRow {
  std::string Player, Team;
  int Goals = 0;

  bool operator==(const ScorerRow&) const = default;
};

/// "Winner " and the number: stands for the winner of fixture `number` until it is played.
std::string WinnerPlaceholder(int number);

/// The fixture that a placeholder waits for; 0 for a text that is none.
int PlaceholderNumber(std::string_view text);

/// `name` without the suffix of a toss, if it has one.
std::string WithoutToss(const std::string& name);

/// A fixture as every screen shows it: "Match ", its number (from 1), home and away.
std::string FixtureText(int number, const std::string& home, const std::string& away);

/// The main file of a championship of that name, without its folder: the name and ".leg" or ".trn".
std::string MainFileName(ChampionshipKind kind, const std::string& name);

/// The name in a main file's name: all but the extension.
std::string NameOfMainFile(const std::string& fileName);

/// The main files of the kind's folder, extension included, alphabetical ignoring letter case.
std::vector<std::string> ListChampionships(const ProgramFolder& folder, ChampionshipKind kind);

bool ChampionshipExists(const ProgramFolder& folder, ChampionshipKind kind, const std::string& fileName);

/// The championship in that main file; nothing when there is none.
std::optional<Championship> ReadChampionship(const ProgramFolder& folder, ChampionshipKind kind,
                                             const std::string& fileName, FileResult* failure = nullptr);

/// A knock-out as its chart takes it: by the team count of line 3, whatever team lines there are, and with
/// all the fixtures that follow them.
struct Bracket {
  std::string Name;
  int TeamCount = 0;
  std::vector<Fixture> Fixtures;
};
std::optional<Bracket> ReadBracket(const ProgramFolder& folder, const std::string& name);

/// The main file written anew, its counts from what there is.
ChangedFile ChangedChampionship(const Championship& championship);

/// Saves a championship that is not there yet.
FileResult WriteChampionship(const ProgramFolder& folder, const Championship& championship);

/// Saves a championship in the place of one of that name: its companions go, in one change with the main
/// file.
FileResult ReplaceChampionship(const ProgramFolder& folder, const Championship& championship);

/// Deletes the main file and its companions in one change.
FileResult DeleteChampionship(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name);

/// A row for each of the teams: the complete rows of the file, then zeros for those that it has not. All
/// zeros, in the order of `teams`, without a file.
std::vector<StandingsRow> ReadStandings(const ProgramFolder& folder, const std::string& league,
                                        const std::vector<std::string>& teams, FileResult* failure = nullptr);
ChangedFile ChangedStandings(const std::string& league, const std::vector<StandingsRow>& standings);

/// Adds a row of zeros for `team` behind the rows of a standings file that exists; there may be none.
FileResult AppendStandings(const ProgramFolder& folder, const std::string& league, const std::string& team);

/// All scorers, in the order in which they first scored.
std::vector<ScorerRow> ReadScorers(const ProgramFolder& folder, ChampionshipKind kind,
                                   const std::string& name, FileResult* failure = nullptr);

/// Raises the tally of every scorer called `player` by one; without one, a new scorer of `team` comes last.
/// The other scorers' lines stay as they are.
FileResult AddGoal(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name,
                   const std::string& player, const std::string& team);

/// The lines of the results log.
Lines ReadResults(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name);

/// The log with a block behind it, after an empty line unless it is the first.
ChangedFile ChangedResults(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name,
                           const std::array<std::string, 5>& block, FileResult* failure = nullptr);

}  // namespace kickwell
