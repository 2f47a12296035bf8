// The stadium list: all stadiums in one text file of the program folder.
#pragma once

#include <string>
#include <vector>

#include "base/program.h"
#include "data/text_file.h"

namespace kickwell {

struct Stadium {
  std::string HomeTeam;  ///< A team's name, or "Neutral".
  std::string Name;
  std::string City;
  std::string Capacity;  ///< A whole number 1..99999 as it was entered.

  bool operator==(const Stadium&) const = default;
};

/// How a stadium is named as a venue: its name, ", " and its city.
std::string VenueText(const std::string& name, const std::string& city);

/// Whether there is a stadium list at all; an empty one is one.
bool StadiumListExists(const ProgramFolder& folder);

/// The stadiums in file order; empty when there is no list. Of a list whose count is no number or promises
/// more than the file holds, the complete records that are there. Of a list that cannot be read `failure` is
/// told.
std::vector<Stadium> LoadStadiums(const ProgramFolder& folder, FileResult* failure = nullptr);

/// Rewrites the whole list.
FileResult SaveStadiums(const ProgramFolder& folder, const std::vector<Stadium>& stadiums);

}  // namespace kickwell
