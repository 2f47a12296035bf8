// The room of a window's content.
#pragma once

#include <QScrollArea>

namespace kickwell {

/// Shows `page` whole as long as the screen has room for it, and scrolls it where it has not: on a small
/// screen or with large type. It opens at its top; whatever the focus moves on to is scrolled into view.
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

/// The room that a window has on the screen of `widget`, inside its frame.
QSize RoomOnScreen(const QWidget* widget);

}  // namespace kickwell
