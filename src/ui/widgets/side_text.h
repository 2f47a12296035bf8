// Lists that tell more about an entry, in faint text beside it.
#pragma once

#include <QStyledItemDelegate>

namespace kickwell {

/// The data role of an entry's side text, for example "MFC  75".
inline constexpr int SideTextRole = Qt::UserRole + 1;

/// Paints entries as usual, with the side text at the right edge. The entry's own text is cut before it
/// reaches the side text. All lists and the lists of all choosers use it. Screen readers are not told the
/// side text: set Qt::AccessibleTextRole, too.
class SideTextDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace kickwell
