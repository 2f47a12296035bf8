#pragma once

#include <QComboBox>
#include <QLabel>

#include "editors/team_editor.h"
#include "ui/widgets/squad_list.h"
#include "ui/widgets/text_box.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class TeamEditorWindow final : public ScreenWindow {
 public:
  TeamEditorWindow(TeamEditor& editor, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return editor_.Closed; }
  void Leave() override { editor_.Command4_Click(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QComboBox* Combo(const char* name, void (TeamEditor::*action)(int));
  QLayout* BuildSquad();
  QLayout* BuildChanges();
  QWidget* BuildTeamRemoval();

  TeamEditor& editor_;
  QComboBox *combo1_, *combo2_, *combo3_;
  QLabel *label13_, *label14_, *label4_, *label5_;
  SquadList* list1_;
  TextBox *text1_, *text2_, *text4_, *text5_;
};

}  // namespace kickwell
