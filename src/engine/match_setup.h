// What the set-up screens hand to the match screen.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/championship.h"

namespace kickwell {

enum class MatchMode { Friendly, League, KnockOut };

constexpr std::string_view ToText(MatchMode mode) {
  switch (mode) {
    case MatchMode::Friendly:
      return "Friendly";
    case MatchMode::League:
      return "League";
    case MatchMode::KnockOut:
      return "KnockOut";
  }
  return {};
}

/// The kind of championship that a mode plays; none for a friendly.
constexpr std::optional<ChampionshipKind> KindOf(MatchMode mode) {
  switch (mode) {
    case MatchMode::League:
      return ChampionshipKind::League;
    case MatchMode::KnockOut:
      return ChampionshipKind::KnockOut;
    default:
      return std::nullopt;
  }
}

constexpr MatchMode ModeOf(ChampionshipKind kind) {
  return kind == ChampionshipKind::League ? MatchMode::League : MatchMode::KnockOut;
}

enum class SimulationKind { InstantResult, FullSimulation };

/// What choosers offer, in the order of SimulationKind.
inline constexpr auto SimulationTexts =
    std::to_array<std::string_view>({"Instant Result", "Full Simulation"});

struct WeatherKind {
  std::string_view Text;
  int AttendanceFactor = 0;  ///< The crowd stays below so many percent of the capacity.

  bool operator==(const WeatherKind&) const = default;
};

inline constexpr int SmallestCrowd = 50;  ///< Percent of the capacity. A smaller draw is drawn again.

/// All weathers, in the order in which choosers offer them.
inline constexpr auto Weathers = std::to_array<WeatherKind>({
    {"Clear Skies", 100},
    {"Overcast", 95},
    {"Rainy", 85},
    {"Warm & Humid", 90},
    {"Windy", 80},
});
static_assert(std::ranges::all_of(
                  Weathers, [](int factor) { return factor > SmallestCrowd; },
                  &WeatherKind::AttendanceFactor),
              "The crowd would be drawn for ever.");

/// What `ChampionshipName` says while no championship is chosen.
inline constexpr std::string_view NoChampionship = "N/A";

/// One match as the user set it up. Names are UTF-8; team 1 is the home team.
struct MatchSetup {
  MatchMode Mode = MatchMode::Friendly;
  std::string ChampionshipName{NoChampionship};
  int MatchNumber = 0;  ///< The fixture being played, from 1; 0 for a friendly.

  std::string Team1Name, Team2Name;
  int Team1Strength = 0, Team2Strength = 0;  ///< Mean skill of the eleven, rounded down: 1..99.
  std::vector<std::string> Team1Attackers, Team2Attackers;  ///< Midfielders and forwards, in line-up order.
  std::vector<std::string> Team1Outfield, Team2Outfield;    ///< All but the goalkeeper, in line-up order.

  SimulationKind SimulationType = SimulationKind::InstantResult;

  // For a friendly only. A championship match finds its own.
  bool ExtraTime = false;        ///< A level score goes to extra time with golden goal.
  bool PenaltyShootOut = false;  ///< A score that is still level goes to a penalty shoot-out.
  std::string Venue;             ///< Stadium name, ", ", city.
  int Capacity = 0;              ///< Seats, 1..99999.
  WeatherKind Weather = Weathers.front();
};

}  // namespace kickwell
