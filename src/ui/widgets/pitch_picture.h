// The pitch with its ball.
#pragma once

#include <QPointF>
#include <QVariantAnimation>
#include <QWidget>

namespace kickwell {

/// Draws a pitch seen from the stand and the ball on it. The ball's place is given in the match's screen
/// units (0..5090 by 0..740, centre spot 2520, 390), which are scaled to the widget.
class PitchPicture : public QWidget {
 public:
  explicit PitchPicture(int glide);  ///< How long the ball glides, in milliseconds.

  void SetBall(int x, int y);

  QSize sizeHint() const override { return {560, 250}; }
  QSize minimumSizeHint() const override { return {240, 110}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF ball_, target_;
  QVariantAnimation glide_;
};

}  // namespace kickwell
