// What the league table and the top scorers have in common: a heading and pages of rows.
#pragma once

#include <string>
#include <vector>

#include "championship/paging.h"

namespace kickwell {

class Ranking {
 public:
  void nextpage_Click() { Pages.Next(); }
  void prevpage_Click() { Pages.Back(); }
  void Marker_MouseMove(int row) { Pages.Hover(row); }
  void Close_Click() { Closed = true; }

  std::string Label1;                          ///< The heading.
  std::vector<std::vector<std::string>> Rows;  ///< All entries in order, each the texts of its columns.
  Paging Pages;
  bool Closed = false;
};

}  // namespace kickwell
