#include "ui/widgets/line_list.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/hint.h"

namespace kickwell {
LineList::LineList(const QString& objectName) {
  setObjectName(objectName);
  setUniformItemSizes(true);
}

void LineList::ShowLines(const ItemList& lines) {
  if (count() == lines.Count() && picked_ == lines.Picked) return;
  for (int i = count(); i < lines.Count(); ++i) {
    addItem(Shown(At(lines.Entries, i)));
    if (item(i)->text().size() > item(longest_)->text().size()) longest_ = i;
  }
  if (std::exchange(picked_, lines.Picked) != lines.Picked) setCurrentRow(lines.Picked);
  scrollTo(IndexOf(count() - 1), EnsureVisible);
  if (count() > 0) SetDescription(this, {});
}

void LineList::SetHint(const QString& hint) {
  hint_ = hint;
  if (count() == 0) setAccessibleDescription(hint);
}

int LineList::WholeLines() const {
  return std::max(1, viewport()->height() / lineSize_.height());
}

int LineList::horizontalOffset() const {
  return horizontalScrollBar()->value();
}

int LineList::verticalOffset() const {
  return verticalScrollBar()->value() * lineSize_.height();
}

QRect LineList::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const int width = std::max(viewport()->width(), lineSize_.width());
  const int top = (index.row() - verticalScrollBar()->value()) * lineSize_.height();
  return {-horizontalOffset(), top, width, lineSize_.height()};
}

QModelIndex LineList::indexAt(const QPoint& point) const {
  return IndexOf((point.y() + verticalOffset()) / lineSize_.height());
}

void LineList::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  updateGeometries();
  const int first = verticalScrollBar()->value();
  const int lowest = index.row() - WholeLines() + 1;  // With this line at the top, `index` is at the bottom.
  const bool above = index.row() < first;
  const bool below = first < lowest;
  if (hint == PositionAtTop || (hint == EnsureVisible && above)) {
    verticalScrollBar()->setValue(index.row());
  } else if (hint == PositionAtBottom || (hint == EnsureVisible && below)) {
    verticalScrollBar()->setValue(lowest);
  } else if (hint == PositionAtCenter) {
    verticalScrollBar()->setValue((index.row() + lowest) / 2);
  }
}

void LineList::doItemsLayout() {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the layout of QListView is what takes long.
  QAbstractItemView::doItemsLayout();
}

void LineList::updateGeometries() {
  const bool atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
  if (count() > 0) lineSize_ = sizeHintForIndex(IndexOf(longest_)).expandedTo({0, 1});
  verticalScrollBar()->setSingleStep(1);
  verticalScrollBar()->setPageStep(WholeLines());
  verticalScrollBar()->setRange(0, count() - WholeLines());
  if (atEnd)
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());  // Also in a list of another size.
  horizontalScrollBar()->setSingleStep(lineSize_.height());
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setRange(0, lineSize_.width() - viewport()->width());
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): QListView would set the scroll bars by its own layout.
  QAbstractItemView::updateGeometries();
}

void LineList::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, dy * lineSize_.height());
}

QModelIndex LineList::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/) {
  const int last = count() - 1;
  const int row = currentRow();
  const auto within = [last](int wanted) { return std::clamp(wanted, 0, std::max(last, 0)); };
  switch (action) {
    case MoveHome:
      return IndexOf(0);
    case MoveEnd:
      return IndexOf(last);
    case MovePageUp:
      return IndexOf(within(row - WholeLines()));
    case MovePageDown:
      return IndexOf(within(row + WholeLines()));
    case MoveUp:
    case MovePrevious:
      return IndexOf(within(row - 1));
    case MoveDown:
    case MoveNext:
      return IndexOf(within(row + 1));
    default:
      return currentIndex();
  }
}

void LineList::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags flags) {
  selectionModel()->select(indexAt(area.center()), flags);
}

QRegion LineList::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QModelIndex& index : selection.indexes()) region += visualRect(index);
  return region & viewport()->rect();
}

void LineList::paintEvent(QPaintEvent* event) {
  if (count() == 0) PaintHint(this, hint_);
  QPainter painter(viewport());
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const QStyle::State state = option.state;
  const QModelIndex current = currentIndex();
  const int last =
      std::min(count() - 1, verticalScrollBar()->value() + WholeLines());  // One may show in part.
  for (int row = verticalScrollBar()->value(); row <= last; ++row) {
    const QModelIndex index = IndexOf(row);
    option.rect = visualRect(index);
    if (!option.rect.intersects(event->rect())) continue;
    option.state = state;
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    option.state.setFlag(QStyle::State_HasFocus, index == current && hasFocus());
    itemDelegate()->paint(&painter, option, index);
  }
}

}  // namespace kickwell
