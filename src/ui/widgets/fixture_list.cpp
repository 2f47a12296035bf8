#include "ui/widgets/fixture_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "ui/widgets/enter_key.h"

namespace kickwell {

FixtureList::FixtureList(const QString& objectName) : SteadyList(objectName) {
  setSelectionMode(QAbstractItemView::ContiguousSelection);
}

std::pair<int, int> FixtureList::Range() const {
  const QModelIndexList selected = selectionModel()->selectedIndexes();
  if (selected.isEmpty()) return {ItemList::None, ItemList::None};
  const auto [first, last] = std::ranges::minmax(selected, {}, &QModelIndex::row);
  return {first.row(), last.row()};
}

void FixtureList::SelectRange(int first, int last) {
  const auto count = selectionModel()->selectedIndexes().size();
  if (Range() == std::pair(first, last) && count == last - first + 1) return;
  extends_ = false;
  const QSignalBlocker quiet(this);
  clearSelection();
  if (first < 0 || last < first || last >= this->count()) return;
  Select(first, last);
  for (const int row : {last, first}) scrollToItem(item(row));
}

void FixtureList::Select(int first, int last) {
  selectionModel()->select({model()->index(first, 0), model()->index(last, 0)},
                           QItemSelectionModel::ClearAndSelect);
}

void FixtureList::Frame(int row) {
  constexpr int Before = 2;
  extends_ = chosen_ = false;
  if (row == ItemList::None) return scrollToBottom();
  selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
  scrollToItem(item(std::max(row - Before, 0)), PositionAtTop);
}

void FixtureList::SelectFramed() {
  extends_ = false;
  selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

/// Makes the range that is selected the one that Shift extends, at its end. Nothing scrolls: a click must
/// reach the row under the mouse.
void FixtureList::ExtendFromRange() {
  if (std::exchange(extends_, true)) return;
  const auto [first, last] = Range();
  if (first == ItemList::None) return;
  const QSignalBlocker quiet(this);
  setAutoScroll(false);
  starts_ = true;
  setCurrentIndex(model()->index(first, 0));  // Qt extends from here.
  starts_ = false;
  Select(first, last);
  selectionModel()->setCurrentIndex(model()->index(last, 0), QItemSelectionModel::NoUpdate);
  setAutoScroll(true);
}

QItemSelectionModel::SelectionFlags FixtureList::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
  return starts_ ? QItemSelectionModel::ClearAndSelect : SteadyList::selectionCommand(index, event);
}

void FixtureList::keyPressEvent(QKeyEvent* event) {
  const bool framed = currentIndex().isValid();
  const bool apart = framed && !selectionModel()->isSelected(currentIndex());
  if (IsEnterPress(*event)) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (plain && (apart || (framed && !chosen_))) SelectFramed();
    return event->ignore();
  }
  chosen_ = true;
  switch (event->key()) {
    case Qt::Key_Space:
      if (framed) SelectFramed();
      return;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (apart && event->modifiers() == Qt::NoModifier) return SelectFramed();
      [[fallthrough]];
    default:
      if (event->modifiers().testFlag(Qt::ShiftModifier)) ExtendFromRange();
      SteadyList::keyPressEvent(event);
  }
}

void FixtureList::mousePressEvent(QMouseEvent* event) {
  chosen_ = true;
  if (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) ExtendFromRange();
  SteadyList::mousePressEvent(event);
}

}  // namespace kickwell
