#include "ui/widgets/ball.h"

#include <QRadialGradient>

namespace kickwell {

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
