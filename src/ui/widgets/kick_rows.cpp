#include "ui/widgets/kick_rows.h"

#include <QGridLayout>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/team_stripe.h"

namespace kickwell {
namespace {

constexpr int Names = 0, Stripes = 2, FirstMark = 4, EndOfMarks = FirstMark + KickCount / 2;

}  // namespace

int KickOnView(const MatchSession& session) {
  if (session.Controls.kickEnabled) return session.ShotNumber;
  return session.Controls.nextshotEnabled ? session.ShotNumber - 1 : -1;
}

KickRows::KickRows() {
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  side1_ = MakeRow(0, "Label4", "Team 1");
  side2_ = MakeRow(1, "Label7", "Team 2");
  for (int n = 0; n < KickCount; ++n) {
    auto* const mark = new KickMark;
    mark->setObjectName(ArrayName("penalty", n));
    At(marks_, n) = mark;
    const int column = FirstMark + n / 2;
    grid->addWidget(mark, n % 2, column);
    grid->setColumnMinimumWidth(column, mark->width());  // Hidden marks keep their room.
  }
  for (const int gap : {Names + 1, Stripes + 1}) grid->setColumnMinimumWidth(gap, 6);
  for (const int edge : {Names, EndOfMarks}) grid->setColumnStretch(edge, 1);
}

KickRows::Row KickRows::MakeRow(int row, QAnyStringView name, const QString& team) {
  const Row made{new TextLabel(team), MakeStripe(Qt::Vertical, 8)};
  made.Team->setObjectName(name);
  made.Team->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* const grid = static_cast<QGridLayout*>(layout());
  grid->addWidget(made.Team, row, Names);
  grid->addWidget(made.Stripe, row, Stripes);
  return made;
}

void KickRows::Show(const MatchSession& session) {
  const int kick = KickOnView(session);
  const bool over = kick < 0;
  ShowRow(side1_, session, session.Side1, !over && kick % 2 == 0, !over && kick % 2 != 0);
  ShowRow(side2_, session, session.Side2, !over && kick % 2 != 0, !over && kick % 2 == 0);
  for (int n = 0; n < KickCount; ++n) {
    const Side& side = n % 2 == 0 ? session.Side1 : session.Side2;
    At(marks_, n)->SetMarker(At(session.Controls.penalty, n),
                             Shown(side.Team) + QStringLiteral(", kick %1").arg(n / 2 + 1), n == kick);
  }
}

void KickRows::ShowRow(const Row& row, const MatchSession& session, const Side& side, bool kicks,
                       bool waits) {
  row.Team->setText(Shown(side.Team));
  QFont font = row.Team->font();
  font.setBold(kicks);
  row.Team->setFont(font);
  row.Team->SetFaint(waits);
  ShowTeam(row.Stripe, session, side);
}

}  // namespace kickwell
