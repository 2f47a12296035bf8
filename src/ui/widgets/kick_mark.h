// The lamps of the match: red, green or dark.
#pragma once

#include <QWidget>

#include "engine/match_session.h"

namespace kickwell {

/// The mark of one kick in the shoot-out: a dot, then a green ball for a goal or a red cross for a miss. A
/// ring marks the kick on view.
class KickMark final : public QWidget {
 public:
  KickMark();

  /// `kick` says whose and which it is.
  void SetMarker(const KickMarker& marker, const QString& kick, bool onView);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Lamp colour_ = Lamp::Black;
  bool onView_ = false;
};

/// The colours of the lamps: black, pure green, pure red.
QColor LampColour(Lamp lamp);

}  // namespace kickwell
