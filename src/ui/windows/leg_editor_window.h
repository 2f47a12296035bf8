#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <functional>

#include "championship/leg_editor.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class LegEditorWindow final : public ScreenWindow {
 public:
  LegEditorWindow(LegEditor& editor, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return editor_.Closed; }
  void Leave() override { editor_.Exit_Click(); }

 private:
  /// The widgets of one side. Their names begin with "League" or "KnockOut".
  struct SideWidgets {
    QWidget* Page;
    QLineEdit* Name;
    QListWidget *Available, *Selected, *Fixtures;
    QComboBox* Load;
    QLabel *TeamCount, *MatchCount;
    QComboBox *Home, *Away;  ///< League only.
    QLabel* NumberOfTeams;   ///< Knock-out only.
  };

  QWidget* BuildSide(SideWidgets& widgets, EditorSide& side);
  QLayout* BuildTeams(SideWidgets& widgets, EditorSide& side, const QString& prefix);
  QLayout* BuildFixtures(SideWidgets& widgets, EditorSide& side, const QString& prefix);
  QLayout* BuildFiles(SideWidgets& widgets, EditorSide& side, const QString& prefix);
  void OnSelect(QListWidget* list, ItemList& chooser);
  static void ShowSide(const SideWidgets& widgets, const EditorSide& side);

  LegEditor& editor_;
  QComboBox* kind_;
  SideWidgets league_{}, knockOut_{};
};

}  // namespace kickwell
