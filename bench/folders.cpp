#include "folders.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "data/text_file.h"

namespace kickwell {

BenchFolder::BenchFolder() : Folder({}, files_) {
  const std::filesystem::path memory = "/dev/shm";
  const std::filesystem::path parent =
      std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
  std::string path = (parent / "kickwell-bench-XXXXXX").string();
  if (::mkdtemp(path.data()) == nullptr) std::abort();
  Folder.Root = path;
}

BenchFolder::~BenchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(Folder.Root, ignored);
}

void Require(const FileResult& result) {
  if (!result.Ok()) std::abort();
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

void WriteLeague(const ProgramFolder& folder, const Championship& league, LeagueLength length) {
  Require(WriteChampionship(folder, league));
  const auto standings = ReadStandings(folder, league.Id, league.Teams);
  Require(ChangeFiles(folder, {ChangedStandings(league.Id, standings.Value)}));

  EncodedText tallies;
  for (int i = 0; i < length.Scorers; ++i) {
    tallies.Add("Player " + std::to_string(i));
    tallies.Add(TeamName(i % 32));
    tallies.Add(i % 40 + 1);
  }
  const Lines block = {"Match 500:",
                       "Team 12 2 vs Team 17 1",
                       "Venue: Ground 12, Town",
                       "Total Attendence: 40632 (83%)",
                       "Winner: Team 12",
                       ""};
  EncodedText log;
  for (std::size_t i = 0; i < static_cast<std::size_t>(length.LogLines); ++i)
    log.Add(block[i % block.size()]);
  const std::filesystem::path file = folder.Leagues() / league.Id.Name;
  Require(ReplaceFile(folder.Files(), file.string() + ".sco", tallies.Bytes(), folder.Root));
  Require(ReplaceFile(folder.Files(), file.string() + ".lrs", log.Bytes(), folder.Root));
}

}  // namespace kickwell
