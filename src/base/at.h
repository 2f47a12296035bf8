// Lists by ints, as the screens count them.
#pragma once

#include <iterator>
#include <stdexcept>

namespace kickwell {

template <typename List>
constexpr int Count(const List& list) {
  return static_cast<int>(std::ssize(list));
}

/// The element at `place`, counted from 0. Throws std::out_of_range where there is none.
template <typename List>
constexpr decltype(auto) At(List& list, int place) {
  if (place < 0 || place >= Count(list)) throw std::out_of_range("a list has no such place");
  return *std::next(std::begin(list), place);
}

}  // namespace kickwell
