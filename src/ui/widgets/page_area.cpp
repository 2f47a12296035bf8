#include "ui/widgets/page_area.h"

#include <QApplication>
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
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
    const bool within = now != nullptr && widget()->isAncestorOf(now);
    if (within && old != nullptr && widget()->isAncestorOf(old)) ensureWidgetVisible(now);
  });
}

QSize PageArea::OnScreen(const QSize& wanted) const {
  const QSize room = RoomOnScreen(this);
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
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace kickwell
