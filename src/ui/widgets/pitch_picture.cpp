#include "ui/widgets/pitch_picture.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "engine/match_session.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

/// The field between the goal lines in screen units, around the centre spot. The goal spots are behind the
/// lines.
constexpr QRectF Field(40, 10, 4960, 760);

constexpr qreal Length = 105, Width = 68;  ///< Of the field, in metres.
constexpr qreal Run = 3.5;                 ///< Grass around it, at least, with room for the goals.

/// A metre in screen units, along the field and across it.
constexpr qreal Long = Field.width() / Length;
constexpr qreal Wide = Field.height() / Width;

const QColor LightStripe(0x3f, 0x9b, 0x46);
const QColor DarkStripe(0x36, 0x8a, 0x3e);

void DrawGrass(QPainter& painter, const QRectF& whole) {
  constexpr qreal Stripe = Field.width() / 14;
  painter.fillRect(whole, DarkStripe);
  const auto pairs = [](qreal grass) { return static_cast<int>(std::ceil(grass / (2 * Stripe))); };
  for (int i = -pairs(Field.left() - whole.left()); i < pairs(whole.right() - Field.left()); ++i) {
    const qreal left = Field.left() + i * 2 * Stripe;
    painter.fillRect(QRectF(left, whole.top(), Stripe, whole.height()), LightStripe);
  }
}

void DrawHalf(QPainter& painter) {
  const qreal middle = Field.center().y();
  const auto box = [&](qreal depth, qreal width) {
    painter.drawRect(QRectF(Field.left(), middle - width * Wide / 2, depth * Long, width * Wide));
  };
  box(16.5, 40.32);
  box(5.5, 18.32);
  const QPointF spot(Field.left() + 11 * Long, middle);
  painter.save();
  painter.setClipRect(QRectF(Field.left() + 16.5 * Long, Field.top(), Field.width(), Field.height()));
  painter.drawEllipse(spot, 9.15 * Long, 9.15 * Wide);
  painter.restore();
  painter.drawEllipse(spot, 0.15 * Long, 0.15 * Wide);
  for (const qreal corner : {Field.top(), Field.bottom()}) {
    painter.save();
    painter.setClipRect(Field);
    painter.drawEllipse(QPointF(Field.left(), corner), Long, Wide);
    painter.restore();
  }
  painter.fillRect(QRectF(Field.left() - 2.4 * Long, middle - 4.5 * Wide, 2.4 * Long, 9 * Wide),
                   QColor(255, 255, 255, 70));
  painter.drawRect(QRectF(Field.left() - 2.4 * Long, middle - 4.5 * Wide, 2.4 * Long, 9 * Wide));
}

void DrawLines(QPainter& painter) {
  painter.setPen(Chalk(painter, 225, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(Field);
  const QPointF centre(CentreSpotX, CentreSpotY);
  painter.drawLine(QPointF(centre.x(), Field.top()), QPointF(centre.x(), Field.bottom()));
  painter.drawEllipse(centre, 9.15 * Long, 9.15 * Wide);
  DrawHalf(painter);
  painter.save();
  painter.translate(2 * centre.x(), 0);
  painter.scale(-1, 1);
  DrawHalf(painter);
  painter.restore();
}

}  // namespace

PitchPicture::PitchPicture(int glide)
    : ball_(*this, {CentreSpotX, CentreSpotY}, glide, QEasingCurve::InOutQuad) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::TabFocus);
  SetRole(this, QAccessible::Graphic);
  setAccessibleName("Pitch");
}

void PitchPicture::SetBall(int x, int y) {
  ball_.GlideTo({qreal(x), qreal(y)});
}

void PitchPicture::paintEvent(QPaintEvent* /*event*/) {
  const qreal metre = std::min(width() / (Length + 2 * Run), height() / (Width + 2 * Run));
  QTransform units;
  units.translate(width() / 2.0, height() / 2.0);
  units.scale(metre / Long, metre / Wide);
  units.translate(-Field.center().x(), -Field.center().y());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(units);
  DrawGrass(painter, units.inverted().mapRect(QRectF(rect())));
  DrawLines(painter);
  painter.resetTransform();
  DrawBall(painter, units.map(ball_.Place()), std::clamp(2.2 * metre, 4.0, 10.0));
  DrawFocus(this);
}

}  // namespace kickwell
