#include "user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QtTest/QTest>
#include <stdexcept>
#include <utility>

namespace kickwell {
namespace {

constexpr int Beat = 20;  ///< Milliseconds between two looks at the windows.

/// The window that takes the user's input now.
QWidget* WindowInUse() {
  if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->objectName().isEmpty()) return window;
  }
  return nullptr;
}

template <typename Widget>
Widget& Find(QWidget& window, const QString& name) {
  auto* const widget = window.findChild<Widget*>(name);
  if (widget == nullptr)
    throw std::runtime_error("no " + name.toStdString() + " in " + window.objectName().toStdString());
  return *widget;
}

}  // namespace

User::User() {
  LookAgain();
}

// One shot after the other: a repeating timer would not fire inside the loop of a screen that a step opened.
void User::LookAgain() {
  QTimer::singleShot(Beat, &context_, [this] { Next(); });
}

void User::When(const QString& window, Condition condition, Step step) {
  steps_.push_back({window, std::move(condition), std::move(step)});
}

void User::Next() {
  LookAgain();
  if (waiting_) return;
  idle_ += Beat;
  QWidget* const window = WindowInUse();
  if (steps_.empty() || window == nullptr || window->objectName() != steps_.front().Window) return;
  if (!window->isActiveWindow()) {  // Keys go to an active window only.
    window->activateWindow();
    return;
  }
  if (steps_.front().Ready && !steps_.front().Ready(*window)) return;
  idle_ = 0;
  const Step step = std::move(steps_.front().Run);
  steps_.pop_front();
  step(*window);
}

bool User::Finish(int patience) {
  idle_ = 0;
  while (!steps_.empty() && idle_ < patience) QTest::qWait(Beat);
  QCoreApplication::processEvents();
  return steps_.empty();
}

void User::Wait(int milliseconds) {
  waiting_ = true;
  QTest::qWait(milliseconds);
  waiting_ = false;
}

void User::Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* const focus = window.focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &window, key, modifiers);
}

void User::Click(QWidget& window, const QString& button) {
  QTest::mouseClick(&Find<QAbstractButton>(window, button), Qt::LeftButton);
}

void User::Pick(QWidget& window, const QString& combo, int entry) {
  auto& box = Find<QComboBox>(window, combo);
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Home);
  for (int i = 0; i < entry; ++i) QTest::keyClick(&box, Qt::Key_Down);
}

void User::Choose(QWidget& window, int menuKey, int itemKey) {
  QTest::keyClick(&window, static_cast<Qt::Key>(menuKey), Qt::AltModifier);
  QWidget* const menu = QApplication::activePopupWidget();
  if (menu == nullptr) throw std::runtime_error("the menu did not open");
  QTest::keyClick(menu, static_cast<Qt::Key>(itemKey));
}

QString User::TextOf(QWidget& window, const QString& label) {
  return Find<QLabel>(window, label).text();
}

}  // namespace kickwell
