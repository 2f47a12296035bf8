// Program folders at the limits, and the plain reading and writing that is the floor of all work on files.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/program.h"
#include "data/championship_store.h"

namespace kickwell {

/// A folder of its own that is gone with it. It lies in memory where the system has such a place: flushing to
/// disk is then no part of any figure.
class MemoryFolder {
 public:
  MemoryFolder();
  MemoryFolder(const MemoryFolder&) = delete;
  MemoryFolder& operator=(const MemoryFolder&) = delete;
  ~MemoryFolder();

  ProgramFolder Folder;
};

/// The name of the league, of the knock-out and of their files.
inline const std::string AtLimits = "Limits";

/// 1,000 teams, of which "Team 0" and "Team 1" have 1,000 players; 1,000 stadiums; a league of 100 teams with
/// 1,001 fixtures, 5,000 scorers and 15,001 lines of results; a knock-out of 16 teams.
const ProgramFolder& FolderAtLimits();

/// Writes a league of `teams` with every file that it has in the middle of play.
void WriteLeague(const ProgramFolder& folder, const Championship& league, int scorers, int logLines);

/// "Team 0", "Team 1", ...
std::string TeamName(int number);
std::vector<std::string> TeamNames(int count);

/// The double round robin of 32 teams.
Championship GeneratedLeague();

/// Writes a team of that name with so many players, all of one skill, as a 4-4-2 and its substitutes.
void WriteTeam(const ProgramFolder& folder, const std::string& name, int players);

/// Writes a stadium for each of so many teams.
void WriteStadiums(const ProgramFolder& folder, int count);

std::string ReadPlainly(const std::filesystem::path& file);  ///< Empty without a file.
void WritePlainly(const std::filesystem::path& file, const std::string& bytes);

/// Reads the bytes of files and the names in folders.
void ReadAllPlainly(const std::vector<std::filesystem::path>& places);

}  // namespace kickwell
