// Colours and lengths that depend on where they are shown.
#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace kickwell {

/// The colour of text that matters less, still readable on the ground of `palette`.
QColor FaintText(const QPalette& palette);

/// Gives `widget` a ground and the colour of what stands on it.
void SetColours(QWidget* widget, const QColor& ground, const QColor& text);

/// A length in the screens' own unit, 1/1440 inch, as pixels of `widget`.
int Twips(const QWidget* widget, int twips);

}  // namespace kickwell
