#include "ui/widgets/ball.h"

#include <QRadialGradient>

namespace kickwell {

Ball::Ball(QWidget& picture, const QPointF& place, int duration, QEasingCurve::Type curve)
    : picture_(picture), place_(place), target_(place) {
  glide_.setDuration(duration);
  glide_.setEasingCurve(curve);
  QObject::connect(&glide_, &QVariantAnimation::valueChanged, &picture, [this](const QVariant& value) {
    place_ = value.toPointF();
    picture_.update();
  });
}

void Ball::GlideTo(const QPointF& place) {
  if (place == target_) return;
  if (!picture_.isVisible() || glide_.duration() == 0) {
    JumpTo(place);
    return;
  }
  target_ = place;
  glide_.stop();
  glide_.setStartValue(place_);
  glide_.setEndValue(place);
  glide_.start();
}

void Ball::JumpTo(const QPointF& place) {
  if (place == target_) return;
  glide_.stop();
  place_ = target_ = place;
  picture_.update();
}

void DrawBall(QPainter& painter, const QPointF& at, qreal radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 90));
  painter.drawEllipse(at + QPointF(radius * 0.5, radius * 0.8), radius, radius * 0.6);
  QRadialGradient leather(at - QPointF(radius * 0.4, radius * 0.4), radius * 1.7);
  leather.setColorAt(0, Qt::white);
  leather.setColorAt(1, QColor(0xb0, 0xb0, 0xb0));
  painter.setBrush(leather);
  painter.setPen(QPen(QColor(0x30, 0x30, 0x30), 1));
  painter.drawEllipse(at, radius, radius);
}

}  // namespace kickwell
