#include "ui/widgets/side_text.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "ui/widgets/appearance.h"
#include "ui/widgets/scale.h"

namespace kickwell {
namespace {

constexpr int Gap = BetweenGroups;  ///< Between the text and the side text, in pixels.
constexpr int Margin = 4;           ///< Between the side text and the edge.
constexpr int BetweenEntries = 4;
constexpr int UsualText = 30;  ///< A longer text asks for no more room, so that rows seldom scroll sideways.

QPalette::ColorGroup GroupOf(QStyle::State state) {
  if (!state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

void SideTextDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const QString whole = index.data(SideTextRole).toString();
  if (whole.isEmpty()) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem entry = option;
  initStyleOption(&entry, index);
  const QStyle* const style = entry.widget != nullptr ? entry.widget->style() : QApplication::style();
  const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &entry, entry.widget)
                         .adjusted(Margin, 0, -Margin, 0);
  const int free = room.width() - entry.fontMetrics.horizontalAdvance(entry.text) - Gap;
  const QString side = entry.fontMetrics.elidedText(whole, Qt::ElideRight, std::max(room.width() / 2, free));
  const int left = room.width() - entry.fontMetrics.horizontalAdvance(side) - Gap;
  entry.text = entry.fontMetrics.elidedText(entry.text, Qt::ElideRight, left);
  style->drawControl(QStyle::CE_ItemViewItem, &entry, painter, entry.widget);

  entry.palette.setCurrentColorGroup(GroupOf(entry.state));
  const bool selected = entry.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setFont(entry.font);
  painter->setPen(selected ? entry.palette.color(QPalette::HighlightedText) : FaintText(entry.palette));
  painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, side);
  painter->restore();
}

QSize SideTextDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index) + QSize(0, BetweenEntries);
  const QString side = index.data(SideTextRole).toString();
  if (side.isEmpty()) return size;
  const int usual = UsualText * option.fontMetrics.averageCharWidth();
  const int beside = std::min(usual, option.fontMetrics.horizontalAdvance(side));
  size.setWidth(std::min(size.width(), usual) + Gap + beside + 2 * Margin);
  return size;
}

}  // namespace kickwell
