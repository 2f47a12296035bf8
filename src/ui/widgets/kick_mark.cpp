#include "ui/widgets/kick_mark.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

constexpr int ColumnWidth = 360;  ///< From one mark of a row to the next, in screen units.

// In parts of a mark's size.
constexpr qreal DotRadius = 0.17, BallRadius = 0.27, RingRadius = 0.43, Ring = 0.09;

/// The outline of a cross of two bars.
QPainterPath Cross(const QPointF& centre, qreal reach) {
  const qreal half = reach / 3;  // Of a bar's width.
  QTransform turned;
  turned.translate(centre.x(), centre.y());
  turned.rotate(45);
  QPainterPath bars;
  bars.addRect(QRectF(-half, -reach, 2 * half, 2 * reach));
  QPainterPath across;
  across.addRect(QRectF(-reach, -half, 2 * reach, 2 * half));
  return turned.map(bars.united(across));
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

KickMark::KickMark() {
  SetRole(this, QAccessible::Graphic);
  const int size = Twips(this, ColumnWidth);
  setFixedSize(size, size);
}

void KickMark::SetMarker(const KickMarker& marker, const QString& kick, bool onView) {
  if (colour_ != marker.Colour || onView_ != onView) update();
  colour_ = marker.Colour;
  onView_ = onView;
  setVisible(marker.Visible);
  const QString toCome = onView ? QStringLiteral("Next") : QStringLiteral("To come");
  SetName(this, kick + ": " +
                    (colour_ == Lamp::Black   ? toCome
                     : colour_ == Lamp::Green ? QStringLiteral("Goal")
                                              : QStringLiteral("Miss")));
}

void KickMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre = QRectF(rect()).center();
  const qreal size = width();
  if (onView_) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), Ring * size));
    painter.drawEllipse(centre, RingRadius * size, RingRadius * size);
  }
  painter.setBrush(LampColour(colour_));
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
  if (colour_ == Lamp::Red) {
    painter.drawPath(Cross(centre, BallRadius * size));
  } else {
    const qreal radius = (colour_ == Lamp::Green ? BallRadius : DotRadius) * size;
    painter.drawEllipse(centre, radius, radius);
  }
}

}  // namespace kickwell
