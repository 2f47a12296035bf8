// The ball of the match's pictures.
#pragma once

#include <QEasingCurve>
#include <QPainter>
#include <QPointF>
#include <QVariantAnimation>
#include <QWidget>

namespace kickwell {

/// The ball on a picture, at a place in the picture's own units. It repaints the picture as it moves.
class Ball {
 public:
  /// A glide takes `duration` milliseconds. The picture must outlive the ball.
  Ball(QWidget& picture, const QPointF& place, int duration, QEasingCurve::Type curve);

  void GlideTo(const QPointF& place);  ///< Jumps there while the picture is hidden.
  void JumpTo(const QPointF& place);

  const QPointF& Place() const { return place_; }  ///< Where it is now, also on its way.

 private:
  QWidget& picture_;
  QPointF place_, target_;
  QVariantAnimation glide_;
};

/// Draws the ball with its shadow around `at`.
void DrawBall(QPainter& painter, const QPointF& at, qreal radius);

}  // namespace kickwell
