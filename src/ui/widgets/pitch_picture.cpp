#include "ui/widgets/pitch_picture.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>

#include "engine/match_session.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

/// The field between the goal lines in screen units, around the centre spot. The goal spots are behind the
/// lines.
constexpr QRectF Field(40, 10, 4960, 760);
constexpr QMarginsF Run(170, 36, 170, 36);  ///< Grass around the field, with room for the goals.

/// A metre in screen units, along the field and across it: the field is 105 by 68 metres.
constexpr qreal Long = Field.width() / 105;
constexpr qreal Wide = Field.height() / 68;

const QColor LightStripe(0x3f, 0x9b, 0x46);
const QColor DarkStripe(0x36, 0x8a, 0x3e);

void DrawGrass(QPainter& painter, const QRectF& whole) {
  constexpr int Stripes = 14;
  painter.fillRect(whole, DarkStripe);
  const qreal width = Field.width() / Stripes;
  for (int i = 0; i < Stripes; i += 2) {
    painter.fillRect(QRectF(Field.left() + i * width, whole.top(), width, whole.height()), LightStripe);
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
  const QRectF whole = Field.marginsAdded(Run);
  QTransform units;
  units.scale(width() / whole.width(), height() / whole.height());
  units.translate(-whole.left(), -whole.top());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(units);
  DrawGrass(painter, whole);
  DrawLines(painter);
  painter.resetTransform();
  DrawBall(painter, units.map(ball_.Place()), std::clamp(height() / 34.0, 4.0, 10.0));
  DrawFocus(this);
}

}  // namespace kickwell
