// What a window shows, as texts that a test compares.
#pragma once

#include <QtWidgets>
#include <map>
#include <string>
#include <utility>

#include "support/fakes.h"
#include "ui/widgets/kick_mark.h"
#include "ui/widgets/side_text.h"

namespace kickwell {

/// Watches everything that a window's user sees or is told: texts, entries, what is picked, enabled, visible
/// and checked, tips, colours, the button that Enter presses, the focus unless a button has it, and which
/// timers run.
class Watch {
 public:
  explicit Watch(QWidget& window) : window_(window) { Look(); }

  /// What is new since the last look, by control, for example "Inn1: 1; kick is disabled",
  /// except for what `passedOver` matches. What changes in hidden controls is told when they are shown.
  std::string Changed(const char* passedOver = "^$") {
    const Picture before = picture_;
    Look();
    QStringList changes;
    for (const auto& [what, value] : picture_) {
      const QString was = before.contains(what) ? before.at(what) : QString();
      const bool grown = !was.isEmpty() && what.endsWith(" offers") && value.startsWith(was + " | ");
      const QString change = what + (grown ? " more: " + value.mid(was.size() + 3) : " " + value);
      if (was != value && !change.contains(QRegularExpression(passedOver))) changes.append(change.trimmed());
    }
    return changes.join("; ").toStdString();
  }

 private:
  using Picture = std::map<QString, QString>;  ///< By control and what about it.

  void Set(const QString& control, const char* what, const QString& value) {
    picture_[control + what] = value;
  }

  void Look() {
    QCoreApplication::processEvents();
    if (window_.isVisible()) Set("Enter", " presses", {});
    Set("window", " is", window_.isVisible() ? "open" : "closed");
    const QWidget* const focus = window_.focusWidget();
    if (focus != nullptr && !focus->inherits("QAbstractButton")) Set("focus", " on", focus->objectName());
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
    const bool known = picture_.contains(name + " is");
    Set(name, " is", StateOf(control));
    if (known && !control.isVisible()) return;
    Set(name, " tips", Plain(control.toolTip()));
    Set(name, " is told as", control.accessibleName());
    const QString description = control.accessibleDescription();
    Set(name, " is described as", description == Plain(control.toolTip()) ? "" : description);
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) {
      Set(name, ":", label->text());
      Set(name, " is called", label->property("accessibleCaption").toString());
      if (label->autoFillBackground())
        Set(name, " stands on",
            GroundOf(*label) + " in " + label->palette().color(QPalette::WindowText).name());
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

  /// What each entry shows and what screen readers say instead, which holds its tip.
  static QString EntriesOf(const QAbstractItemModel& model) {
    QStringList entries;
    for (int row = 0; row < model.rowCount(); ++row) {
      QString entry = model.index(row, 0).data().toString();
      for (const int role : {SideTextRole, int(Qt::AccessibleTextRole), int(Qt::ToolTipRole)}) {
        const QString more = Plain(model.index(row, 0).data(role).toString());
        if (!entry.contains(more)) entry += " / " + more;
      }
      entries.append(entry);
    }
    return entries.join(" | ");
  }

  QWidget& window_;
  Picture picture_;
};

}  // namespace kickwell
