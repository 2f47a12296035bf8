#include "ui/goal.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>

#include "ui/ball.h"
#include "ui/widgets.h"

namespace kickwell {
namespace {

/// What the widget shows, in screen units. The ball's place is its left and top on the spot, where it is
/// largest.
constexpr QRectF View(380, -330, 1980, 2030);
constexpr qreal BallSize = 240;
constexpr QRectF Mouth(1195, -150, 350,
                       280);  ///< Between the places where a ball scores and where it misses.
constexpr qreal GoalLine = Mouth.bottom();

constexpr int ColumnWidth = 360;  ///< From marker to marker of a row, in screen units.

void DrawScene(QPainter& painter) {
  painter.fillRect(QRectF(View.left(), View.top(), View.width(), GoalLine - View.top()),
                   QColor(0x2b, 0x3a, 0x4a));
  // The crowd: rows of dots behind the goal.
  painter.setPen(Qt::NoPen);
  for (int row = 0; row < 5; ++row) {
    for (int i = 0; i < 60; ++i) {
      const int shade = 70 + (row * 37 + i * 53) % 90;
      painter.setBrush(QColor(shade, shade, shade + 20));
      painter.drawEllipse(QPointF(View.left() + i * 34 + (row % 2) * 17, View.top() + 40 + row * 75), 11, 24);
    }
  }
  constexpr int Stripes = 6;
  const qreal depth = (View.bottom() - GoalLine) / Stripes;
  for (int i = 0; i < Stripes; ++i) {
    painter.fillRect(QRectF(View.left(), GoalLine + i * depth, View.width(), depth),
                     i % 2 == 0 ? QColor(0x3f, 0x9b, 0x46) : QColor(0x36, 0x8a, 0x3e));
  }
}

void DrawFrame(QPainter& painter) {
  painter.fillRect(Mouth, QColor(0, 0, 0, 110));
  QPen net(QColor(255, 255, 255, 90), 1);
  net.setCosmetic(true);
  painter.setPen(net);
  for (qreal x = Mouth.left(); x <= Mouth.right(); x += 25)
    painter.drawLine(QPointF(x, Mouth.top()), QPointF(x, GoalLine));
  for (qreal y = Mouth.top(); y <= GoalLine; y += 40)
    painter.drawLine(QPointF(Mouth.left(), y), QPointF(Mouth.right(), y));
  QPen chalk(QColor(255, 255, 255, 225), 2);
  chalk.setCosmetic(true);
  painter.setPen(chalk);
  painter.drawLine(QPointF(View.left(), GoalLine), QPointF(View.right(), GoalLine));
  const qreal near = GoalLine + 900;  // The penalty area opens towards the taker.
  const QPointF area[] = {{Mouth.left() - 330, GoalLine},
                          {View.left() - 200, near},
                          {View.right() + 200, near},
                          {Mouth.right() + 330, GoalLine}};
  painter.drawPolyline(area, 4);
  chalk.setWidth(4);
  chalk.setColor(Qt::white);
  painter.setPen(chalk);
  const QPointF frame[] = {
      {Mouth.left(), GoalLine}, Mouth.topLeft(), Mouth.topRight(), {Mouth.right(), GoalLine}};
  painter.drawPolyline(frame, 4);
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(PenaltySpot.Left + BallSize / 2, PenaltySpot.Top + BallSize), 40, 18);
}

}  // namespace

QColor LampColour(Lamp lamp) {
  switch (lamp) {
    case Lamp::Green:
      return {0, 255, 0};
    case Lamp::Red:
      return {255, 0, 0};
    default:
      return {0, 0, 0};
  }
}

Goal::Goal(int glide) : ball_(PenaltySpot.Left, PenaltySpot.Top), target_(PenaltySpot) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  flight_.setDuration(glide);
  flight_.setEasingCurve(QEasingCurve::OutQuad);
  connect(&flight_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
    ball_ = value.toPointF();
    update();
  });
}

void Goal::SetBall(SpotPoint point) {
  if (point == target_) return;
  target_ = point;
  flight_.stop();
  flight_.setStartValue(ball_);
  flight_.setEndValue(QPointF(point.Left, point.Top));
  if (isVisible() && point != PenaltySpot) {
    flight_.start();
  } else {
    ball_ = QPointF(point.Left, point.Top);
    update();
  }
}

void Goal::paintEvent(QPaintEvent* /*event*/) {
  QTransform units;
  units.scale(width() / View.width(), height() / View.height());
  units.translate(-View.left(), -View.top());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(units);
  DrawScene(painter);
  DrawFrame(painter);
  painter.resetTransform();
  // Far away the ball is a quarter of its size, around the same middle.
  const qreal near = std::clamp(ball_.y() / PenaltySpot.Top, 0.0, 1.0);
  const qreal radius = std::max(4.0, height() * 0.06 * (0.3 + 0.7 * near));
  DrawBall(painter, units.map(ball_ + QPointF(BallSize / 2, BallSize / 2 * near)), radius);
}

KickMark::KickMark() {
  const int size = Twips(this, ColumnWidth);
  setFixedSize(size, size);
}

void KickMark::SetMarker(const KickMarker& marker) {
  if (colour_ != marker.Colour) update();
  colour_ = marker.Colour;
  setVisible(marker.Visible);
  setAccessibleName(colour_ == Lamp::Black   ? tr("To come")
                    : colour_ == Lamp::Green ? tr("Goal")
                                             : tr("Miss"));
}

void KickMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(LampColour(colour_));
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
  painter.drawEllipse(QRectF(rect()).adjusted(5, 5, -5, -5));
}

}  // namespace kickwell
