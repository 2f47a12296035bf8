#include "data/championship_store.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/number.h"
#include "data/file_names.h"
#include "data/line_reader.h"
#include "data/team_store.h"
#include "data/text_file.h"

namespace kickwell {
namespace {

constexpr const char* Standings = ".rec";
constexpr const char* Scorers = ".sco";
constexpr const char* Results = ".lrs";

constexpr std::size_t StandingsLines = 8, ScorerLines = 3;  ///< Of a row.

bool IsLeague(ChampionshipKind kind) {
  return kind == ChampionshipKind::League;
}

const char* MainExtension(ChampionshipKind kind) {
  return IsLeague(kind) ? ".leg" : ".trn";
}

std::size_t FixtureLines(ChampionshipKind kind) {
  return IsLeague(kind) ? 3 : 4;
}

std::filesystem::path FolderOf(const ProgramFolder& folder, ChampionshipKind kind) {
  return IsLeague(kind) ? folder.Leagues() : folder.Tournies();
}

std::filesystem::path PathOf(const ProgramFolder& folder, const ChampionshipId& id, const char* extension) {
  return FolderOf(folder, id.Kind) / (id.Name + extension);
}

/// A championship's file by its path from the program folder, as changes name it.
std::string FileIn(const ChampionshipId& id, const char* extension) {
  return (IsLeague(id.Kind) ? "Leagues/" : "Tournies/") + id.Name + extension;
}

/// The lines of a championship's file; none when there is no such file. Finishes an interrupted change first,
/// so that nothing builds on half a result: all championship files are read through here.
Loaded<std::optional<std::string>> ReadFile(const ProgramFolder& folder, const ChampionshipId& id,
                                            const char* extension) {
  if (!StaysInFolder(id.Name + extension)) return {};
  FileResult finished = FinishChanges(folder);
  if (!finished.Ok()) return {std::nullopt, std::move(finished)};
  return ReadText(folder.Files(), PathOf(folder, id, extension));
}

std::vector<Fixture> TakeFixtures(LineReader& reader, std::size_t count, ChampionshipKind kind) {
  std::vector<Fixture> fixtures(count);
  for (Fixture& fixture : fixtures) {
    fixture.Status = reader.Text();
    fixture.Home = reader.Text();
    fixture.Away = reader.Text();
    if (!IsLeague(kind)) fixture.Winner = reader.Text();
  }
  return fixtures;
}

std::vector<ChangedFile> DeletedCompanions(const ChampionshipId& id) {
  std::vector<ChangedFile> deleted;
  for (const char* extension : {Scorers, Results}) deleted.push_back({FileIn(id, extension), {}});
  if (IsLeague(id.Kind)) deleted.push_back({FileIn(id, Standings), {}});
  return deleted;
}

/// Makes `changes` after what an interruption may have left to do: else it would be done to the new files.
FileResult ChangeAfterRestoring(const ProgramFolder& folder, const std::vector<ChangedFile>& changes) {
  FileResult restored = Restore(folder);
  return restored.Ok() ? ChangeFiles(folder, changes) : restored;
}

}  // namespace

std::string MainFileName(const ChampionshipId& id) {
  return id.Name + MainExtension(id.Kind);
}

ChampionshipId IdOfMainFile(ChampionshipKind kind, const std::string& fileName) {
  return {kind, fileName.substr(0, fileName.rfind('.'))};
}

std::vector<std::string> ListChampionships(const ProgramFolder& folder, ChampionshipKind kind) {
  return ListFiles(folder.Files(), FolderOf(folder, kind), MainExtension(kind));
}

std::string TeamOf(const ProgramFolder& folder, ChampionshipKind kind, const std::string& entry) {
  const bool mayBeToss = !IsLeague(kind) && entry.ends_with(TossSuffix);
  return mayBeToss && !TeamExists(folder, entry) ? WithoutToss(entry) : entry;
}

bool ChampionshipExists(const ProgramFolder& folder, const ChampionshipId& id) {
  return StaysInFolder(MainFileName(id)) &&
         FileExists(folder.Files(), PathOf(folder, id, MainExtension(id.Kind)));
}

Loaded<std::optional<Championship>> ReadChampionship(const ProgramFolder& folder, const ChampionshipId& id) {
  const auto [lines, result] = ReadFile(folder, id, MainExtension(id.Kind));
  if (!lines) return {std::nullopt, result};
  LineReader reader(*lines);
  const std::size_t fixtureLines = FixtureLines(id.Kind);
  const int promised = IsLeague(id.Kind) ? 0 : reader.Number();  // Of fixtures: a knock-out begins with them.
  Championship read{{id.Kind, reader.Text()}, {}, {}};
  read.Teams.resize(reader.Count(1));
  for (std::string& team : read.Teams) team = reader.Text();
  const std::size_t fixtures = IsLeague(id.Kind) ? reader.Count(fixtureLines)
                                                 : std::min(static_cast<std::size_t>(std::max(promised, 0)),
                                                            reader.RecordsLeft(fixtureLines));
  read.Fixtures = TakeFixtures(reader, fixtures, id.Kind);
  read.Rest = reader.Rest();
  return {std::move(read)};
}

Loaded<std::optional<Bracket>> ReadBracket(const ProgramFolder& folder, const ChampionshipId& id) {
  const auto [lines, result] = ReadFile(folder, id, MainExtension(id.Kind));
  if (!lines) return {std::nullopt, result};
  LineReader reader(*lines);
  reader.Skip(1);  // The number of fixtures.
  Bracket bracket{reader.Text(), reader.Number(), {}};
  for (int i = 0; i < bracket.TeamCount && reader.RecordsLeft(1) > 0; ++i) reader.Skip(1);
  bracket.Fixtures = TakeFixtures(reader, reader.RecordsLeft(FixtureLines(id.Kind)), id.Kind);
  return {std::move(bracket)};
}

ChangedFile ChangedChampionship(const Championship& championship) {
  const ChampionshipId& id = championship.Id;
  const int fixtures = static_cast<int>(championship.Fixtures.size());
  EncodedText text;
  if (!IsLeague(id.Kind)) text.Add(fixtures);
  text.Add(id.Name);
  text.Add(static_cast<int>(championship.Teams.size()));
  for (const std::string& team : championship.Teams) text.Add(team);
  if (IsLeague(id.Kind)) text.Add(fixtures);
  for (const Fixture& fixture : championship.Fixtures) {
    for (const std::string* line : {&fixture.Status, &fixture.Home, &fixture.Away}) text.Add(*line);
    if (!IsLeague(id.Kind)) text.Add(fixture.Winner);
  }
  text.AddLines(championship.Rest);
  return {FileIn(id, MainExtension(id.Kind)), std::move(text).Bytes()};
}

FileResult WriteChampionship(const ProgramFolder& folder, const Championship& championship) {
  return ChangeAfterRestoring(folder, {ChangedChampionship(championship)});
}

FileResult ReplaceChampionship(const ProgramFolder& folder, const Championship& championship) {
  std::vector<ChangedFile> changes = DeletedCompanions(championship.Id);
  changes.insert(changes.begin(), ChangedChampionship(championship));
  return ChangeAfterRestoring(folder, changes);
}

FileResult DeleteChampionship(const ProgramFolder& folder, const ChampionshipId& id) {
  std::vector<ChangedFile> changes = DeletedCompanions(id);
  changes.insert(changes.begin(), {FileIn(id, MainExtension(id.Kind)), {}});
  return ChangeAfterRestoring(folder, changes);
}

Loaded<std::vector<StandingsRow>> ReadStandings(const ProgramFolder& folder, const ChampionshipId& league,
                                                const std::vector<std::string>& teams) {
  const auto [lines, result] = ReadFile(folder, league, Standings);
  LineReader reader(lines.value_or(std::string()));
  std::vector<StandingsRow> standings;
  while (standings.size() < teams.size() && !reader.Rest().empty()) {  // The last one may be incomplete.
    StandingsRow& row = standings.emplace_back();
    row.Team = reader.Text();
    for (const auto figure : StandingsRow::Figures()) row.*figure = reader.Number();
  }
  std::map<std::string, int> missing;  // Rows by team; one listed twice has two.
  for (const std::string& team : teams) ++missing[team];
  for (const StandingsRow& row : standings) --missing[row.Team];
  for (const std::string& team : teams) {
    if (standings.size() == teams.size()) break;
    if (missing[team]-- > 0) standings.push_back({team});
  }
  return {std::move(standings), result};
}

ChangedFile ChangedStandings(const ChampionshipId& league, const std::vector<StandingsRow>& standings) {
  EncodedText text;
  for (const StandingsRow& row : standings) {
    text.Add(row.Team);
    for (const auto figure : StandingsRow::Figures()) text.Add(row.*figure);
  }
  return {FileIn(league, Standings), std::move(text).Bytes()};
}

FileResult AppendStandings(const ProgramFolder& folder, const ChampionshipId& league,
                           const std::string& team) {
  const auto [lines, result] = ReadFile(folder, league, Standings);
  if (!lines) return result;
  LineReader reader(*lines);
  reader.Skip(reader.RecordsLeft(StandingsLines) * StandingsLines);
  EncodedText text;
  text.AddLines(reader.Passed());
  if (!reader.Rest().empty()) {  // An incomplete row, which lacks figures at its end.
    for (std::size_t line = 0; line < StandingsLines; ++line)
      text.Add(reader.RecordsLeft(1) > 0 ? reader.View() : "0");
  }
  text.Add(team);
  for (std::size_t i = 0; i < StandingsRow::Figures().size(); ++i) text.Add(0);
  return ReplaceFile(folder.Files(), PathOf(folder, league, Standings), text.Bytes(), folder.Root);
}

Loaded<std::vector<ScorerRow>> ReadScorers(const ProgramFolder& folder, const ChampionshipId& id) {
  const auto [lines, result] = ReadFile(folder, id, Scorers);
  LineReader reader(lines.value_or(std::string()));
  std::vector<ScorerRow> scorers(reader.RecordsLeft(ScorerLines));
  for (ScorerRow& row : scorers) {
    row.Player = reader.Text();
    row.Team = reader.Text();
    row.Goals = reader.Number();
  }
  return {std::move(scorers), result};
}

FileResult SetScorersAside(const ProgramFolder& folder, const ChampionshipId& id) {
  return SetAside(folder, FileIn(id, Scorers));
}

Loaded<ChangedFile> AddGoals(const ProgramFolder& folder, const ChampionshipId& id, const ScorerRow& scored) {
  auto [lines, result] = ReadFile(folder, id, Scorers);
  LineReader reader(lines.value_or(std::string()));
  EncodedText text;
  bool known = false;
  while (reader.RecordsLeft(ScorerLines) > 0) {
    const std::string_view player = reader.View();
    reader.Skip(1);  // The team.
    if (player != scored.Player) {
      reader.Skip(1);
      continue;
    }
    text.AddLines(reader.Passed());
    text.Add(Raised(reader.Number(), scored.Goals));
    reader.Passed();
    known = true;
  }
  text.AddLines(reader.Passed());
  if (!known) {
    text.Add(scored.Player);
    text.Add(scored.Team);
    text.Add(scored.Goals);
  }
  text.AddLines(reader.Rest());
  ChangedFile changed{FileIn(id, Scorers), std::move(text).Bytes()};
  if (result.Ok() && !StaysInFolder(id.Name + Scorers)) result = {FileNameRefusal(id.Name + Scorers)};
  if (result.Ok())
    result =
        ReplaceFile(folder.Files(), PathOf(folder, id, Scorers), *changed.Bytes, folder.Root, Flush::Never);
  return {std::move(changed), std::move(result)};
}

Loaded<Lines> ReadResults(const ProgramFolder& folder, const ChampionshipId& id) {
  const auto [text, result] = ReadFile(folder, id, Results);
  LineReader reader(text.value_or(std::string()));
  Lines lines;
  while (reader.RecordsLeft(1) > 0) lines.push_back(reader.Text());
  return {std::move(lines), result};
}

Loaded<ChangedFile> ChangedResults(const ProgramFolder& folder, const ChampionshipId& id,
                                   const std::array<std::string, 5>& block) {
  const auto [lines, result] = ReadFile(folder, id, Results);
  EncodedText text;
  if (lines && !lines->empty()) {
    text.AddLines(*lines);
    text.Add("");
  }
  for (const std::string& line : block) text.Add(line);
  return {{FileIn(id, Results), std::move(text).Bytes()}, result};
}

}  // namespace kickwell
