#include "setup/line_up.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/number.h"

namespace kickwell {
namespace {

/// The name chosen twice in the last pair of slots that holds one, with its team; side 1 before side 2 in a
/// pair.
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
  const Player& chosen = Squad.at(static_cast<std::size_t>(player));
  Slots.at(static_cast<std::size_t>(slot)) = {player, chosen.Position, chosen.Skill};
  WorkOutFigures();
}

void LineUp::WorkOutFigures() {
  std::array<int, 4> counts{};
  std::array<std::int64_t, 4> sums{};  // Skills of files edited by hand may be any number.
  std::int64_t total = 0;
  for (const LineUpSlot& slot : Slots) {
    const int skill = ToNumber(slot.Skill);
    total += skill;
    if (const std::optional<PositionLine> line = LineOf(slot.Position)) {
      ++counts[static_cast<std::size_t>(*line)];
      sums[static_cast<std::size_t>(*line)] += skill;
    }
  }
  const auto count = [&](PositionLine line) { return counts[static_cast<std::size_t>(line)]; };
  const auto mean = [&](PositionLine line) {
    return count(line) == 0 ? 0 : static_cast<int>(sums[static_cast<std::size_t>(line)] / count(line));
  };
  OverallSkill = static_cast<int>(total / SlotCount);
  Goalkeepers = count(PositionLine::Goalkeeper);
  Formation = std::to_string(count(PositionLine::Defence)) + "-" +
              std::to_string(count(PositionLine::Midfield)) + "-" +
              std::to_string(count(PositionLine::Attack));
  Attack = mean(PositionLine::Attack);
  Defence = mean(PositionLine::Defence);
  Midfield = mean(PositionLine::Midfield);
  Keeping = mean(PositionLine::Goalkeeper);
}

std::string LineUp::NameIn(int slot) const {
  const int player = Slots.at(static_cast<std::size_t>(slot)).Player;
  return player < 0 ? std::string() : Squad.at(static_cast<std::size_t>(player)).Name;
}

std::vector<std::string> LineUp::NamesFrom(PositionLine line) const {
  std::vector<std::string> names;
  for (int i = 0; i < SlotCount; ++i) {
    // The lines stand in the order of the pitch, so "from" a line means it and those before it.
    if (LineOf(Slots[static_cast<std::size_t>(i)].Position) >= line) names.push_back(NameIn(i));
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
