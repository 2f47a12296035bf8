// What a drop-down list or a list shows: its entries and the one that is picked.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kickwell {

struct Chooser {
  static constexpr int None = -1;

  std::vector<std::string> Entries;  ///< UTF-8, in the order shown.
  int Picked = None;                 ///< 0-based place of the picked entry, or None.

  int Count() const { return static_cast<int>(Entries.size()); }

  /// The picked entry; empty when none is picked.
  std::string Text() const {
    return Picked >= 0 && Picked < Count() ? Entries[static_cast<std::size_t>(Picked)] : std::string();
  }

  void Add(std::string entry) { Entries.push_back(std::move(entry)); }
  void PickLast() { Picked = Count() - 1; }
};

}  // namespace kickwell
