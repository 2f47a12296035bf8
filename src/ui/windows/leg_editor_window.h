#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "championship/leg_editor.h"
#include "ui/widgets/text_box.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class LegEditorWindow final : public ScreenWindow {
 public:
  LegEditorWindow(LegEditor& editor, QWidget* parent);

  /// Escape leaves only what is saved; otherwise it says what is not and leads to the button
  /// that leaves.
  void reject() override;

 protected:
  void Refresh() override;
  bool IsClosed() const override { return editor_.Closed; }
  void Leave() override { editor_.Exit_Click(); }

 private:
  /// The widgets of one side. Their names begin with "League" or "KnockOut".
  struct SideWidgets {
    QWidget *Page, *Files;
    TextBox* Name;
    QListWidget *Available, *Selected, *Fixtures;
    QComboBox* Load;
    QLabel* LoadCaption;
    QLabel* FixtureNote;
    QLabel *TeamCount, *MatchCount;
    QComboBox *Home, *Away;  ///< League only.
    QLabel* NumberOfTeams;   ///< Knock-out only.
  };

  QWidget* BuildSide(SideWidgets& widgets, EditorSide& side);
  QLayout* BuildTeams(SideWidgets& widgets, EditorSide& side, const QString& prefix);
  QLayout* BuildFixtures(SideWidgets& widgets, EditorSide& side, const QString& prefix);
  QLayout* BuildNumberOfTeams(SideWidgets& widgets);
  QLayout* BuildPairing(SideWidgets& widgets, EditorSide& side);
  QWidget* BuildFiles(EditorSide& side, const QString& prefix);
  void OnSelect(QListWidget* list, ItemList& chooser);
  static void OnActivate(QListWidget* list, QPushButton* move);
  void ShowSide(const SideWidgets& widgets, const EditorSide& side);
  void ShowFixtures(const SideWidgets& widgets, const EditorSide& side);

  LegEditor& editor_;
  QComboBox* kind_;
  QPushButton* exit_;
  QLabel* unsaved_;  ///< Why Escape has not left.
  SideWidgets league_{}, knockOut_{};
};

}  // namespace kickwell
