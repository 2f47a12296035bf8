#include "ui/widgets/button_row.h"

#include <QEvent>
#include <algorithm>

#include "ui/widgets/page_area.h"
#include "ui/widgets/scale.h"

namespace kickwell {

ButtonRow::ButtonRow()
    : rows_(new QBoxLayout(QBoxLayout::LeftToRight, this)), left_(new QHBoxLayout), right_(new QHBoxLayout) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  rows_->setContentsMargins(PageMargin, BetweenGroups, PageMargin, PageMargin);
  for (QBoxLayout* const layout : {rows_, static_cast<QBoxLayout*>(left_), static_cast<QBoxLayout*>(right_)})
    layout->setSpacing(InGroup);
  rows_->addLayout(left_);
  rows_->addLayout(right_);
}

void ButtonRow::Add(const WindowButtons& buttons) {
  for (QWidget* const button : buttons.Left) left_->addWidget(button);
  left_->addStretch();
  right_->addStretch();
  for (QWidget* const button : buttons.Right) right_->addWidget(button);
}

QSize ButtonRow::minimumSizeHint() const {
  const QMargins margins = rows_->contentsMargins();
  const int widest = std::max(left_->minimumSize().width(), right_->minimumSize().width());
  const int wanted = widest + margins.left() + margins.right();
  return {std::min(wanted, RoomOnScreen(this).width()), rows_->minimumSize().height()};
}

bool ButtonRow::event(QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
    const int wanted = left_->minimumSize().width() + rows_->spacing() + right_->minimumSize().width();
    const bool fits = wanted <= rows_->contentsRect().width();
    rows_->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  }
  return QWidget::event(event);
}

}  // namespace kickwell
