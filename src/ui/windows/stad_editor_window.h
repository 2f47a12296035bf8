#pragma once

#include <QComboBox>
#include <QLabel>

#include "editors/stad_editor.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/text_box.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class StadEditorWindow final : public ScreenWindow {
 public:
  StadEditorWindow(StadEditor& editor, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return editor_.Closed; }
  void Leave() override { editor_.Command3_Click(); }

 private:
  QWidget* BuildRemoval();
  QWidget* BuildAddition();
  static QWidget* BuildInstructions();

  StadEditor& editor_;
  SteadyList* list1_;
  QLabel* label8_;
  TextBox *text1_, *text2_, *text3_;
  QComboBox* combo1_;
};

}  // namespace kickwell
