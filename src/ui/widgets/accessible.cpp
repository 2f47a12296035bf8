#include "ui/widgets/accessible.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QVariant>

namespace kickwell {
namespace {

constexpr const char* RoleProperty = "accessibleRole";
constexpr const char* CaptionProperty = "accessibleCaption";

class Face final : public QAccessibleWidget {
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

QAccessibleInterface* MakeFace(const QString& /*className*/, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  const QVariant role = object->property(RoleProperty);
  if (widget == nullptr || !role.isValid()) return nullptr;
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
  painter.setPen(QPen(Qt::white, 2 * Width));  // Black on white is visible on any picture.
  painter.drawRect(widget->rect());
  painter.setPen(QPen(Qt::black, Width, Qt::DotLine));
  painter.drawRect(widget->rect().adjusted(1, 1, -1, -1));
}

}  // namespace kickwell
