#include "ui/widgets/page_area.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

namespace kickwell {

QSize RoomOnScreen(const QWidget* widget) {
  const int title = 2 * widget->style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const int frame = 4 * widget->style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return widget->screen()->availableSize() - QSize(frame, title);
}

PageArea::PageArea(QWidget* page) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(page);
}

void PageArea::LeaveRoomFor(QWidget* below) {
  below_ = below;
  below_->installEventFilter(this);
}

void PageArea::ScrollTo(QWidget* widget) {
  if (this->widget()->isAncestorOf(widget)) ensureWidgetVisible(widget);
}

QSize PageArea::OnScreen(const QSize& wanted) const {
  const QSize room = RoomOnScreen(this) - QSize(0, below_ == nullptr ? 0 : below_->sizeHint().height());
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  // A scroll bar for one direction takes its room from the other.
  const QSize bars(wanted.height() > room.height() ? bar : 0, wanted.width() > room.width() ? bar : 0);
  return (wanted + bars).boundedTo(room);
}

QSize PageArea::sizeHint() const {
  return OnScreen(widget()->sizeHint());
}

QSize PageArea::minimumSizeHint() const {
  QSize smallest = widget()->minimumSizeHint();
  const QLayout* const layout = widget()->layout();
  if (layout != nullptr && layout->hasHeightForWidth())
    smallest.setHeight(std::max(smallest.height(), layout->totalMinimumHeightForWidth(smallest.width())));
  return OnScreen(smallest);
}

bool PageArea::eventFilter(QObject* watched, QEvent* event) {
  const bool measured = watched == widget() || watched == below_;
  if (measured && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace kickwell
