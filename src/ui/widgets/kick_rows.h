// The two rows of marks below the goal of the shoot-out.
#pragma once

#include <QFrame>
#include <QWidget>
#include <array>

#include "engine/match_session.h"
#include "ui/widgets/kick_mark.h"
#include "ui/widgets/text_label.h"

namespace kickwell {

/// A row for each side: the team, its colour and a mark for each kick. The team of the taker and the mark of
/// his kick stand out.
class KickRows final : public QWidget {
 public:
  KickRows();

  void Show(const MatchSession& session);

 private:
  struct Row {
    TextLabel* Team;
    QFrame* Stripe;
  };

  Row MakeRow(int row, QAnyStringView name, const QString& team);
  static void ShowRow(const Row& row, const MatchSession& session, const Side& side, bool kicks, bool waits);

  Row side1_, side2_;
  std::array<KickMark*, KickCount> marks_{};
};

/// The kick whose taker is on the spot, until the next one comes; -1 when the shoot-out is over.
int KickOnView(const MatchSession& session);

}  // namespace kickwell
