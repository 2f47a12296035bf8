#include "folders.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "championship/fixtures.h"
#include "data/stadium_store.h"
#include "data/team_store.h"

namespace kickwell {
namespace {

/// Nothing can be measured in a folder that is not what it should be.
void Demand(const FileResult& result) {
  if (!result.Ok()) std::abort();
}

Lines ResultsLog(int lineCount) {
  const Lines block = {"Match 500:",
                       "Team 12 2 vs Team 17 1",
                       "Venue: Ground 12, Town",
                       "Total Attendence: 40632 (83%)",
                       "Winner: Team 12",
                       ""};
  Lines lines;
  for (std::size_t i = 0; lines.size() < static_cast<std::size_t>(lineCount); ++i) {
    lines.push_back(block[i % block.size()]);
  }
  return lines;
}

void FillAtLimits(const ProgramFolder& folder) {
  constexpr int Many = 1000;
  for (int i = 0; i < Many; ++i) WriteTeam(folder, TeamName(i), i < 2 ? Many : 0);
  WriteStadiums(folder, Many);

  Championship league{ChampionshipKind::League, AtLimits, TeamNames(MostTeamsOfLeague), {}};
  for (int i = 0; i < MostFixtures; ++i) {
    league.Fixtures.push_back(
        {i % 2 == 0 ? Played : NotPlayed, TeamName(i % MostTeamsOfLeague), TeamName(99 - i % 50), {}});
  }
  WriteLeague(folder, league, 5000, 15001);

  SeededRandom random(1);
  Championship knockOut{ChampionshipKind::KnockOut, AtLimits, TeamNames(MostTeamsOfKnockOut), {}};
  for (const Pairing& fixture : KnockOutFixture(knockOut.Teams, random)) {
    const int number = static_cast<int>(knockOut.Fixtures.size()) + 1;
    knockOut.Fixtures.push_back({NotPlayed, fixture.Home, fixture.Away, WinnerPlaceholder(number)});
  }
  Demand(WriteChampionship(folder, knockOut));
}

}  // namespace

MemoryFolder::MemoryFolder() {
  const std::filesystem::path memory = "/dev/shm";
  const std::filesystem::path parent =
      std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
  std::string path = (parent / "kickwell-bench-XXXXXX").string();
  if (::mkdtemp(path.data()) == nullptr) std::abort();
  Folder.Root = path;
}

MemoryFolder::~MemoryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(Folder.Root, ignored);
}

const ProgramFolder& FolderAtLimits() {
  static const MemoryFolder folder;
  static const bool filled = (FillAtLimits(folder.Folder), true);
  benchmark::DoNotOptimize(filled);
  return folder.Folder;
}

void WriteLeague(const ProgramFolder& folder, const Championship& league, int scorers, int logLines) {
  Lines tallies;
  for (int i = 0; i < scorers; ++i) {
    tallies.insert(tallies.end(),
                   {"Player " + std::to_string(i), TeamName(i % 32), std::to_string(i % 40 + 1)});
  }
  Demand(WriteChampionship(folder, league));
  Demand(
      ChangeFiles(folder, {ChangedStandings(league.Name, ReadStandings(folder, league.Name, league.Teams))}));
  Demand(WriteLines(folder.Leagues() / (league.Name + ".sco"), tallies, folder.Root));
  Demand(WriteLines(folder.Leagues() / (league.Name + ".lrs"), ResultsLog(logLines), folder.Root));
}

std::string TeamName(int number) {
  return "Team " + std::to_string(number);
}

std::vector<std::string> TeamNames(int count) {
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) names.push_back(TeamName(i));
  return names;
}

Championship GeneratedLeague() {
  SeededRandom random(1);
  Championship league{ChampionshipKind::League, AtLimits, TeamNames(MostTeamsOfGeneratedLeague), {}};
  for (const Pairing& fixture : LeagueFixture(league.Teams, random)) {
    league.Fixtures.push_back({NotPlayed, fixture.Home, fixture.Away, {}});
  }
  return league;
}

void WriteTeam(const ProgramFolder& folder, const std::string& name, int players) {
  const Lines positions = {"GK",  "DFL", "DFC", "DFC", "DFR", "MFL", "MFC", "MFC",
                           "MFR", "FDL", "FDR", "GK",  "DFC", "MFC", "FDC"};
  Team team{name, "70", {}};
  for (int i = 0; i < players; ++i) {
    const std::string& position = positions[static_cast<std::size_t>(i) % positions.size()];
    team.Players.push_back({name + " player " + std::to_string(i), "70", position});
  }
  Demand(SaveTeam(folder, team));
}

void WriteStadiums(const ProgramFolder& folder, int count) {
  std::vector<Stadium> stadiums;
  stadiums.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    stadiums.push_back({TeamName(i), "Ground " + std::to_string(i), "Town", "50000"});
  }
  Demand(SaveStadiums(folder, stadiums));
}

std::string ReadPlainly(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  if (!in) return {};
  std::string bytes(static_cast<std::size_t>(in.tellg()), '\0');
  in.seekg(0);
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void WritePlainly(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

void ReadAllPlainly(const std::vector<std::filesystem::path>& places) {
  for (const std::filesystem::path& place : places) {
    if (std::filesystem::is_directory(place)) {
      for (const auto& entry : std::filesystem::directory_iterator(place)) {
        benchmark::DoNotOptimize(entry.path().filename().string());
      }
    } else {
      benchmark::DoNotOptimize(ReadPlainly(place));
    }
  }
}

}  // namespace kickwell
