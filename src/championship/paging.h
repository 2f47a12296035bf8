// Fifteen rows of a ranking at a time, and the bar that marks one of them.
#pragma once

#include <algorithm>

namespace kickwell {

class Paging {
 public:
  static constexpr int Rows = 15;

  /// Starts on the first page of `count` entries.
  void Open(int count) {
    count_ = count;
    page_ = 0;
    Highlight = 1;
  }

  bool NextEnabled() const { return (page_ + 1) * Rows < count_; }
  bool BackEnabled() const { return page_ != 0; }

  /// To the next page or back, with the bar on the first row. Nothing where there is none.
  void Next() { Turn(NextEnabled(), 1); }
  void Back() { Turn(BackEnabled(), -1); }

  /// Entries of the page, and the place of the first one from 0.
  int RowCount() const { return std::clamp(count_ - Offset(), 0, Rows); }
  int Offset() const { return page_ * Rows; }

  /// Moves the bar to row `row` (from 1); not to one without an entry.
  void Hover(int row) {
    if (row >= 1 && row <= RowCount()) Highlight = row;
  }

  int Highlight = 1;  ///< The row with the bar, from 1.

 private:
  void Turn(bool possible, int pages) {
    if (!possible) return;
    page_ += pages;
    Highlight = 1;
  }

  int count_ = 0;
  int page_ = 0;
};

}  // namespace kickwell
