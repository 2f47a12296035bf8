// The squad of a team.
#pragma once

#include <vector>

#include "data/team_store.h"
#include "ui/widgets/choosers.h"

namespace kickwell {

/// The players by name, with their positions and skills in faint text. A line under the eleventh shows where
/// the usual line-up ends.
class SquadList final : public SteadyList {
 public:
  explicit SquadList(const QString& objectName);

  /// Shows `players`, whose names are the entries of `names`.
  void ShowSquad(const ItemList& names, const std::vector<Player>& players);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kickwell
