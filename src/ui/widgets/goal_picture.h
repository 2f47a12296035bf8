// The goal of the shoot-out, with the ball on its way.
#pragma once

#include <QPointF>
#include <QVariantAnimation>
#include <QWidget>

#include "engine/match_session.h"

namespace kickwell {

/// Draws the goal from behind the penalty taker. The ball's place is given in screen units of the picture:
/// the penalty spot at 1250, 1400, the net and the places beside the goal at the top.
class GoalPicture final : public QWidget {
 public:
  explicit GoalPicture(int glide);  ///< How long the ball flies, in milliseconds.

  void SetBall(SpotPoint point);

  QSize sizeHint() const override { return {560, 240}; }
  QSize minimumSizeHint() const override { return {240, 100}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF ball_;
  SpotPoint target_;
  QVariantAnimation flight_;
};

/// The mark of one kick: a small round lamp.
class KickMark final : public QWidget {
 public:
  KickMark();

  void SetMarker(const KickMarker& marker, const QString& kick);  ///< `kick` says whose and which it is.

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Lamp colour_ = Lamp::Black;
};

/// The colours of the lamps: black, pure green, pure red.
QColor LampColour(Lamp lamp);

}  // namespace kickwell
