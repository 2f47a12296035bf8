// What the set-up screens hand to the match screen.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/championship.h"

namespace kickwell {

enum class MatchMode { Friendly, League, KnockOut };
enum class WeatherCondition { ClearSkies, Overcast, Rainy, WarmAndHumid, Windy };
enum class SimulationKind { InstantResult, FullSimulation };

/// The texts of each set in the order of its values, which is the order in which choosers offer them.
inline constexpr std::array<std::string_view, 3> ModeTexts = {"Friendly", "League", "KnockOut"};
inline constexpr std::array<std::string_view, 5> WeatherTexts = {"Clear Skies", "Overcast", "Rainy",
                                                                 "Warm & Humid", "Windy"};
inline constexpr std::array<std::string_view, 2> SimulationTexts = {"Instant Result", "Full Simulation"};

constexpr std::string_view ToText(MatchMode mode) {
  return ModeTexts[static_cast<std::size_t>(mode)];
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

  // The rest is set for a friendly only; a championship match finds its own.
  bool ExtraTime = false;        ///< A level score goes to extra time with golden goal.
  bool PenaltyShootOut = false;  ///< A score that is still level goes to a penalty shoot-out.
  std::string Venue;             ///< Stadium name, ", ", city.
  int Capacity = 0;              ///< Seats, 1..99999.
  WeatherCondition Weather = WeatherCondition::ClearSkies;
};

}  // namespace kickwell
