#include "user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QtTest/QTest>
#include <stdexcept>
#include <utility>

namespace kickwell {
namespace {

constexpr int Beat = 5;  ///< Milliseconds between two looks at the windows.

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
    throw std::runtime_error("there is no " + name.toStdString() + " in " +
                             window.objectName().toStdString());
  return *widget;
}

}  // namespace

User::User(int patience) : patience_(patience) {
  LookAgain();
}

// One shot after the other: a repeating timer would not fire inside the loop of a screen that a step opened.
void User::LookAgain() {
  QTimer::singleShot(Beat, &context_, [this] { Next(); });
}

User& User::In(const QString& window) {
  window_ = window;
  return *this;
}

User& User::Add(Missing missing, Step step) {
  steps_.push_back({window_, std::move(missing), std::move(step)});
  return *this;
}

QString User::MissingNow() const {
  const Waiting& next = steps_.front();
  QWidget* const window = WindowInUse();
  if (window == nullptr || window->objectName() != next.Window) return next.Window + " is not in use";
  if (!window->isActiveWindow()) {  // Keys go to an active window only.
    window->activateWindow();
    return next.Window + " is not active";
  }
  const QString missing = next.Missing(*window);
  return missing.isEmpty() ? QString() : "in " + next.Window + ", " + missing;
}

void User::Next() {
  LookAgain();
  if (waiting_ || steps_.empty()) return;
  const QString missing = MissingNow();
  if (!missing.isEmpty()) {
    idle_ += Beat;
    if (idle_ < patience_) return;
    steps_.clear();
    throw std::runtime_error("the user waits in vain: " + missing.toStdString());
  }
  idle_ = 0;
  const Step step = std::move(steps_.front().Run);
  steps_.pop_front();
  step(*WindowInUse());
}

void User::Finish() {
  idle_ = 0;
  while (!steps_.empty()) QTest::qWait(Beat);
  QCoreApplication::processEvents();
}

void User::Wait(int milliseconds) {
  waiting_ = true;
  QTest::qWait(milliseconds);
  waiting_ = false;
}

User& User::When(Condition condition, Step step) {
  const auto missing = [condition = std::move(condition)](QWidget& window) {
    return condition == nullptr || condition(window) ? QString() : "the condition does not hold";
  };
  return Add(missing, std::move(step));
}

void User::When(const QString& window, Condition condition, Step step) {
  In(window).When(std::move(condition), std::move(step));
}

void User::In(const QString& window, Step step) {
  When(window, nullptr, std::move(step));
}

User& User::Click(const QString& button) {
  const auto missing = [button](QWidget& window) {
    return Find<QAbstractButton>(window, button).isEnabled() ? QString() : button + " is disabled";
  };
  return Add(missing, [button](QWidget& window) { Click(window, button); });
}

User& User::Pick(const QString& combo, int entry) {
  return Do([combo, entry](QWidget& window) { Pick(window, combo, entry); });
}

User& User::Type(const QString& box, const QString& text) {
  return Do([box, text](QWidget& window) { Type(window, box, text.toUtf8().constData()); });
}

User& User::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  return Do([key, modifiers](QWidget& window) { Press(window, key, modifiers); });
}

User& User::Choose(Qt::Key menu, Qt::Key item) {
  return Do([menu, item](QWidget& window) { Choose(window, menu, item); });
}

User& User::ExpectText(const QString& control, const QString& text) {
  const auto missing = [control, text](QWidget& window) {
    const QString shown = TextOf(window, control);
    return shown == text ? QString() : control + " shows \"" + shown + "\", not \"" + text + "\"";
  };
  return Add(missing, [](QWidget& /*window*/) {});
}

User& User::ExpectLines(const QString& list, const QStringList& lines) {
  const auto missing = [list, lines](QWidget& window) {
    const QStringList shown = LinesOf(window, list);
    return shown == lines ? QString() : list + " shows\n" + shown.join('\n') + "\nnot\n" + lines.join('\n');
  };
  return Add(missing, [](QWidget& /*window*/) {});
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

void User::Select(QWidget& window, const QString& list, int row) {
  auto& view = Find<QAbstractItemView>(window, list);
  const QRect place = view.visualRect(view.model()->index(row, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place.center());
}

void User::Type(QWidget& window, const QString& box, const char* text) {
  auto& edit = Find<QLineEdit>(window, box);
  edit.setFocus();
  edit.selectAll();
  QTest::keyClicks(&edit, QString::fromUtf8(text));
}

void User::Choose(QWidget& window, Qt::Key menu, Qt::Key item) {
  QTest::keyClick(&window, menu, Qt::AltModifier);
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr) throw std::runtime_error("the menu did not open");
  QTest::keyClick(popup, item);
}

QString User::TextOf(QWidget& window, const QString& control) {
  const auto& widget = Find<QWidget>(window, control);
  return widget.property(widget.inherits("QComboBox") ? "currentText" : "text").toString();
}

QStringList User::LinesOf(QWidget& window, const QString& list) {
  const QAbstractItemModel* const model = Find<QAbstractItemView>(window, list).model();
  QStringList lines;
  for (int row = 0; row < model->rowCount(); ++row) lines.append(model->index(row, 0).data().toString());
  return lines;
}

}  // namespace kickwell
