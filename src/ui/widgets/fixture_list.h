// The fixtures of a championship, to choose from.
#pragma once

#include <utility>

#include "ui/widgets/choosers.h"

namespace kickwell {

/// A list whose selection is always one range of rows, without holes: whatever the user selects, all rows
/// from the first to the last of it are selected. The row with the frame need not be among them. The first
/// arrow key or a blank selects it. Enter selects it, too, unless it lies in a range of the user's, and goes
/// on to the window.
class FixtureList final : public SteadyList {
 public:
  explicit FixtureList(const QString& objectName);

  /// The first and the last selected row; ItemList::None for both without any.
  std::pair<int, int> Range() const;

  /// Selects these rows and scrolls to them, without the signals of a user's selection. Nothing if they are
  /// selected already.
  void SelectRange(int first, int last);

  /// Takes the range that is selected as the user's own.
  void MarkChosen() { chosen_ = true; }

  /// Puts the frame on `row`, below some of the rows before it, and selects nothing.
  void Frame(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  void Select(int first, int last);
  void SelectFramed();
  void ExtendFromRange();

  bool chosen_ = false;   ///< The user has chosen a range since Frame.
  bool extends_ = false;  ///< Qt extends the selection from an end of the range.
  bool starts_ = false;   ///< A selection starts, whatever keys are held.
};

}  // namespace kickwell
