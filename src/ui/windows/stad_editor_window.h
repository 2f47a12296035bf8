#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "editors/stad_editor.h"
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

  StadEditor& editor_;
  QListWidget* list1_;
  QLabel* label8_;
  QLineEdit *text1_, *text2_, *text3_;
  QComboBox* combo1_;
};

}  // namespace kickwell
