// Lists of lines: those of the match, and the results.
#pragma once

#include "ui/widgets/choosers.h"

namespace kickwell {

/// A list that only grows, with lines of one height. It scrolls sideways to the end of its longest line.
class LineList final : public SteadyList {
 public:
  explicit LineList(const QString& objectName);

  /// Shows `lines`, which have only grown since the last call. Scrolls to the newest if there is a new one;
  /// otherwise the list stays where the user is reading.
  void ShowLines(const ItemList& lines);

 protected:
  void resizeEvent(QResizeEvent* event) override;  ///< A list that shows the newest line goes on showing it.
};

}  // namespace kickwell
