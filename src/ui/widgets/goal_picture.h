// The goal of the shoot-out, with the ball on its way.
#pragma once

#include <QWidget>

#include "engine/match_session.h"
#include "ui/widgets/ball.h"

namespace kickwell {

/// The goal as seen from behind the penalty taker. The ball's place is given in screen units: the penalty
/// spot is at 1250, 1400; the net and the places beside the goal are at the top. The picture decides how far
/// aside it shows them.
class GoalPicture final : public QWidget {
 public:
  explicit GoalPicture(int glide);  ///< How long the ball flies, in milliseconds.

  void SetBall(SpotPoint point);  ///< The ball flies to the goal, but is put back on the spot.

  QSize sizeHint() const override { return {560, 240}; }
  QSize minimumSizeHint() const override { return {240, 100}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Ball ball_;
};

}  // namespace kickwell
