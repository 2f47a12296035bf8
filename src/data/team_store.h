// Teams: one text file per team in the Teams folder.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/file_result.h"
#include "data/program_folder.h"

namespace kickwell {

inline constexpr int LineUpSize = 11;  ///< Players of a team in a match.

struct Player {
  std::string Name;
  std::string Skill;     ///< A whole number 1..99 as it was entered.
  std::string Position;  ///< One of the ten position codes, for example "GK" or "MFC".

  bool operator==(const Player&) const = default;
};

struct Team {
  std::string Name;   ///< The name of its file; not stored inside.
  std::string Skill;  ///< The team's reputation, a whole number 1..99 as it was entered.
  std::vector<Player> Players;
  std::string Rest{};  ///< The lines of a last player who is not complete, with CR LF after each.

  bool operator==(const Team&) const = default;
};

/// The names of all teams, in the order of ListedBefore. Every regular file of the folder is a team.
std::vector<std::string> ListTeams(const ProgramFolder& folder);

/// Whether there is a team of that name, readable or not.
bool TeamExists(const ProgramFolder& folder, const std::string& name);

/// The team of that name; none when there is no such file. Texts stay as they were read. Blank lines at the
/// end are no player.
Loaded<std::optional<Team>> LoadTeam(const ProgramFolder& folder, const std::string& name);

/// Makes a team without players, in the place of one of that name if there is one. Otherwise as SaveTeam.
FileResult CreateTeam(const ProgramFolder& folder, const std::string& name, const std::string& skill);

/// Writes the whole file of the team. Refuses a new one whose name cannot be a file name.
FileResult SaveTeam(const ProgramFolder& folder, const Team& team);

/// Deletes the team's file, then settings.cfg; either may be missing.
FileResult DeleteTeam(const ProgramFolder& folder, const std::string& name);

}  // namespace kickwell
