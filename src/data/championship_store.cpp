#include "data/championship_store.h"

#include <algorithm>
#include <utility>

#include "base/number.h"
#include "data/file_names.h"

namespace kickwell {
namespace {

constexpr const char* Standings = ".rec";
constexpr const char* Scorers = ".sco";
constexpr const char* Results = ".lrs";

constexpr std::size_t StandingsLines = 8, ScorerLines = 3;  ///< Of a row.

constexpr std::string_view WinnerOf = "Winner ";

const char* MainExtension(ChampionshipKind kind) {
  return kind == ChampionshipKind::League ? ".leg" : ".trn";
}

std::filesystem::path FolderOf(const ProgramFolder& folder, ChampionshipKind kind) {
  return kind == ChampionshipKind::League ? folder.Leagues() : folder.Tournies();
}

/// A championship's file from the program folder, as changes name it.
std::string FileIn(ChampionshipKind kind, const std::string& fileName) {
  return (FolderOf({}, kind) / fileName).string();
}

Lines ReadFile(const ProgramFolder& folder, ChampionshipKind kind, const std::string& fileName,
               FileResult* failure = nullptr) {
  if (!StaysInFolder(fileName)) return {};
  return ReadLines(FolderOf(folder, kind) / fileName, failure).value_or(Lines{});
}

FileResult WriteFile(const ProgramFolder& folder, ChampionshipKind kind, const std::string& fileName,
                     const Lines& lines) {
  if (!StaysInFolder(fileName)) return {FileNameRefusal(fileName)};
  return WriteLines(FolderOf(folder, kind) / fileName, lines, folder.Root);
}

/// Lines taken one after the other; empty ones after the last.
class Reader {
 public:
  explicit Reader(Lines lines) : lines_(std::move(lines)) {}

  std::size_t Left() const { return lines_.size() - place_; }
  std::string Take() { return place_ < lines_.size() ? std::move(lines_[place_++]) : std::string(); }

  /// A count line, at most as many records of `recordLines` lines as are left behind it.
  std::size_t TakeCount(std::size_t recordLines) {
    const int count = ToNumber(Take());
    return count < 0 ? 0 : std::min(static_cast<std::size_t>(count), Left() / recordLines);
  }

