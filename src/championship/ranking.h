// What the league table and the top scorers have in common: a heading and pages of rows.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/at.h"
#include "championship/paging.h"

namespace kickwell {

class Ranking {
 public:
  /// Adds an entry at the end, its rank as the first column, and shows the first page.
  void Add(std::vector<std::string> columns) {
    columns.insert(columns.begin(), std::to_string(Rows.size() + 1));
    Rows.push_back(std::move(columns));
    Pages.Open(static_cast<int>(Rows.size()));
  }

  void nextpage_Click() { Pages.Next(); }
  void prevpage_Click() { Pages.Back(); }
  void Marker_MouseMove(int row) { Pages.Hover(row); }
  void Close_Click() { Closed = true; }

  /// The text in a row (from 1) of the page that is shown; empty below its last entry.
  std::string Text(int row, int column) const {
    return row > Pages.RowCount() ? std::string() : At(At(Rows, Pages.Offset() + row - 1), column);
  }

  std::string Label1;                          ///< The heading.
  std::vector<std::vector<std::string>> Rows;  ///< All entries in order, each the texts of its columns.
  Paging Pages;
  bool Closed = false;
};

}  // namespace kickwell
