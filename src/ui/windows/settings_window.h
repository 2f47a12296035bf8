#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "setup/settings.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class SettingsWindow final : public ScreenWindow {
 public:
  SettingsWindow(Settings& settings, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return settings_.Closed; }
  void Leave() override { settings_.Command2_Click(); }

 private:
  QLayout* BuildDeciders();
  void TellStadiums();

  Settings& settings_;
  QComboBox *combo1_, *combo2_, *combo3_, *combo4_, *combo5_;
  QCheckBox *check1_, *check2_;
};

}  // namespace kickwell
