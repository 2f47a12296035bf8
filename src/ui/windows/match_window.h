#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <array>

#include "engine/match.h"
#include "engine/match_screen.h"
#include "ui/widgets/goal_picture.h"
#include "ui/widgets/kick_rows.h"
#include "ui/widgets/line_list.h"
#include "ui/widgets/pitch_picture.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

/// How long things take, in milliseconds. Tests use shorter times.
struct MatchTimings {
  int Tick = 1000;         ///< Of the clock: a minute of play.
  int GoalPause = 3000;    ///< After every goal.
  int ResultPause = 2000;  ///< Before Enter can leave a match that has just ended in play.
};

class MatchWindow final : public ScreenWindow, public MatchScreen {
 public:
  MatchWindow(Match& match, MatchTimings timings, QWidget* parent);

  void PauseFunction() override;

 protected:
  void Refresh() override;
  bool IsClosed() const override { return match_.Closed(); }
  void Leave() override { match_.Command1_Click(); }

 private:
  /// The widgets of one side of the pitch.
  struct SideWidgets {
    QLabel *Team, *Goals, *Penalties;
    QWidget* Score;  ///< Holds the goals and, right of them, the penalties.
    QFrame* Facts;   ///< Around the following.
    QLabel *Shots, *Corners, *Bookings, *Fouls, *Possession;
    std::array<QFrame*, 2> Stripes;  ///< In the team's colour, below its name and above its facts.
  };

  QWidget* BuildScoreBoard();
  void BuildScore(SideWidgets& side, int number);
  QWidget* BuildFacts(SideWidgets& side, int number);
  QWidget* BuildShootOut();
  QLayout* BuildLists();
  void ShowSide(const SideWidgets& widgets, const Side& side, bool hasBall) const;
  void ShowVenue(const MatchSession& session);
  void ShowClock(const MatchControls& controls);
  void ShowShootOut(const MatchControls& controls);
  void ShowLists(const MatchSession& session);
  LineList* ListOnView() const;
  void ShowButtons(const MatchControls& controls);
  void ShowEnd();
  void TellState(const MatchSession& session);

  Match& match_;
  MatchTimings timings_;
  QTimer timer1_{this};
  bool wasOver_ = false;
  SideWidgets side1_{}, side2_{};
  QLabel *label1_, *ven_, *label2_, *label3_;
  QLabel* over_;  ///< Says on the lamp that the match is over, when the clock is empty.
  PitchPicture* picture2_;
  GoalPicture* picture1_;
  KickRows* kicks_;
  QWidget *scoreBoard_ = nullptr, *shootOut_ = nullptr;
  LineList *summary_, *commentary_;
  std::array<QRadioButton*, 2> option1_{};
  QPushButton *halftime_, *instant_, *kick_, *nextshot_, *comSave_, *command1_;
};

}  // namespace kickwell
