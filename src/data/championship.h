// What a championship is: its kind and name, teams, fixtures, standings and scorers.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kickwell {

enum class ChampionshipKind { League, KnockOut };

/// What tells a championship from all others. Its files bear its name.
struct ChampionshipId {
  ChampionshipKind Kind = ChampionshipKind::League;
  std::string Name;

  bool operator==(const ChampionshipId&) const = default;
};

/// What a fixture's status says.
inline constexpr const char* NotPlayed = "NP";
inline constexpr const char* Played = "P";

/// Who plays whom. In a knock-out an entry may be the placeholder of a fixture's winner.
struct Pairing {
  std::string Home, Away;

  bool operator==(const Pairing&) const = default;
};

struct Fixture {
  std::string Status;  ///< "NP" or "P".
  std::string Home, Away;
  /// Knock-out only: the placeholder of this fixture until it is played, then the winner.
  std::string Winner;

  bool operator==(const Fixture&) const = default;
};

struct Championship {
  ChampionshipId Id;
  std::vector<std::string> Teams;
  std::vector<Fixture> Fixtures;  ///< Number k stands at place k - 1.
  std::string Rest{};  ///< What a damaged file holds behind its fixtures, with CR LF after each line.

  bool operator==(const Championship&) const = default;
};

struct StandingsRow {
  std::string Team;
  int Played = 0, Won = 0, Drawn = 0, Lost = 0, GoalsFor = 0, GoalsAgainst = 0, Points = 0;

  /// The figures in the order of the file and of the table's columns.
  static constexpr std::array<int StandingsRow::*, 7> Figures() {
    return {&StandingsRow::Played,   &StandingsRow::Won,          &StandingsRow::Drawn, &StandingsRow::Lost,
            &StandingsRow::GoalsFor, &StandingsRow::GoalsAgainst, &StandingsRow::Points};
  }

  bool operator==(const StandingsRow&) const = default;
};

struct ScorerRow {
  std::string Player, Team;
  int Goals = 0;

  bool operator==(const ScorerRow&) const = default;
};

/// A fixture as every screen shows it: "Match ", its number (from 1), home and away.
inline std::string FixtureText(int number, const Pairing& teams) {
  return "Match " + std::to_string(number) + ": " + teams.Home + " v " + teams.Away;
}

/// What a name carries that was decided by toss.
inline constexpr std::string_view TossSuffix = " (By Toss)";

/// `name` without the suffix of a toss, if it has one.
inline std::string WithoutToss(const std::string& name) {
  return name.ends_with(TossSuffix) ? name.substr(0, name.size() - TossSuffix.size()) : name;
}

}  // namespace kickwell
