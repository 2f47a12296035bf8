#include "setup/line_up.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/at.h"
#include "base/number.h"

namespace kickwell {
namespace {

/// The slots of a line, and the sum of their skills. Files edited by hand may hold any number.
struct LineSum {
  int Slots = 0;
  std::int64_t Skill = 0;

  int MeanSkill() const { return Slots == 0 ? 0 : static_cast<int>(Skill / Slots); }
};

/// The player who stands in both slots of a pair, with his team. Of several pairs the last one counts, and
/// side 1 comes before side 2 in the same pair.
std::optional<std::string> ChosenTwice(const LineUp& side1, const std::string& team1, const LineUp& side2,
                                       const std::string& team2) {
  std::optional<std::string> twice;
  for (int i = 0; i < SlotCount - 1; ++i) {
    for (int k = i + 1; k < SlotCount; ++k) {
      if (side1.NameIn(i) == side1.NameIn(k)) {
        twice = side1.NameIn(i) + " of " + team1;
      } else if (side2.NameIn(i) == side2.NameIn(k)) {
        twice = side2.NameIn(i) + " of " + team2;
      }
    }
  }
  return twice;
}

}  // namespace

std::optional<PositionLine> LineOf(std::string_view position) {
  if (position == "GK") return PositionLine::Goalkeeper;
  if (position.size() != 3 || std::string_view("LRC").find(position[2]) == std::string_view::npos) return {};
  const std::string_view line = position.substr(0, 2);
  if (line == "DF") return PositionLine::Defence;
  if (line == "MF") return PositionLine::Midfield;
  if (line == "FD") return PositionLine::Attack;
  return {};
}

void LineUp::Choose(int slot, int player) {
  const Player& chosen = At(Squad, player);
  At(Slots, slot) = {player, chosen.Position, chosen.Skill};
  WorkOutFigures();
}

void LineUp::WorkOutFigures() {
  std::array<LineSum, 4> lines;
  std::int64_t total = 0;
  for (const LineUpSlot& slot : Slots) {
    const int skill = ToNumber(slot.Skill);
    total += skill;
    if (const std::optional<PositionLine> line = LineOf(slot.Position)) {
      LineSum& sum = At(lines, static_cast<int>(*line));
      ++sum.Slots;
      sum.Skill += skill;
    }
  }
  const auto& [keeping, defence, midfield, attack] = lines;  // As in PositionLine.
  OverallSkill = static_cast<int>(total / SlotCount);
  Goalkeepers = keeping.Slots;
  Formation = std::to_string(defence.Slots) + "-" + std::to_string(midfield.Slots) + "-" +
              std::to_string(attack.Slots);
  Attack = attack.MeanSkill();
  Defence = defence.MeanSkill();
  Midfield = midfield.MeanSkill();
  Keeping = keeping.MeanSkill();
}

std::string LineUp::NameIn(int slot) const {
  const int player = At(Slots, slot).Player;
  return player < 0 ? std::string() : At(Squad, player).Name;
}

bool LineUp::IsChosenTwice(int slot) const {
  if (At(Slots, slot).Player < 0) return false;
  for (int other = 0; other < SlotCount; ++other) {
    if (other != slot && NameIn(other) == NameIn(slot)) return true;
  }
  return false;
}

std::vector<std::string> LineUp::NamesFrom(PositionLine line) const {
  std::vector<std::string> names;
  for (int slot = 0; slot < SlotCount; ++slot) {
    if (LineOf(At(Slots, slot).Position) >= line) names.push_back(NameIn(slot));
  }
  return names;
}

std::vector<std::string> LineUp::Attackers() const {
  return NamesFrom(PositionLine::Midfield);
}

std::vector<std::string> LineUp::Outfield() const {
  return NamesFrom(PositionLine::Defence);
}

std::optional<std::string> LineUpFault(const LineUp& side1, const std::string& team1, const LineUp& side2,
                                       const std::string& team2) {
  if (const auto twice = ChosenTwice(side1, team1, side2, team2))
    return *twice + " has been selected more than once.";
  using Broken = bool (*)(const LineUp&);
  constexpr std::pair<Broken, const char*> Rules[] = {
      {[](const LineUp& side) { return side.Goalkeepers > 1; }, "There are more than one Goal Keeper for "},
      {[](const LineUp& side) { return side.Goalkeepers == 0; }, "There is no Goal Keeper for "},
      {[](const LineUp& side) { return side.Attack.value_or(0) == 0; }, "There are no Forwards for "},
      {[](const LineUp& side) { return side.Defence.value_or(0) == 0; }, "There are no Defenders for "},
      {[](const LineUp& side) { return side.Midfield.value_or(0) == 0; }, "There are no Mid-Fielders for "},
  };
  for (const auto& [broken, message] : Rules) {
    if (broken(side1)) return message + team1 + ".";
    if (broken(side2)) return message + team2 + ".";
  }
  return std::nullopt;
}

}  // namespace kickwell
