// What a window shows, as texts that a test compares.
#pragma once

#include <QtWidgets>
#include <map>
#include <string>

#include "ui/widgets/side_text.h"

namespace kickwell {

/// Watches everything that a window's user sees or is told: texts, entries, what is picked, enabled, visible
/// and checked, tips, colours, the button that Enter presses, and the focus unless a button has it.
class Watch {
 public:
  /// Shows `window` and looks at it for the first time.
  explicit Watch(QWidget& window) : window_(window) {
    window_.show();
    Look();
  }

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
    Set(name, " is called", control.property("accessibleCaption").toString());
    Set(name, ":", control.property("text").toString() + control.property("currentText").toString());
    if (control.property("default").toBool()) Set("Enter", " presses", name);
    if (control.inherits("QLabel") && control.autoFillBackground())
      Set(name, " stands on",
          GroundOf(control) + " in " + control.palette().color(QPalette::WindowText).name());
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control))
      Set(name, " offers", EntriesOf(*combo->model()));
    if (const auto* const list = qobject_cast<const QListWidget*>(&control)) {
      Set(name, " offers", EntriesOf(*list->model()));
      QStringList picked;
      for (const QListWidgetItem* const item : list->selectedItems()) picked.append(item->text());
      Set(name, ":", picked.join(" | "));
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
    if (control.property("checked").toBool()) state += ", checked";
    if (control.inherits("QLabel") && control.font().bold()) state += ", bold";
    return state;
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
