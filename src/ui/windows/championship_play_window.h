#pragma once

#include <QComboBox>
#include <QLabel>

#include "championship/championship_play.h"
#include "ui/widgets/fixture_list.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

/// The play settings of a league or a knock-out, which differ only in their captions.
class ChampionshipPlayWindow final : public ScreenWindow {
 public:
  ChampionshipPlayWindow(ChampionshipPlay& play, ChampionshipKind kind, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return play_.Closed; }
  void Leave() override { play_.Command2_Click(); }

 private:
  void PickRange();
  void ShowFixtures();

  ChampionshipPlay& play_;
  QComboBox *championships_, *from_, *to_, *simulationType_;
  FixtureList* fixtures_;
  QLabel* rangeText_;
};

}  // namespace kickwell
