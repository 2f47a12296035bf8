#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "setup/selection.h"
#include "ui/windows/screen_window.h"

class QStandardItemModel;

namespace kickwell {

class SelectionWindow final : public ScreenWindow {
 public:
  SelectionWindow(Selection& selection, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return selection_.Closed; }
  void Leave() override { selection_.Command2_Click(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// One side's widgets: eleven choosers with position and skill, and the figures.
  struct Column {
    QLabel* Note;               ///< Why there is no squad.
    QStandardItemModel* Squad;  ///< The players, whom all eleven choosers offer.
    std::array<QComboBox*, SlotCount> Combos;
    std::array<QLabel*, SlotCount> Twice;  ///< Marks beside the choosers of a player chosen twice.
    std::array<QLabel*, SlotCount> Posts, Skills;
    QLabel *Formation, *Skill, *OSkill, *Attack, *Defence, *Midfield, *Keeping;
  };
  using Pick = void (Selection::*)(int slot, int entry);

  QWidget* BuildSide(Column& column, int side, const QString& team, Pick pick);
  QLabel* MakeTwiceMark(QAnyStringView name, const QString& player) const;
  QWidget* BuildFigures(Column& column, int side, const QString& team);
  static void ShowSide(const Column& column, const LineUp& lineUp);
  static void ShowSlot(const Column& column, const LineUp& lineUp, int slot);

  Selection& selection_;
  bool timer1Started_ = false;
  Column side1_{}, side2_{};
  QPushButton* command1_;
};

}  // namespace kickwell
