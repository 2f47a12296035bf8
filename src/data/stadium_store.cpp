#include "data/stadium_store.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace kickwell {
namespace {

/// The count that line 1 states; no limit when it is not a whole number.
std::size_t CountLimit(std::string_view line) {
  std::size_t count = 0;
  const char* const end = line.data() + line.size();
  const auto [stop, error] = std::from_chars(line.data(), end, count);
  return error == std::errc() && stop == end ? count : std::numeric_limits<std::size_t>::max();
}

}  // namespace

std::string VenueText(const std::string& name, const std::string& city) {
  return name + ", " + city;
}

bool StadiumListExists(const ProgramFolder& folder) {
  return FileExists(folder.Stadiums());
}

std::vector<Stadium> LoadStadiums(const ProgramFolder& folder, FileResult* failure) {
  const Lines lines = ReadLines(folder.Stadiums(), failure).value_or(Lines{});
  if (lines.empty()) return {};
  constexpr std::size_t RecordLines = 4;
  const std::size_t count = std::min(CountLimit(lines.front()), (lines.size() - 1) / RecordLines);
  std::vector<Stadium> stadiums;
  stadiums.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string* const record = &lines[1 + i * RecordLines];
    stadiums.push_back({record[0], record[1], record[2], record[3]});
  }
  return stadiums;
}

FileResult SaveStadiums(const ProgramFolder& folder, const std::vector<Stadium>& stadiums) {
  Lines lines{std::to_string(stadiums.size())};
  for (const Stadium& stadium : stadiums) {
    lines.insert(lines.end(), {stadium.HomeTeam, stadium.Name, stadium.City, stadium.Capacity});
  }
  return WriteLines(folder.Stadiums(), lines, folder.Root);
}

}  // namespace kickwell
