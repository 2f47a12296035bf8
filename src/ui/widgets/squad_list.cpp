#include "ui/widgets/squad_list.h"

#include <QPainter>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/side_text.h"
#include "ui/widgets/text_label.h"

namespace kickwell {

SquadList::SquadList(const QString& objectName) : SteadyList(objectName) {
  LeaveRoomForSideTexts();
  setAccessibleName("Players");
  SetHint("Add the first player of the team on the right.");
}

void SquadList::ShowSquad(const ItemList& names, const std::vector<Player>& players) {
  ShowList(this, names);
  for (int i = 0; i < count(); ++i) {
    const Player& player = At(players, i);
    const QString code = Shown(player.Position), skill = Shown(player.Skill);
    const QString words = PositionWords(player.Position);
    const QString told = (words.isEmpty() ? code : words) + ", skill " + skill;
    item(i)->setData(SideTextRole, code + "  " + skill);
    item(i)->setData(Qt::AccessibleTextRole,
                     Shown(player.Name) + ", " + told + (i < LineUpSize ? ", in the line-up" : ""));
    item(i)->setToolTip(PlainTip(told));
  }
}

void SquadList::paintEvent(QPaintEvent* event) {
  SteadyList::paintEvent(event);
  if (count() <= LineUpSize) return;
  const QRect last = visualItemRect(item(LineUpSize - 1));
  QPainter painter(viewport());
  painter.setPen(FaintText(palette()));
  painter.drawLine(0, last.bottom(), viewport()->width(), last.bottom());
}

}  // namespace kickwell
