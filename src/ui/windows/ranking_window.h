#pragma once

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <vector>

#include "championship/ranking.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

/// One column of a ranking.
struct RankingColumn {
  const char* Name;  ///< The name of its labels, which are a control array.
  QString Header;
  bool Figure;                 ///< Figures stand to the right and get no more room than they need.
  QString Announced = Header;  ///< What screen readers say for a header that is an abbreviation.
};

/// What makes the screen of one ranking differ from that of another.
struct RankingScreen {
  const char* Name;
  QString Caption;
  const char* CloseName;  ///< The name of the button that closes the screen.
  int Width;              ///< Of the window, where type is of the usual size.
  QString Empty;          ///< What screen readers are told without any row.
  std::vector<RankingColumn> Columns;
};

RankingScreen TableScreen();       ///< The league table.
RankingScreen TopScorersScreen();  ///< The top scorers.

/// Pages of ranked rows with a bar that follows the mouse and the arrow keys.
class RankingWindow final : public ScreenWindow {
 public:
  RankingWindow(Ranking& ranking, const RankingScreen& screen, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return ranking_.Closed; }
  void Leave() override { ranking_.Close_Click(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Labels = std::array<QLabel*, Paging::Rows>;

  QWidget* BuildRows();
  Labels BuildColumn(QGridLayout* grid, int place, const RankingColumn& column);
  void MoveBar(int row);
  void PlaceBar();

  Ranking& ranking_;
  std::vector<RankingColumn> columns_;
  QString empty_;
  QLabel* label1_;
  std::vector<Labels> labels_;  ///< By column.
  std::array<QWidget*, Paging::Rows> markers_{};
  QFrame* rows_ = nullptr;
  QFrame* bar_ = nullptr;  ///< Lies under the labels of the marked row.
  QPushButton *nextpage_, *prevpage_;
};

}  // namespace kickwell
