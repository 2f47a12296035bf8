// What screen readers announce for widgets that Qt knows too little about: those that paint themselves, and
// figures, which mean nothing without their caption.
#pragma once

#include <QAccessible>
#include <QLabel>
#include <QString>

namespace kickwell {

/// Tells screen readers that `widget`, which paints itself, is a `role`. Of a List they are told its
/// ListItems only, while there are any.
void SetRole(QWidget* widget, QAccessible::Role role);

/// Names or describes `widget` to screen readers, which are told only if that is new: they may speak each
/// time.
void SetName(QWidget* widget, const QString& name);
void SetDescription(QWidget* widget, const QString& description);

/// Names `figure` to screen readers by `caption` and its current text, for example "Shots: 3".
void SetFigureCaption(QLabel* figure, const QString& caption);

/// Draws the focus frame of `widget`, which paints itself, if it has the focus.
void DrawFocus(QWidget* widget);

}  // namespace kickwell
