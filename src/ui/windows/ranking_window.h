#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <vector>

#include "championship/ranking.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

/// One column of a ranking: its header, the name of its labels, whether it holds figures, and what screen
/// readers are told of a header that is cut short.
struct RankingColumn {
  const char* Name;
  QString Header;
  bool Figure;
  QString Told = Header;
};

/// Pages of ranked rows with a bar that follows the mouse and the arrow keys: the league table and the top
/// scorers.
class RankingWindow final : public ScreenWindow {
 public:
  /// `closeName` is the name of the button that closes the screen, `width` the window's where type is of the
  /// usual size.
  RankingWindow(Ranking& ranking, const char* name, const QString& caption, const char* closeName,
                std::vector<RankingColumn> columns, int width, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return ranking_.Closed; }
  void Leave() override { ranking_.Close_Click(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* BuildRows();
  void MoveBar(int row);
  void PlaceBar();

  Ranking& ranking_;
  std::vector<RankingColumn> columns_;
  QLabel* label1_;
  std::vector<std::array<QLabel*, Paging::Rows>> labels_;  ///< By column.
  std::array<QWidget*, Paging::Rows> markers_{};
  QFrame* bar_ = nullptr;
  QPushButton *nextpage_, *prevpage_;
};

/// The two rankings with their captions and columns.
RankingWindow* MakeTableWindow(Ranking& table, QWidget* parent);
RankingWindow* MakeTopScorersWindow(Ranking& scorers, QWidget* parent);

}  // namespace kickwell
