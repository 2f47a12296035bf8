// Feeds any bytes to the readers of all data files: none may fail, and what a reader took must survive a
// save.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "data/championship_store.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "data/text_file.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  static const ProgramFolder folder{std::filesystem::temp_directory_path() /
                                    ("kickwell-fuzz-" + std::to_string(::getpid()))};
  static const bool removedAtExit =
      std::atexit([] { std::filesystem::remove_all(std::filesystem::path(folder.Root)); }) == 0;
  Expect(removedAtExit);
  constexpr auto League = ChampionshipKind::League;
  constexpr auto KnockOut = ChampionshipKind::KnockOut;
  for (const auto& made : {folder.Teams(), folder.Leagues(), folder.Tournies()}) {
    std::filesystem::create_directories(made);
  }
  for (const auto& file :
       {folder.Teams() / "Fuzz", folder.Stadiums(), folder.Leagues() / "Fuzz.leg",
        folder.Leagues() / "Fuzz.rec", folder.Leagues() / "Fuzz.sco", folder.Tournies() / "Fuzz.trn"}) {
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  const auto team = LoadTeam(folder, "Fuzz");
  Expect(team.has_value());
  Expect(SaveTeam(folder, *team).Ok());
  const auto stadiums = LoadStadiums(folder);
  Expect(SaveStadiums(folder, stadiums).Ok());
  Expect(LoadStadiums(folder).size() == stadiums.size());
  for (const auto kind : {League, KnockOut}) {
    auto read = ReadChampionship(folder, kind, MainFileName(kind, "Fuzz"));
    Expect(read.has_value());
    read->Name = "Fuzz";
    Expect(WriteChampionship(folder, *read).Ok());
    const auto again = ReadChampionship(folder, kind, MainFileName(kind, "Fuzz"));
    Expect(again->Teams.size() == read->Teams.size() && again->Fixtures.size() == read->Fixtures.size());
    Expect(kind == KnockOut || ReadStandings(folder, "Fuzz", read->Teams).size() <= read->Teams.size());
  }
  Expect(ReadBracket(folder, "Fuzz").has_value());
  ReadScorers(folder, League, "Fuzz");
  return 0;
}
