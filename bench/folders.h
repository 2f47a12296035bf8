// Program folders for benchmarks.
#pragma once

#include <string>
#include <vector>

#include "data/championship_store.h"
#include "data/posix_file_system.h"

namespace kickwell {

/// A program folder of its own, deleted with the object. It lies in memory where the system offers that
/// (/dev/shm), so that no benchmark waits for a disk.
class BenchFolder {
 public:
  BenchFolder();
  BenchFolder(const BenchFolder&) = delete;
  BenchFolder& operator=(const BenchFolder&) = delete;
  ~BenchFolder();

 private:
  PosixFileSystem files_;

 public:
  ProgramFolder Folder;
};

/// Ends the program when a folder cannot be set up: any figure would be wrong.
void Require(const FileResult& result);

/// The name of the league, of the knock-out and of their files.
inline const std::string AtLimits = "Limits";

/// "Team 0", "Team 1", ...
std::string TeamName(int number);
std::vector<std::string> TeamNames(int count);

/// Writes a league with all companions, in the middle of play.
struct LeagueLength {
  int Scorers, LogLines;
};
void WriteLeague(const ProgramFolder& folder, const Championship& league, LeagueLength length);

}  // namespace kickwell
