// The pitch with its ball.
#pragma once

#include <QWidget>

#include "ui/widgets/ball.h"

namespace kickwell {

/// The pitch as seen from the stand, with the ball on it. The ball's place is given in the match's screen
/// units (0..5090 by 0..740, centre spot 2520, 390). The field keeps its shape; grass fills the rest.
class PitchPicture final : public QWidget {
 public:
  explicit PitchPicture(int glide);  ///< How long the ball glides, in milliseconds.

  void SetBall(int x, int y);

  QSize sizeHint() const override { return {560, 250}; }
  QSize minimumSizeHint() const override { return {240, 110}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Ball ball_;
};

}  // namespace kickwell
