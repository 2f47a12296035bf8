#include "ui/screen_window.h"

#include <QKeyEvent>
#include <QPushButton>

namespace kickwell {

ScreenWindow::ScreenWindow(const char* name, const QString& caption, QWidget* parent) : QDialog(parent) {
  setObjectName(QLatin1String(name));
  setWindowTitle(caption);
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  setSizeGripEnabled(true);
}

void ScreenWindow::reject() {
  Act([this] { Leave(); });
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* const button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button != nullptr) {
    button->click();
  } else {
    QDialog::keyPressEvent(event);
  }
}

void ScreenWindow::Act(const std::function<void()>& action) {
  action();
  if (!IsClosed()) {
    Show();
  } else if (isVisible()) {  // An action within this one may have closed the window already.
    done(Accepted);
  }
}

}  // namespace kickwell
