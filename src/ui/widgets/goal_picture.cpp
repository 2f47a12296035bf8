#include "ui/widgets/goal_picture.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

// The scene, in parts of the picture's width and height, seen from behind the taker.
constexpr qreal Middle = 0.5, GoalLine = 0.52;
constexpr QRectF Mouth(0.3, 0.12, 0.4, GoalLine - 0.12);
constexpr QRectF GoalArea(0.07, GoalLine, 0.86, 0.14);  ///< Wider towards the taker.
constexpr qreal Narrowing = 0.08;                       ///< Of its sides, up to the goal line.
constexpr qreal SpotHeight = 0.93;
constexpr qreal FlightHeight = 0.30;  ///< Of a ball that has arrived, in the net or beside it.

/// Where the scene shows a ball at this place. The net and both misses are left of the spot, the net only a
/// little: the cube root keeps the misses in sight and brings the net's ball away from the middle.
QPointF OnScene(const QPointF& ball) {
  constexpr qreal LeftOfSpot = 770, LeftOfMiddle = 0.4;  // The wider miss.
  const qreal near = ball.y() / PenaltySpot.Top;
  const qreal aside = std::cbrt((ball.x() - PenaltySpot.Left) / LeftOfSpot) * LeftOfMiddle;
  return {Middle + (1 - near) * aside, FlightHeight + near * (SpotHeight - FlightHeight)};
}

void DrawStandAndGrass(QPainter& painter) {
  painter.fillRect(QRectF(0, 0, 1, GoalLine), QColor(0x26, 0x34, 0x44));
  painter.setPen(Qt::NoPen);
  constexpr int Rows = 7, Seats = 72;
  for (int row = 0; row < Rows; ++row) {
    for (int seat = 0; seat < Seats; ++seat) {
      const int shade = 60 + (row * 37 + seat * 53 + row * seat * 7) % 80;
      painter.setBrush(QColor(shade, shade, shade + 22));
      painter.drawEllipse(QPointF((seat + row % 2 * 0.5) / Seats, (row + 0.6) * GoalLine / Rows), 0.005,
                          0.022);
    }
  }
  constexpr qreal Stripes[] = {GoalLine, 0.57, 0.63, 0.71, 0.82, 1};  // Wider towards the taker.
  for (std::size_t i = 0; i + 1 < std::size(Stripes); ++i) {
    painter.fillRect(QRectF(0, Stripes[i], 1, Stripes[i + 1] - Stripes[i]),
                     i % 2 == 0 ? QColor(0x3f, 0x9b, 0x46) : QColor(0x36, 0x8a, 0x3e));
  }
}

void DrawGoal(QPainter& painter) {
  painter.fillRect(Mouth, QColor(0, 0, 0, 130));
  painter.setPen(Chalk(painter, 70, 1));
  constexpr int Meshes = 28, MeshRows = 9;
  for (int i = 1; i < Meshes; ++i) {
    const qreal x = Mouth.left() + i * Mouth.width() / Meshes;
    painter.drawLine(QPointF(x, Mouth.top()), QPointF(x, GoalLine));
  }
  for (int i = 1; i < MeshRows; ++i) {
    const qreal y = Mouth.top() + i * Mouth.height() / MeshRows;
    painter.drawLine(QPointF(Mouth.left(), y), QPointF(Mouth.right(), y));
  }
  painter.setPen(Chalk(painter, 225, 2));
  painter.drawLine(QPointF(0, GoalLine), QPointF(1, GoalLine));
  const QPointF goalArea[] = {GoalArea.topLeft() + QPointF(Narrowing, 0), GoalArea.bottomLeft(),
                              GoalArea.bottomRight(), GoalArea.topRight() - QPointF(Narrowing, 0)};
  painter.drawPolyline(goalArea, 4);
  painter.setBrush(Qt::white);
  painter.drawEllipse(OnScene(QPointF(PenaltySpot.Left, PenaltySpot.Top)) + QPointF(0, 0.02), 0.014, 0.014);
  painter.setPen(Chalk(painter, 255, 4));
  const QPointF frame[] = {
      {Mouth.left(), GoalLine}, Mouth.topLeft(), Mouth.topRight(), {Mouth.right(), GoalLine}};
  painter.drawPolyline(frame, 4);
}

}  // namespace

GoalPicture::GoalPicture(int glide)
    : ball_(*this, {qreal(PenaltySpot.Left), qreal(PenaltySpot.Top)}, glide, QEasingCurve::OutQuad) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::TabFocus);
  SetRole(this, QAccessible::Graphic);
  setAccessibleName("Goal");
}

void GoalPicture::SetBall(SpotPoint point) {
  const QPointF place(point.Left, point.Top);
  if (point == PenaltySpot) {
    ball_.JumpTo(place);
  } else {
    ball_.GlideTo(place);
  }
}

void GoalPicture::paintEvent(QPaintEvent* /*event*/) {
  QTransform scene;
  scene.scale(width(), height());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(scene);
  DrawStandAndGrass(painter);
  DrawGoal(painter);
  painter.resetTransform();
  const qreal near = ball_.Place().y() / PenaltySpot.Top;
  DrawBall(painter, scene.map(OnScene(ball_.Place())), std::max(4.0, height() * (0.032 + 0.035 * near)));
  DrawFocus(this);
}

}  // namespace kickwell
