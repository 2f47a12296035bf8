#include "ui/widgets/enter_key.h"

#include <QApplication>
#include <QKeyEvent>

namespace kickwell {
namespace {

class EnterFilter final : public QObject {
 public:
  explicit EnterFilter(QWidget* window) : QObject(window), window_(window) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!IsEnterPress(*event) || !watched->isWidgetType()) return false;
    if (static_cast<QKeyEvent*>(event)->isAutoRepeat()) return true;  // Also in boxes over the window.
    const bool takesEnter = watched->inherits("QComboBox") || watched->inherits("QAbstractButton");
    if (!takesEnter || static_cast<QWidget*>(watched)->window() != window_) return false;
    event->ignore();  // Qt passes it on to the control's parents.
    return true;
  }

 private:
  QWidget* window_;
};

}  // namespace

bool IsEnterPress(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void TakeEnterPastControls(QWidget* window) {
  new EnterFilter(window);
}

}  // namespace kickwell
