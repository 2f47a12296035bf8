// The lamps of the match: red, green or dark.
#pragma once

#include <QWidget>

#include "engine/match_session.h"

namespace kickwell {

/// The mark of one kick in the shoot-out: a small round lamp.
class KickMark final : public QWidget {
 public:
  KickMark();

  void SetMarker(const KickMarker& marker, const QString& kick);  ///< `kick` says whose and which it is.

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Lamp colour_ = Lamp::Black;
};

/// The colours of the lamps: black, pure green, pure red.
QColor LampColour(Lamp lamp);

}  // namespace kickwell
