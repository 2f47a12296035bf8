// The stadium list: all stadiums in one text file of the program folder.
#pragma once

#include <string>
#include <vector>

#include "data/file_result.h"
#include "data/program_folder.h"

namespace kickwell {

/// The home team of a stadium that is nobody's home.
inline constexpr const char* NoHomeTeam = "Neutral";

struct Stadium {
  std::string HomeTeam;  ///< A team's name, or NoHomeTeam.
  std::string Name;
  std::string City;
  std::string Capacity;  ///< A whole number 1..99999 as it was entered.

  bool operator==(const Stadium&) const = default;
};

/// How a stadium is named as a venue: its name, ", " and its city.
std::string VenueText(const Stadium& stadium);

/// Whether there is a stadium list at all; an empty one is one.
bool StadiumListExists(const ProgramFolder& folder);

/// The stadiums in file order; none when there is no list. If the count is no number or promises more than
/// the file holds, all complete records.
Loaded<std::vector<Stadium>> LoadStadiums(const ProgramFolder& folder);

/// Rewrites the whole list. What the file holds behind its stadiums stays there.
FileResult SaveStadiums(const ProgramFolder& folder, const std::vector<Stadium>& stadiums);

}  // namespace kickwell
