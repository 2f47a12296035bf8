// Texts that stand for whole numbers, as users type them and files keep them.
#pragma once

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace kickwell {

/// Whether `text` is decimal digits, with at most one "-" before them, of any length.
inline bool IsNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// `text` without the blanks around it: spaces, tabs and no-break spaces.
inline std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view Blanks[] = {" ", "\t", "\u00A0"};
  for (std::size_t before = text.size() + 1; text.size() < before;) {
    before = text.size();
    for (const std::string_view blank : Blanks) {
      if (text.starts_with(blank)) text.remove_prefix(blank.size());
      if (text.ends_with(blank)) text.remove_suffix(blank.size());
    }
  }
  return text;
}

/// The whole number that `text` spells in decimal digits, with at most one "-" before them and blanks around
/// them; none when it is no such number or does not fit an int.
inline std::optional<int> NumberIn(std::string_view text) {
  text = WithoutBlanks(text);
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

/// Likewise, with 0 for none.
inline int ToNumber(std::string_view text) {
  return NumberIn(text).value_or(0);
}

/// `figure` and `more`, which is not negative; at most the largest int, which a file may hold already.
inline int Raised(int figure, int more) {
  return figure + std::min(more, std::numeric_limits<int>::max() - std::max(figure, 0));
}

}  // namespace kickwell
