// Any bytes as a team and as the stadium list: what a reader takes survives a save.
#include <cstdint>

#include "data/stadium_store.h"
#include "data/team_store.h"
#include "fuzz/memory_disk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const ProgramFolder& folder = MemoryFolder();
  Disk() = {{"Teams/Fuzz", bytes}, {"stadiums.sim", bytes}};
  const auto team = LoadTeam(folder, "Fuzz");
  Expect(team.has_value());
  Expect(team->Players.size() <= size);
  Expect(SaveTeam(folder, *team).Ok());
  Expect(LoadTeam(folder, "Fuzz") == team);
  const auto stadiums = LoadStadiums(folder);
  Expect(SaveStadiums(folder, stadiums).Ok());
  Expect(LoadStadiums(folder) == stadiums);
  Expect(Disk().size() == 2);
  return 0;
}
