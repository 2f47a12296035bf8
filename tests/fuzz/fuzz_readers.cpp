// Feeds any bytes to the readers of all data files: none may fail, and what a reader took must survive a
// save.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

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
  std::filesystem::create_directories(folder.Teams());
  for (const auto& file : {folder.Teams() / "Fuzz", folder.Stadiums()}) {
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  const auto team = LoadTeam(folder, "Fuzz");
  Expect(team.has_value());
  Expect(SaveTeam(folder, *team).Ok());
  const auto stadiums = LoadStadiums(folder);
  Expect(SaveStadiums(folder, stadiums).Ok());
  Expect(LoadStadiums(folder).size() == stadiums.size());
  return 0;
}
