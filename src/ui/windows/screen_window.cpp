#include "ui/windows/screen_window.h"

#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSizeGrip>
#include <algorithm>
#include <utility>

#include "ui/widgets/accessible.h"
#include "ui/widgets/enter_key.h"
#include "ui/widgets/scale.h"

namespace kickwell {
namespace {

/// The property under which the main window keeps the place of a screen's window.
QByteArray PlaceOf(const QWidget& window) {
  return "place of " + window.objectName().toLatin1();
}

/// A line under a page, as long as there is more of it.
QFrame* EdgeOf(const PageArea& page) {
  auto* const line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setForegroundRole(QPalette::Mid);
  QSizePolicy steady = line->sizePolicy();
  steady.setRetainSizeWhenHidden(true);
  line->setSizePolicy(steady);
  SetRole(line, QAccessible::Separator);
  line->setVisible(false);
  QObject::connect(page.verticalScrollBar(), &QScrollBar::rangeChanged, line,
                   [line](int least, int most) { line->setVisible(least < most); });
  return line;
}

}  // namespace

ScreenWindow::ScreenWindow(const char* name, const QString& caption, QWidget* parent)
    : QDialog(parent),
      page_(new QVBoxLayout(new QWidget)),
      buttons_(new ButtonRow),
      area_(new PageArea(page_->parentWidget())) {
  area_->LeaveRoomFor(buttons_);
  setObjectName(QLatin1String(name));
  setWindowTitle(caption);
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  TakeEnterPastControls(this);
  setSizeGripEnabled(true);
  findChild<QSizeGrip*>()->setAccessibleName("Size");
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(area_, 1);
  layout->addWidget(EdgeOf(*area_));
  layout->addWidget(buttons_);
  page_->setContentsMargins(PageMargin, PageMargin, PageMargin, 0);
  page_->setSpacing(BetweenGroups);
}

void ScreenWindow::OpenAt(int width, int height) {
  constexpr int UsualType = 15;  // The height of a line.
  const qreal type = std::max(1.0, qreal(fontMetrics().height()) / UsualType);
  resize((QSizeF(width, height) * type).toSize().expandedTo(sizeHint()).boundedTo(RoomOnScreen(this)));
  restoreGeometry(MainWindow()->property(PlaceOf(*this)).toByteArray());  // Does nothing if there is none.
}

/// The window that lives as long as the program. It keeps the places of the others.
QWidget* ScreenWindow::MainWindow() {
  QWidget* window = this;
  while (window->parentWidget() != nullptr) window = window->parentWidget();
  return window;
}

void ScreenWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // The desktop has placed the window by the time it gets the focus; later changes are its user's.
  if (event->type() == QEvent::ActivationChange && opened_.isNull()) opened_ = geometry();
}

void ScreenWindow::done(int result) {
  if (!opened_.isNull() && geometry() != opened_) MainWindow()->setProperty(PlaceOf(*this), saveGeometry());
  QDialog::done(result);
}

void ScreenWindow::reject() {
  Act([this] { Leave(); });
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  if (isVisible()) Act([this] { Leave(); });
  event->setAccepted(!isVisible());
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  auto* const button = qobject_cast<QPushButton*>(focusWidget());
  const bool enter = IsEnterPress(*event);
  if (enter && button != nullptr) {
    button->click();
  } else {
    QDialog::keyPressEvent(event);
  }
}

bool ScreenWindow::focusNextPrevChild(bool next) {
  const bool moved = QDialog::focusNextPrevChild(next);
  if (moved && focusWidget() != nullptr) area_->ScrollTo(focusWidget());
  return moved;
}

void ScreenWindow::GoTo(const std::string& control) {
  auto* const widget = control.empty() ? nullptr : findChild<QWidget*>(control.c_str());
  if (widget == nullptr) return;
  widget->setFocus();
  area_->ScrollTo(widget);
  if (auto* const box = qobject_cast<QLineEdit*>(widget)) box->selectAll();
}

void ScreenWindow::Act(const std::function<void()>& action) {
  action();
  if (!IsClosed()) {
    Refresh();
  } else if (isVisible()) {  // An action within this one may have closed the window already.
    done(Accepted);
    // When two screens close at once, some window managers give the keyboard to neither of those below.
    if (parentWidget() != nullptr) parentWidget()->activateWindow();
  }
}

QPushButton* ScreenWindow::Button(QAnyStringView name, const QString& caption, std::function<void()> action) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(name);
  button->setAutoDefault(false);
  if (caption.contains('<') || caption.contains('>') || caption.count('&') > 1) {
    QString words = caption;
    button->setAccessibleName(words.remove('&').remove('<').remove('>').trimmed());
  }
  connect(button, &QPushButton::clicked, this, [this, action = std::move(action)] { Act(action); });
  return button;
}

QPushButton* ScreenWindow::ArrowButton(QAnyStringView name, QStyle::StandardPixmap arrow, const QString& tip,
                                       std::function<void()> action) {
  QPushButton* const button = Button(name, {}, std::move(action));
  button->setIcon(style()->standardIcon(arrow));
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  return button;
}

void ScreenWindow::OnPick(QComboBox* combo, std::function<void(int)> action) {
  connect(combo, &QComboBox::activated, this,
          [this, action = std::move(action)](int entry) { Act([&] { action(entry); }); });
}

}  // namespace kickwell
