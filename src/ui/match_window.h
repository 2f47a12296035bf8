#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "engine/match.h"
#include "ui/pitch.h"
#include "ui/screen_window.h"

namespace kickwell {

class MatchWindow final : public ScreenWindow {
 public:
  MatchWindow(Match& match, QWidget* parent);

 protected:
  void Show() override;
  bool IsClosed() const override { return match_.Closed; }
  void Leave() override { match_.Command1_Click(); }

 private:
  /// The widgets of one side of the pitch.
  struct SideWidgets {
    QLabel *Team, *Goals, *Penalties;
    QWidget* Score;  ///< Holds goals and penalties, the goals to the left.
    QLabel *Shots, *Corners, *Bookings, *Fouls, *Possession;
  };

  QWidget* BuildScoreBoard();
  void BuildScore(SideWidgets& side, int number);
  QWidget* BuildFacts(SideWidgets& side, int number);
  QLayout* BuildLists();
  QLayout* BuildButtons();
  void ShowSide(const SideWidgets& widgets, const Side& side, int penalties) const;

  Match& match_;
  SideWidgets side1_{}, side2_{};
  QLabel *label1_, *ven_, *label2_, *label3_;
  Pitch* picture2_;
  std::array<QListWidget*, 2> list1_{};
  std::array<QRadioButton*, 2> option1_{};
  QPushButton *halftime_, *instant_, *comSave_, *command1_;
};

}  // namespace kickwell
