// What a drop-down list or a plain list shows: its entries and the picked one.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/at.h"

namespace kickwell {

struct ItemList {
  static constexpr int None = -1;

  std::vector<std::string> Entries;  ///< UTF-8, in the order shown.
  int Picked = None;                 ///< 0-based place of the picked entry, or None.

  int Count() const { return kickwell::Count(Entries); }

  /// The picked entry; empty when none is picked.
  std::string Text() const { return Picked >= 0 && Picked < Count() ? At(Entries, Picked) : std::string(); }

  /// The place of the first such entry, or None.
  int PlaceOf(std::string_view entry) const {
    const auto place = std::ranges::find(Entries, entry);
    return place == Entries.end() ? None : static_cast<int>(place - Entries.begin());
  }

  void Add(std::string entry) { Entries.push_back(std::move(entry)); }

  /// Adds `entry` at its place in a list that is sorted by `before`. What is picked stays picked.
  template <typename Before>
  void Insert(const std::string& entry, Before before) {
    const auto place = std::ranges::upper_bound(Entries, entry, before);
    if (place - Entries.begin() <= Picked) ++Picked;
    Entries.insert(place, entry);
  }

  /// Removes the entry at `place`, if there is one. What is picked stays picked; the removed entry leaves
  /// nothing picked.
  void RemoveAt(int place) {
    if (place < 0 || place >= Count()) return;
    Entries.erase(Entries.begin() + place);
    if (place == Picked) {
      Picked = None;
    } else if (place < Picked) {
      --Picked;
    }
  }

  /// Picks the entry at `place`, or nothing where there is no such entry.
  void Pick(int place) { Picked = place >= 0 && place < Count() ? place : None; }
  void PickFirst() { Pick(0); }
  void PickLast() { Pick(Count() - 1); }
};

}  // namespace kickwell
