// Texts on their way to the screen.
#pragma once

#include <QString>
#include <string_view>

namespace kickwell {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// `text` with blanks for control characters and line breaks.
QString WithoutBreaks(QString text);

/// A text from the user's files as the screen shows it: control characters and line breaks become blanks, and
/// U+FFFD replaces characters that would reverse the text next to them.
QString Shown(std::string_view text);

/// What a position code or its line or side means, for example "Defender, left" for "DFL" and "Left" for "L".
/// Empty for any other text.
QString PositionWords(std::string_view code);

/// The object name of member `index` of a control array, for example "Post1(0)".
QString ArrayName(const char* name, int index);

}  // namespace kickwell
