// The stripes in the teams' colours.
#pragma once

#include <QFrame>

#include "engine/match_session.h"

namespace kickwell {

/// A stripe that marks whatever belongs to one of the two teams. It is `thickness` pixels high, or wide where
/// `direction` is vertical.
QFrame* MakeStripe(Qt::Orientation direction, int thickness);

/// Gives `stripe` the colour of the team that plays on `side`. Each team keeps its colour for the whole
/// match.
void ShowTeam(QFrame* stripe, const MatchSession& session, const Side& side);

}  // namespace kickwell
