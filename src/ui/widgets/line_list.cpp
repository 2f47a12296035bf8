#include "ui/widgets/line_list.h"

#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "base/at.h"
#include "ui/text.h"

namespace kickwell {

LineList::LineList(const QString& objectName) : SteadyList(objectName) {
  setItemDelegate(new QStyledItemDelegate(this));  // Lines have nothing beside them and stand close together.
}

void LineList::ShowLines(const ItemList& lines) {
  if (count() >= lines.Count()) return;
  const int before = count();
  QStringList added;
  for (int i = before; i < lines.Count(); ++i) added.append(Shown(At(lines.Entries, i)));
  addItems(added);
  const auto longest = std::ranges::max_element(added, {}, &QString::size) - added.begin();
  const int row = before + static_cast<int>(longest);
  setGridSize(gridSize().expandedTo(sizeHintForIndex(model()->index(row, 0))));
  setCurrentRow(lines.Picked);
  scrollToBottom();
}

void LineList::resizeEvent(QResizeEvent* event) {
  const bool atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  SteadyList::resizeEvent(event);
  if (atEnd) scrollToBottom();
}

}  // namespace kickwell
