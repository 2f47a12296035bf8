// Colours and lengths that depend on where they are shown.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QWidget>

namespace kickwell {

/// The colour of text that matters less, still readable on the ground of `palette`.
QColor FaintText(const QPalette& palette);

/// Gives `widget` a ground and the colour of what stands on it.
void SetColours(QWidget* widget, const QColor& ground, const QColor& text);

/// A white line on a picture, `width` pixels wide whatever the scale of `painter` and of the screen. `alpha`
/// is 0 to 255.
QPen Chalk(const QPainter& painter, int alpha, int width);

/// A length in the screens' own unit, 1/1440 inch, as pixels of `widget`.
int Twips(const QWidget* widget, int twips);

}  // namespace kickwell
