#pragma once

#include <QLabel>
#include <array>

#include "championship/knock_charts.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

/// The bracket: a box for each slot, and lines from each pair to its winner's slot. Screen readers announce
/// the matches in order.
class BracketView final : public QWidget {
 public:
  explicit BracketView(const KnockCharts& charts);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;  ///< Room for every name in usual type.

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool IsKnown(int slot) const;
  bool IsChampion(int slot) const;
  QRectF Extent() const;
  QSize SizeWith(const QSize& box) const;
  QRectF BoxOf(int slot) const;
  void NameSlots();

  const KnockCharts& charts_;
  std::array<QLabel*, SlotTotal> team_{};
};

class KnockChartsWindow final : public ScreenWindow {
 public:
  KnockChartsWindow(KnockCharts& charts, QWidget* parent);

 protected:
  void Refresh() override {}  // Nothing changes while the window is open.
  bool IsClosed() const override { return charts_.Closed; }
  void Leave() override { charts_.Command3_Click(); }

 private:
  KnockCharts& charts_;
};

}  // namespace kickwell
