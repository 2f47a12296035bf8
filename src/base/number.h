// Texts that stand for whole numbers, as users type them and files keep them.
#pragma once

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace kickwell {

/// Whether `text` is decimal digits, with at most one "-" before them, of any length.
inline bool IsNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The whole number that `text` spells in decimal digits, with at most one "-" before them; 0 when it is no
/// such number or does not fit an int.
inline int ToNumber(std::string_view text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end ? number : 0;
}

/// `figure` and `more`, which is not negative; at most the largest int, which a file may hold already.
inline int Raised(int figure, int more) {
  return figure + std::min(more, std::numeric_limits<int>::max() - std::max(figure, 0));
}

}  // namespace kickwell
