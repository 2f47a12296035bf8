#include "ui/widgets/hint.h"

#include <QPainter>

#include "ui/widgets/appearance.h"
#include "ui/widgets/scale.h"

namespace kickwell {

void PaintHint(QAbstractItemView* list, const QString& hint) {
  constexpr QMargins Around(BetweenGroups, InGroup, BetweenGroups, InGroup);
  QPainter painter(list->viewport());
  painter.setPen(FaintText(list->palette()));
  const QRect room = list->viewport()->rect().marginsRemoved(Around);
  painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, hint);
}

}  // namespace kickwell
