// Lists of lines: those of the match, and the results.
#pragma once

#include <QListWidget>

#include "base/item_list.h"

namespace kickwell {

/// A list that only grows, with lines of one height. It works out the place of a line from its number.
/// QListView itself lays out all lines again whenever one is added, so that a late minute of a match would
/// cost more than an early one.
class LineList final : public QListWidget {
 public:
  explicit LineList(const QString& objectName);

  /// Shows `lines`, which have only grown since the last call. Scrolls to the newest if there is a new one;
  /// otherwise the user's place stays.
  void ShowLines(const ItemList& lines);

  /// Says in faint text what the list is for, as long as it has no lines.
  void SetHint(const QString& hint);

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;
  void doItemsLayout() override;

 protected:
  int horizontalOffset() const override;
  int verticalOffset() const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags flags) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QModelIndex IndexOf(int row) const { return model()->index(row, modelColumn()); }
  int WholeLines() const;  ///< How many lines have room in the list; at least 1.

  QSize lineSize_{0, 1};  ///< The longest line's, which stands for all.
  int longest_ = 0;       ///< The line with the most characters.
  int picked_ = ItemList::None;
  QString hint_;
};

}  // namespace kickwell
