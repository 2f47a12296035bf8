// The buttons of a window.
#pragma once

#include <QBoxLayout>
#include <QList>
#include <QWidget>

namespace kickwell {

struct WindowButtons {
  QList<QWidget*> Left = {}, Right = {};
};

/// The buttons below a page. Where the window is too narrow for one row they stand in two, and on a screen
/// that is too narrow for those they shrink.
class ButtonRow final : public QWidget {
 public:
  ButtonRow();

  void Add(const WindowButtons& buttons);

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;

 private:
  QBoxLayout* rows_;
  QHBoxLayout *left_, *right_;
};

}  // namespace kickwell
