// One side's line-up: eleven slots filled from a squad, and the figures that follow from them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/team_store.h"

namespace kickwell {

inline constexpr int SlotCount = 11;

enum class PositionLine { Goalkeeper, Defence, Midfield, Attack };

/// The line of a position code, for example "MFC"; none for a text that is no such code.
std::optional<PositionLine> LineOf(std::string_view position);

struct LineUpSlot {
  int Player = -1;          ///< Place in the squad; -1 before a choice.
  std::string Position;     ///< Of the chosen player, as his file has it.
  std::string Skill = "0";  ///< Likewise.
};

/// Figures are whole numbers, rounded towards zero; a skill text that is no number counts 0.
struct LineUp {
  std::string Reputation = "0";
  std::vector<Player> Squad;  ///< In file order.
  std::array<LineUpSlot, SlotCount> Slots;

  std::string Formation = "0-0-0";  ///< Defenders, midfielders and forwards.
  int OverallSkill = 0;             ///< Sum of the eleven skills divided by 11.
  int Goalkeepers = 0;
  std::optional<int> Attack, Defence, Midfield, Keeping;  ///< Mean skill of the line, 0 for an empty one;
                                                          ///< none before the first choice.

  bool CanPlay() const { return Squad.size() >= SlotCount; }

  /// Puts player `player` of the squad into slot `slot` and works the figures out anew.
  void Choose(int slot, int player);

  /// The name chosen in a slot; empty before a choice.
  std::string NameIn(int slot) const;

  /// The chosen midfielders and forwards, in slot order: those who can score.
  std::vector<std::string> Attackers() const;

  /// The chosen defenders, midfielders and forwards, in slot order.
  std::vector<std::string> Outfield() const;

 private:
  void WorkOutFigures();
  std::vector<std::string> NamesFrom(PositionLine line) const;
};

/// What keeps two line-ups from playing, in the words that the user is told; nothing when they may. Of
/// several reasons the first in the order of the rules: nobody twice, goalkeepers, forwards, defenders,
/// midfielders.
std::optional<std::string> LineUpFault(const LineUp& side1, const std::string& team1, const LineUp& side2,
                                       const std::string& team2);

}  // namespace kickwell
