// The Enter key, which does the same on every desktop.
#pragma once

#include <QEvent>
#include <QWidget>

namespace kickwell {

/// Whether `event` is a press of Enter, on the keypad or not.
bool IsEnterPress(const QEvent& event);

/// Takes Enter past the controls of `window`, to the section or the window around them. On some desktops the
/// theme would let Enter open a drop-down list, tick a box or press a button by itself. As long as the window
/// exists, a key that is held down presses once: it must not run through boxes and screens.
void TakeEnterPastControls(QWidget* window);

}  // namespace kickwell
