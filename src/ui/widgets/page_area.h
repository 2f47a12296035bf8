// A window's content, on screens of any size.
#pragma once

#include <QScrollArea>

namespace kickwell {

/// Shows all of `page` if the screen has room for it. Where it has not, on a small screen or with large type,
/// the page scrolls, and opens at its top.
class PageArea final : public QScrollArea {
 public:
  explicit PageArea(QWidget* page);

  /// The window grows no larger than leaves room on the screen for `below`, which stands under the page.
  void LeaveRoomFor(QWidget* below);

  /// Scrolls to `widget` if it is on the page.
  void ScrollTo(QWidget* widget);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QSize OnScreen(const QSize& wanted) const;

  QWidget* below_ = nullptr;
};

/// How large a window can be on the screen of `widget`, without its frame.
QSize RoomOnScreen(const QWidget* widget);

}  // namespace kickwell
