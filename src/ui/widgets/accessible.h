// What screen readers are told of widgets that Qt knows nothing about: those that paint themselves, and
// figures that mean nothing without their caption.
#pragma once

#include <QAccessible>
#include <QLabel>
#include <QString>

namespace kickwell {

/// Makes `widget`, which paints itself, a `role` to screen readers.
void SetRole(QWidget* widget, QAccessible::Role role);

/// Names `figure` to screen readers by `caption` and its text, whatever that becomes: "Shots: 3".
void SetFigureCaption(QLabel* figure, const QString& caption);

/// Gives a focused `widget` that paints itself the frame which shows where the keyboard is.
void DrawFocus(QWidget* widget);

}  // namespace kickwell