 private:
  Lines lines_;
  std::size_t place_ = 0;
};

/// The lines of a main file; nothing when there is none.
std::optional<Reader> OpenMain(const ProgramFolder& folder, ChampionshipKind kind,
                               const std::string& fileName, FileResult* failure = nullptr) {
  if (!StaysInFolder(fileName)) return std::nullopt;
  std::optional<Lines> lines = ReadLines(FolderOf(folder, kind) / fileName, failure);
  if (!lines) return std::nullopt;
  return Reader(std::move(*lines));
}

std::vector<std::string> TakeTeams(Reader& reader) {
  std::vector<std::string> teams(reader.TakeCount(1));
  for (std::string& team : teams) team = reader.Take();
  return teams;
}

std::vector<Fixture> TakeFixtures(Reader& reader, std::size_t count, bool withWinner) {
  std::vector<Fixture> fixtures(count);
  for (Fixture& fixture : fixtures) {
    fixture.Status = reader.Take();
    fixture.Home = reader.Take();
    fixture.Away = reader.Take();
    if (withWinner) fixture.Winner = reader.Take();
  }
  return fixtures;
}

/// The deletion of all companions.
std::vector<ChangedFile> DeletedCompanions(ChampionshipKind kind, const std::string& name) {
  std::vector<ChangedFile> deleted;
  for (const char* extension : {Scorers, Results}) deleted.push_back({FileIn(kind, name + extension), {}});
  if (kind == ChampionshipKind::League) deleted.push_back({FileIn(kind, name + Standings), {}});
  return deleted;
}

/// Makes `changes` after those that an interruption may have left.
FileResult ChangeAfterFinishing(const ProgramFolder& folder, const std::vector<ChangedFile>& changes) {
  FileResult finished = FinishChanges(folder);
  return finished.Ok() ? ChangeFiles(folder, changes) : finished;
}

}  // namespace

std::string WinnerPlaceholder(int number) {
  return std::string(WinnerOf) + std::to_string(number);
}

int PlaceholderNumber(std::string_view text) {
  if (!text.starts_with(WinnerOf)) return 0;
  const int number = ToNumber(text.substr(WinnerOf.size()));
  return text == WinnerPlaceholder(number) ? std::max(number, 0) : 0;
}

std::string WithoutToss(const std::string& name) {
  return name.ends_with(TossSuffix) ? name.substr(0, name.size() - TossSuffix.size()) : name;
}

std::string FixtureText(int number, const std::string& home, const std::string& away) {
  return "Match " + std::to_string(number) + ": " + home + " v " + away;
}

std::string MainFileName(ChampionshipKind kind, const std::string& name) {
  return name + MainExtension(kind);
}

std::string NameOfMainFile(const std::string& fileName) {
  return fileName.substr(0, fileName.rfind('.'));
}

std::vector<std::string> ListChampionships(const ProgramFolder& folder, ChampionshipKind kind) {
  return ListFiles(FolderOf(folder, kind), MainExtension(kind));
}

bool ChampionshipExists(const ProgramFolder& folder, ChampionshipKind kind, const std::string& fileName) {
  return StaysInFolder(fileName) && FileExists(FolderOf(folder, kind) / fileName);
}

std::optional<Championship> ReadChampionship(const ProgramFolder& folder, ChampionshipKind kind,
                                             const std::string& fileName, FileResult* failure) {
  std::optional<Reader> main = OpenMain(folder, kind, fileName, failure);
  if (!main) return std::nullopt;
  Reader& reader = *main;
  Championship read{kind, {}, {}, {}};
  std::size_t fixtures = 0;
  const bool league = kind == ChampionshipKind::League;
  const std::size_t fixtureLines = league ? 3 : 4;
  if (league) {
    read.Name = reader.Take();
    read.Teams = TakeTeams(reader);
    fixtures = reader.TakeCount(fixtureLines);
  } else {
    const int promised = ToNumber(reader.Take());
    read.Name = reader.Take();
    read.Teams = TakeTeams(reader);
    fixtures = std::min(static_cast<std::size_t>(std::max(promised, 0)), reader.Left() / fixtureLines);
  }
  read.Fixtures = TakeFixtures(reader, fixtures, !league);
  return read;
}

std::optional<Bracket> ReadBracket(const ProgramFolder& folder, const std::string& name) {
  constexpr ChampionshipKind Kind = ChampionshipKind::KnockOut;
  std::optional<Reader> main = OpenMain(folder, Kind, MainFileName(Kind, name));
  if (!main) return std::nullopt;
  Reader& reader = *main;
  reader.Take();  // The number of fixtures.
  Bracket bracket;
  bracket.Name = reader.Take();
  bracket.TeamCount = ToNumber(reader.Take());
  for (int i = 0; i < bracket.TeamCount && reader.Left() > 0; ++i) reader.Take();
  bracket.Fixtures = TakeFixtures(reader, reader.Left() / 4, true);
  return bracket;
}

ChangedFile ChangedChampionship(const Championship& championship) {
  const bool league = championship.Kind == ChampionshipKind::League;
  const std::string count = std::to_string(championship.Fixtures.size());
  Lines lines;
  lines.reserve(4 + championship.Teams.size() + 4 * championship.Fixtures.size());
  if (!league) lines.push_back(count);
  lines.push_back(championship.Name);
  lines.push_back(std::to_string(championship.Teams.size()));
  lines.insert(lines.end(), championship.Teams.begin(), championship.Teams.end());
  if (league) lines.push_back(count);
  for (const Fixture& fixture : championship.Fixtures) {
    for (const std::string* line : {&fixture.Status, &fixture.Home, &fixture.Away}) lines.push_back(*line);
    if (!league) lines.push_back(fixture.Winner);
  }
  return {FileIn(championship.Kind, MainFileName(championship.Kind, championship.Name)), Encode(lines)};
}

FileResult WriteChampionship(const ProgramFolder& folder, const Championship& championship) {
  return ChangeAfterFinishing(folder, {ChangedChampionship(championship)});
}

FileResult ReplaceChampionship(const ProgramFolder& folder, const Championship& championship) {
  std::vector<ChangedFile> changes = DeletedCompanions(championship.Kind, championship.Name);
  changes.insert(changes.begin(), ChangedChampionship(championship));
  return ChangeAfterFinishing(folder, changes);
}

FileResult DeleteChampionship(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name) {
  std::vector<ChangedFile> changes = DeletedCompanions(kind, name);
  changes.insert(changes.begin(), {FileIn(kind, MainFileName(kind, name)), {}});
  return ChangeAfterFinishing(folder, changes);
}

std::vector<StandingsRow> ReadStandings(const ProgramFolder& folder, const std::string& league,
                                        const std::vector<std::string>& teams, FileResult* failure) {
  Reader reader(ReadFile(folder, ChampionshipKind::League, league + Standings, failure));
  std::vector<StandingsRow> standings(std::min(teams.size(), reader.Left() / StandingsLines));
  for (StandingsRow& row : standings) {
    row.Team = reader.Take();
    for (int* figure :
         {&row.Played, &row.Won, &row.Drawn, &row.Lost, &row.GoalsFor, &row.GoalsAgainst, &row.Points}) {
      *figure = ToNumber(reader.Take());
    }
  }
  for (const std::string& team : teams) {
    const auto isTeam = [&team](const StandingsRow& row) { return row.Team == team; };
    if (standings.size() == teams.size()) break;
    if (std::none_of(standings.begin(), standings.end(), isTeam)) standings.push_back({team});
  }
  return standings;
}

ChangedFile ChangedStandings(const std::string& league, const std::vector<StandingsRow>& standings) {
  Lines lines;
  for (const StandingsRow& row : standings) {
    lines.push_back(row.Team);
    for (const int figure :
         {row.Played, row.Won, row.Drawn, row.Lost, row.GoalsFor, row.GoalsAgainst, row.Points}) {
      lines.push_back(std::to_string(figure));
    }
  }
  return {FileIn(ChampionshipKind::League, league + Standings), Encode(lines)};
}

FileResult AppendStandings(const ProgramFolder& folder, const std::string& league, const std::string& team) {
  if (!ChampionshipExists(folder, ChampionshipKind::League, league + Standings)) return {};
  FileResult failure = FinishChanges(folder);
  if (!failure.Ok()) return failure;
  Lines lines = ReadFile(folder, ChampionshipKind::League, league + Standings, &failure);
  if (!failure.Ok()) return failure;
  lines.resize(lines.size() / StandingsLines * StandingsLines);
  lines.push_back(team);
  lines.resize(lines.size() + StandingsLines - 1, "0");
  return WriteFile(folder, ChampionshipKind::League, league + Standings, lines);
}

std::vector<ScorerRow> ReadScorers(const ProgramFolder& folder, ChampionshipKind kind,
                                   const std::string& name, FileResult* failure) {
  Reader reader(ReadFile(folder, kind, name + Scorers, failure));
  std::vector<ScorerRow> scorers(reader.Left() / ScorerLines);
  for (ScorerRow& row : scorers) {
    row.Player = reader.Take();
    row.Team = reader.Take();
    row.Goals = ToNumber(reader.Take());
  }
  return scorers;
}

FileResult AddGoal(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name,
                   const std::string& player, const std::string& team) {
  FileResult failure = FinishChanges(folder);
  if (!failure.Ok()) return failure;
  Lines lines = ReadFile(folder, kind, name + Scorers, &failure);
  if (!failure.Ok()) return failure;
  lines.resize(lines.size() / ScorerLines * ScorerLines);
  bool known = false;
  for (std::size_t i = 0; i < lines.size(); i += ScorerLines) {
    if (lines[i] != player) continue;
    lines[i + 2] = std::to_string(Raised(ToNumber(lines[i + 2]), 1));
    known = true;
  }
  if (!known) lines.insert(lines.end(), {player, team, "1"});
  return WriteFile(folder, kind, name + Scorers, lines);
}

Lines ReadResults(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name) {
  return ReadFile(folder, kind, name + Results);
}

ChangedFile ChangedResults(const ProgramFolder& folder, ChampionshipKind kind, const std::string& name,
                           const std::array<std::string, 5>& block, FileResult* failure) {
  const std::string fileName = name + Results;
  std::optional<std::string> bytes;
  if (StaysInFolder(fileName)) bytes = ReadWholeFile(FolderOf(folder, kind) / fileName, failure);
  return {FileIn(kind, fileName), EncodeBehind(std::move(bytes).value_or(""), {block.begin(), block.end()})};
}

}  // namespace kickwell
