// Texts that stand for whole numbers, as users type them and files keep them.
#pragma once

#include <charconv>
#include <string_view>

namespace kickwell {

/// The whole number that `text` spells in decimal digits, with at most one "-" before them; 0 when it is no
/// such number or does not fit an int.
inline int ToNumber(std::string_view text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end ? number : 0;
}

}  // namespace kickwell
