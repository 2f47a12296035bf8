#include "ui/widgets/kick_mark.h"

#include <QPainter>

#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

constexpr int ColumnWidth = 360;  ///< From one mark of a row to the next, in screen units.

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

void KickMark::SetMarker(const KickMarker& marker, const QString& kick) {
  if (colour_ != marker.Colour) update();
  colour_ = marker.Colour;
  setVisible(marker.Visible);
  setAccessibleName(kick + ": " +
                    (colour_ == Lamp::Black   ? "To come"
                     : colour_ == Lamp::Green ? "Goal"
                                              : "Miss"));
}

void KickMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(LampColour(colour_));
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
  painter.drawEllipse(QRectF(rect()).adjusted(5, 5, -5, -5));
}

}  // namespace kickwell
