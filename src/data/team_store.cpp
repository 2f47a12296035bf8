#include "data/team_store.h"

#include "data/file_names.h"

namespace kickwell {

std::vector<std::string> ListTeams(const ProgramFolder& folder) {
  return ListFiles(folder.Teams());
}

std::optional<Team> LoadTeam(const ProgramFolder& folder, const std::string& name, FileResult* failure) {
  if (!StaysInFolder(name)) return std::nullopt;
  const std::optional<Lines> lines = ReadLines(folder.Teams() / name, failure);
  if (!lines) return std::nullopt;
  Team team{name, lines->empty() ? "" : lines->front(), {}};
  for (std::size_t i = 1; i + 2 < lines->size(); i += 3) {
    team.Players.push_back({(*lines)[i], (*lines)[i + 1], (*lines)[i + 2]});
  }
  return team;
}

FileResult CreateTeam(const ProgramFolder& folder, const std::string& name, const std::string& skill) {
  return SaveTeam(folder, {name, skill, {}});
}

FileResult SaveTeam(const ProgramFolder& folder, const Team& team) {
  if (!IsFileName(team.Name)) return {FileNameRefusal(team.Name)};
  Lines lines{team.Skill};
  for (const Player& player : team.Players) {
    lines.insert(lines.end(), {player.Name, player.Skill, player.Position});
  }
  return WriteLines(folder.Teams() / team.Name, lines, folder.Root);
}

FileResult DeleteTeam(const ProgramFolder& folder, const std::string& name) {
  if (!StaysInFolder(name)) return {FileNameRefusal(name)};
  FileResult deleted = DeleteFile(folder.Teams() / name);
  return deleted.Ok() ? DeleteFile(folder.Settings()) : deleted;
}

}  // namespace kickwell
