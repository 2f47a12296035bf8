#include "data/stadium_store.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "base/number.h"
#include "data/line_reader.h"
#include "data/text_file.h"

namespace kickwell {
namespace {

constexpr std::size_t StadiumLines = 4;

/// The count that line 1 states; no limit when it is not a whole number.
std::size_t CountLimit(std::string_view line) {
  const int count = NumberIn(line).value_or(-1);
  return count >= 0 ? static_cast<std::size_t>(count) : std::numeric_limits<std::size_t>::max();
}

std::vector<Stadium> TakeStadiums(LineReader& reader) {
  const std::size_t promised = CountLimit(reader.View());
  std::vector<Stadium> stadiums(std::min(promised, reader.RecordsLeft(StadiumLines)));
  for (Stadium& stadium : stadiums) {
    stadium = {reader.Text(), reader.Text(), reader.Text(), reader.Text()};
  }
  return stadiums;
}

}  // namespace

std::string VenueText(const Stadium& stadium) {
  return stadium.Name + ", " + stadium.City;
}

bool StadiumListExists(const ProgramFolder& folder) {
  return FileExists(folder.Files(), folder.Stadiums());
}

Loaded<std::vector<Stadium>> LoadStadiums(const ProgramFolder& folder) {
  const auto [lines, result] = ReadText(folder.Files(), folder.Stadiums());
  if (!lines) return {{}, result};
  LineReader reader(*lines);
  return {TakeStadiums(reader)};
}

FileResult SaveStadiums(const ProgramFolder& folder, const std::vector<Stadium>& stadiums) {
  const auto [lines, result] = ReadText(folder.Files(), folder.Stadiums());
  if (!result.Ok()) return result;
  LineReader former(lines.value_or(std::string()));
  TakeStadiums(former);
  EncodedText text;
  text.Add(static_cast<int>(stadiums.size()));
  for (const Stadium& stadium : stadiums) {
    for (const std::string* line : {&stadium.HomeTeam, &stadium.Name, &stadium.City, &stadium.Capacity}) {
      text.Add(*line);
    }
  }
  text.AddLines(former.Rest());
  return ReplaceFile(folder.Files(), folder.Stadiums(), text.Bytes(), folder.Root);
}

}  // namespace kickwell
