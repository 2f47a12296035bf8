// One side's line-up: eleven slots filled from a squad, and the figures that follow from them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/team_store.h"

namespace kickwell {

inline constexpr int SlotCount = LineUpSize;

/// From the own goal forward.
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
  std::string Note;           ///< Why there is no squad, where its team has no file.
  std::array<LineUpSlot, SlotCount> Slots;

  std::string Formation = "0-0-0";  ///< Defenders, midfielders and forwards.
  int OverallSkill = 0;             ///< Sum of the eleven skills divided by 11.
  int Goalkeepers = 0;

  /// Mean skill of each line; 0 for a line without players, none before the first choice.
  std::optional<int> Attack, Defence, Midfield, Keeping;

  bool CanPlay() const { return Squad.size() >= SlotCount; }

  /// Puts player `player` of the squad into slot `slot` and works out all figures again.
  void Choose(int slot, int player);

  /// The name chosen in a slot; empty before a choice.
  std::string NameIn(int slot) const;

  /// Whether the player chosen in a slot, or one of the same name, is chosen in another slot, too.
  bool IsChosenTwice(int slot) const;

  /// The chosen midfielders and forwards, in slot order: those who can score.
  std::vector<std::string> Attackers() const;

  /// The chosen defenders, midfielders and forwards, in slot order.
  std::vector<std::string> Outfield() const;

 private:
  void WorkOutFigures();

  /// The names chosen in `line` and the lines in front of it, in slot order.
  std::vector<std::string> NamesFrom(PositionLine line) const;
};

/// Why the two line-ups can't play, as a sentence for the user; nothing when they can. The rules are checked
/// in this order, side 1 first: no player twice, one goalkeeper, forwards, defenders, midfielders.
std::optional<std::string> LineUpFault(const LineUp& side1, const std::string& team1, const LineUp& side2,
                                       const std::string& team2);

}  // namespace kickwell
