// Elements by places that are ints, as the screens count them.
#pragma once

#include <cstddef>

namespace kickwell {

/// The element at `place`, counted from 0. Throws std::out_of_range where there is none.
template <typename List>
constexpr decltype(auto) At(List& list, int place) {
  return list.at(static_cast<std::size_t>(place));
}

}  // namespace kickwell
