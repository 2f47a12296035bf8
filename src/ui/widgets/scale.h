// The lengths and the type of all windows, in one place so that they look alike.
#pragma once

#include <QtGlobal>

namespace kickwell {

// In pixels.
inline constexpr int PageMargin = 16;  ///< Around a page and around the buttons below it.
inline constexpr int Tight = 3;        ///< Between the parts of one sign, and above and below a row of text.
inline constexpr int InGroup = 6;      ///< Between a caption and its control, and between rows of a group.
inline constexpr int BetweenGroups = 12;   ///< Between groups below one another.
inline constexpr int BetweenColumns = 16;  ///< Between groups and figures side by side.
inline constexpr int BetweenHalves = 32;   ///< Between the halves of a page that have no frame.

// In parts of the usual size.
inline constexpr qreal SmallType = 0.9;
inline constexpr qreal FigureType = 1.1;
inline constexpr qreal HeadingType = 1.4;
inline constexpr qreal BoardType = 1.8;  ///< Teams and clock on the score board.
inline constexpr qreal ScoreType = 2.6;
inline constexpr qreal TitleType = 3.2;

}  // namespace kickwell
