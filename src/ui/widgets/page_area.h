// A window's content, on screens of any size.
#pragma once

#include <QScrollArea>

namespace kickwell {

/// Shows all of `page` if the screen has room for it. Where it has not, on a small screen or with large type,
/// the page scrolls: it opens at its top and follows the focus.
class PageArea final : public QScrollArea {
 public:
  explicit PageArea(QWidget* page);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QSize OnScreen(const QSize& wanted) const;
};

/// How large a window can be on the screen of `widget`, without its frame.
QSize RoomOnScreen(const QWidget* widget);

}  // namespace kickwell
