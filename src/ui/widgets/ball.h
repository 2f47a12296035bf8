#pragma once

#include <QPainter>

namespace kickwell {

/// Draws the ball with its shadow around `at`.
void DrawBall(QPainter& painter, const QPointF& at, qreal radius);

}  // namespace kickwell
