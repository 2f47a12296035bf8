// Teams: one text file per team in the Teams folder.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/program.h"
#include "data/text_file.h"

namespace kickwell {

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

  bool operator==(const Team&) const = default;
};

/// The names of all teams, alphabetical ignoring letter case. Every regular file of the folder is a team.
std::vector<std::string> ListTeams(const ProgramFolder& folder);

/// The team of that name; nothing when there is no such file. Texts stay as read; a last player whose three
/// lines are not complete is left out. Of a file that is there and cannot be read `failure` is told.
std::optional<Team> LoadTeam(const ProgramFolder& folder, const std::string& name,
                             FileResult* failure = nullptr);

/// Writes a team without players, over an existing one of that name. Refuses a name that cannot be a file
/// name.
FileResult CreateTeam(const ProgramFolder& folder, const std::string& name, const std::string& skill);

/// Rewrites the whole file of the team. Refuses a name that cannot be a file name.
FileResult SaveTeam(const ProgramFolder& folder, const Team& team);

/// Deletes the team's file, then settings.cfg; either may be missing.
FileResult DeleteTeam(const ProgramFolder& folder, const std::string& name);

}  // namespace kickwell
