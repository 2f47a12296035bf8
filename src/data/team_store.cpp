#include "data/team_store.h"

#include "base/number.h"
#include "data/file_names.h"
#include "data/line_reader.h"
#include "data/text_file.h"

namespace kickwell {
namespace {

constexpr std::size_t PlayerLines = 3;

bool IsBlank(const Player& player) {
  return WithoutBlanks(player.Name + player.Skill + player.Position).empty();
}

}  // namespace

std::vector<std::string> ListTeams(const ProgramFolder& folder) {
  return ListFiles(folder.Files(), folder.Teams());
}

bool TeamExists(const ProgramFolder& folder, const std::string& name) {
  return StaysInFolder(name) && folder.Files().Ask(folder.Teams() / name) == FileKind::File;
}

Loaded<std::optional<Team>> LoadTeam(const ProgramFolder& folder, const std::string& name) {
  if (!StaysInFolder(name)) return {};
  const auto [lines, result] = ReadText(folder.Files(), folder.Teams() / name);
  if (!lines) return {std::nullopt, result};
  LineReader reader(*lines);
  Team team{name, reader.Text(), {}};
  while (reader.RecordsLeft(PlayerLines) > 0) {
    team.Players.push_back({reader.Text(), reader.Text(), reader.Text()});
  }
  team.Rest = reader.Rest();
  while (team.Rest.empty() && !team.Players.empty() && IsBlank(team.Players.back())) team.Players.pop_back();
  return {std::move(team)};
}

FileResult CreateTeam(const ProgramFolder& folder, const std::string& name, const std::string& skill) {
  return SaveTeam(folder, {name, skill, {}});
}

FileResult SaveTeam(const ProgramFolder& folder, const Team& team) {
  if (!IsFileName(team.Name) && !TeamExists(folder, team.Name)) return {FileNameRefusal(team.Name)};
  EncodedText text;
  text.Add(team.Skill);
  for (const Player& player : team.Players) {
    for (const std::string* line : {&player.Name, &player.Skill, &player.Position}) text.Add(*line);
  }
  text.AddLines(team.Rest);
  return ReplaceFile(folder.Files(), folder.Teams() / team.Name, text.Bytes(), folder.Root);
}

FileResult DeleteTeam(const ProgramFolder& folder, const std::string& name) {
  if (!StaysInFolder(name)) return {FileNameRefusal(name)};
  FileResult deleted = DeleteFile(folder.Files(), folder.Teams() / name);
  return deleted.Ok() ? DeleteFile(folder.Files(), folder.Settings()) : deleted;
}

}  // namespace kickwell
