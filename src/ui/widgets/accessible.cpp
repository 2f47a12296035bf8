#include "ui/widgets/accessible.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QVariant>

namespace kickwell {
namespace {

constexpr const char* RoleProperty = "accessibleRole";
constexpr const char* CaptionProperty = "accessibleCaption";

class Face : public QAccessibleWidget {
 public:
  Face(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

  QString text(QAccessible::Text kind) const override {
    const QString caption = widget()->property(CaptionProperty).toString();
    const auto* const figure = qobject_cast<QLabel*>(widget());
    if (kind == QAccessible::Description)
      return widget()->accessibleDescription();  // Not the tool tip, Qt's stand-in.
    if (kind != QAccessible::Name || figure == nullptr || caption.isEmpty())
      return QAccessibleWidget::text(kind);
    return caption + ": " + figure->text();
  }
};

/// A list of rows, each of which tells all that stands in it: what the rows lie over is not told again.
class RowsFace final : public Face {
 public:
  explicit RowsFace(QWidget* widget) : Face(widget, QAccessible::List) {}

  int childCount() const override { return static_cast<int>(Rows().size()); }
  QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(Rows().value(index));
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Rows().indexOf(child->object()));
  }

 private:
  /// The rows on view, or else whatever stands in their place.
  QObjectList Rows() const {
    QObjectList rows, others;
    for (QWidget* const inner : widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!inner->isVisible()) continue;
      const bool row = inner->property(RoleProperty).toInt() == QAccessible::ListItem;
      (row ? rows : others).append(inner);
    }
    return rows.empty() ? others : rows;
  }
};

QAccessibleInterface* MakeFace(const QString& /*className*/, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  const QVariant role = object->property(RoleProperty);
  if (widget == nullptr || !role.isValid()) return nullptr;
  if (role.toInt() == QAccessible::List) return new RowsFace(widget);
  return new Face(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetRole(QWidget* widget, QAccessible::Role role) {
  static const bool installed = (QAccessible::installFactory(MakeFace), true);
  widget->setProperty(RoleProperty, installed ? static_cast<int>(role) : 0);
  // Qt may have made another interface for the widget already, before its role was known.
  QAccessibleInterface* const former = QAccessible::queryAccessibleInterface(widget);
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

void SetName(QWidget* widget, const QString& name) {
  if (widget->accessibleName() != name) widget->setAccessibleName(name);
}

void SetDescription(QWidget* widget, const QString& description) {
  if (widget->accessibleDescription() != description) widget->setAccessibleDescription(description);
}

void SetFigureCaption(QLabel* figure, const QString& caption) {
  if (figure->property(CaptionProperty).toString() == caption) return;
  if (!figure->property(CaptionProperty).isValid()) SetRole(figure, QAccessible::StaticText);
  figure->setProperty(CaptionProperty, caption);
  QAccessibleEvent renamed(figure, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

void DrawFocus(QWidget* widget) {
  if (!widget->hasFocus()) return;
  constexpr int Width = 2;
  QPainter painter(widget);
  painter.setPen(QPen(widget->palette().color(QPalette::Highlight), Width));
  painter.drawRect(widget->rect().adjusted(1, 1, -1, -1));
  painter.setPen(widget->palette().color(QPalette::HighlightedText));  // Shows on the highlight, too.
  painter.drawRect(widget->rect().adjusted(Width, Width, -Width - 1, -Width - 1));
}

}  // namespace kickwell
