#include "ui/widgets/team_stripe.h"

#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"

namespace kickwell {

QFrame* MakeStripe(Qt::Orientation direction, int thickness) {
  auto* const stripe = new QFrame;
  stripe->setAutoFillBackground(true);
  SetRole(stripe, QAccessible::Separator);
  if (direction == Qt::Horizontal) {
    stripe->setFixedHeight(thickness);
  } else {
    stripe->setFixedWidth(thickness);
  }
  return stripe;
}

void ShowTeam(QFrame* stripe, const MatchSession& session, const Side& side) {
  // Both are visible on light and dark grounds, and colour-blind eyes tell them apart.
  static const QColor blue(0x2f, 0x7f, 0xe0), orange(0xcf, 0x6c, 0x00);
  const bool first = side.Team == session.Setup.Team1Name;
  SetColours(stripe, first ? blue : orange, stripe->palette().color(QPalette::WindowText));
}

}  // namespace kickwell
