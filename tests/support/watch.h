// What a window shows, as texts that a test compares.
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QTimer>
#include <map>
#include <string>
#include <utility>

#include "support/fakes.h"
#include "ui/widgets/kick_mark.h"
#include "ui/widgets/side_text.h"

namespace kickwell {

/// Watches everything that a window's user sees or is told: texts, entries, what is picked, enabled, visible
/// and checked, tips, colours, the focus, the button that Enter presses; and which timers run.
class Watch {
 public:
  explicit Watch(QWidget& window) : window_(window) { Look(); }

  /// What is new since the last look, by control, for example "Inn1: 1 (Rovers, goals)" or "kick is
  /// disabled", except for what `passedOver` matches. What has changed in hidden controls is told when they
  /// are shown.
  Texts Changed(const char* passedOver = "^$") {
    const Picture before = picture_;
    Look();
    Texts changes;
    for (const auto& [what, value] : picture_) {
      const auto old = before.find(what);
      const std::string was = old == before.end() ? "" : old->second;
      if (was == value) continue;
      const bool grown = !was.empty() && what.ends_with(" offers") && value.starts_with(was + " | ");
      const std::string change = what + (grown ? " more: " + value.substr(was.size() + 3) : " " + value);
      if (!ToText(change).contains(QRegularExpression(passedOver))) changes.push_back(change);
    }
    return changes;
  }

  /// All that `control` showed at the last look.
  Texts Of(const std::string& control) const {
    Texts all;
    for (const auto& [what, value] : picture_)
      if (IsOf(control, what) && !value.empty()) all.push_back(what.substr(control.size()) + " " + value);
    return all;
  }

 private:
  using Picture = std::map<std::string, std::string>;  ///< By control and what about it.

  static QString ToText(const std::string& text) { return QString::fromStdString(text); }

  static bool IsOf(const std::string& control, const std::string& what) {
    return what.starts_with(control + ":") || what.starts_with(control + " ");
  }

  void Set(const QString& control, const char* what, const QString& value) {
    picture_[control.toStdString() + what] = value.toStdString();
  }

  void Look() {
    QCoreApplication::processEvents();
    Set("window", " is", window_.isVisible() ? "open" : "closed");
    Set("focus", " on", window_.focusWidget() == nullptr ? QString() : window_.focusWidget()->objectName());
    QString grounds;
    for (QWidget* const widget : window_.findChildren<QWidget*>()) {
      if (IsNamed(*widget))
        LookAt(*widget);
      else if (widget->autoFillBackground() && widget->metaObject() == &QFrame::staticMetaObject)
        grounds += GroundOf(*widget) + " ";
    }
    Set("stripes", " are", grounds.trimmed());
    for (const QTimer* const timer : window_.findChildren<QTimer*>())
      if (!timer->objectName().isEmpty())
        Set(timer->objectName(), " is", timer->isActive() ? "running" : "stopped");
    for (const QAction* const item : window_.findChildren<QAction*>())
      if (!item->objectName().isEmpty() || item->menu() != nullptr)
        Set(item->text(), " is",
            QString(item->isEnabled() ? "enabled" : "disabled") + (item->isVisible() ? "" : ", hidden"));
  }

  void LookAt(QWidget& control) {
    const QString name = control.objectName();
    const bool known = picture_.contains(name.toStdString() + " is");
    Set(name, " is", StateOf(control));
    if (known && !control.isVisible()) return;
    Set(name, " tips", Plain(control.toolTip()));
    Set(name, " is told as", control.accessibleName());
    Set(name, " is described as", control.accessibleDescription());
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) {
      const QString caption = label->property("accessibleCaption").toString();
      Set(name, ":", label->text() + (caption.isEmpty() ? "" : " (" + caption + ")"));
      if (label->autoFillBackground()) Set(name, " stands on", GroundOf(*label));
    } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
      Set(name, ":", button->text());
      const auto* const push = qobject_cast<const QPushButton*>(button);
      if (push != nullptr && push->isDefault()) Set("Enter", " presses", name);
    } else if (const auto* const box = qobject_cast<const QLineEdit*>(&control)) {
      Set(name, ":", box->text() + (box->hasSelectedText() ? " (selected)" : ""));
    } else if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) {
      Set(name, ":", combo->currentText());
      Set(name, " offers", EntriesOf(*combo->model()));
    } else if (const auto* const list = qobject_cast<const QListWidget*>(&control)) {
      QStringList picked;
      for (const QListWidgetItem* const item : list->selectedItems()) picked.append(item->text());
      Set(name, ":", picked.join(" | "));
      Set(name, " offers", EntriesOf(*list->model()));
      const auto* const bar = list->verticalScrollBar();
      Set(name, " stands", bar->value() == bar->maximum() ? "at its end" : "above its end");
    }
  }

  static bool IsNamed(const QWidget& widget) {
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_");  // Qt's own parts.
  }

  /// Of a hidden part of the window only the part counts as hidden, not the controls in it.
  QString StateOf(QWidget& control) const {
    const QWidget* part = control.parentWidget();
    while (part != &window_ && !IsNamed(*part)) part = part->parentWidget();
    if (!control.isVisibleTo(part)) return "hidden";
    QString state = control.isEnabledTo(part) ? "enabled" : "disabled";
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    if (button != nullptr && button->isChecked()) state += ", checked";
    if (qobject_cast<const QLabel*>(&control) != nullptr && control.font().bold()) state += ", bold";
    if (dynamic_cast<const KickMark*>(&control) != nullptr && HasRing(control)) state += ", ringed";
    return state;
  }

  static bool HasRing(QWidget& mark) {
    const QImage image = mark.grab().toImage();
    const QRgb ring = mark.palette().color(QPalette::Highlight).rgb();
    for (int y = 0; y < image.height() / 2; ++y)
      if (image.pixel(image.width() / 2, y) == ring) return true;
    return false;
  }

  static QString GroundOf(const QWidget& widget) {
    return widget.palette().color(widget.backgroundRole()).name();
  }

  static QString Plain(const QString& tip) { return QTextDocumentFragment::fromHtml(tip).toPlainText(); }

  static QString EntriesOf(const QAbstractItemModel& model) {
    QStringList entries;
    for (int row = 0; row < model.rowCount(); ++row) {
      QString entry = model.index(row, 0).data().toString();
      for (const int role : {SideTextRole, int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)}) {
        const QString more = Plain(model.index(row, 0).data(role).toString());
        if (!more.isEmpty()) entry += " / " + more;
      }
      entries.append(entry);
    }
    return entries.join(" | ");
  }

  QWidget& window_;
  Picture picture_;
};

}  // namespace kickwell
