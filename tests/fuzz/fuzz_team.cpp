// Any bytes as a team and as the stadium list: what a reader takes survives a save.
#include <cstdint>

#include "data/stadium_store.h"
#include "data/team_store.h"
#include "fuzz/fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const ProgramFolder& folder = FuzzFolder().Folder;
  WriteBytes(folder.Teams() / "Fuzz", bytes);
  WriteBytes(folder.Stadiums(), bytes);
  const auto team = LoadTeam(folder, "Fuzz");
  Expect(team.has_value());
  Expect(team->Players.size() <= size);
  Expect(SaveTeam(folder, *team).Ok());
  Expect(LoadTeam(folder, "Fuzz") == team);
  const auto stadiums = LoadStadiums(folder);
  Expect(SaveStadiums(folder, stadiums).Ok());
  Expect(LoadStadiums(folder) == stadiums);
  return 0;
}
