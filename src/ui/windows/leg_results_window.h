#pragma once

#include <QLabel>
#include <QPushButton>

#include "championship/leg_results.h"
#include "ui/widgets/line_list.h"
#include "ui/windows/screen_window.h"

namespace kickwell {

class LegResultsWindow final : public ScreenWindow {
 public:
  LegResultsWindow(LegResults& results, QWidget* parent);

 protected:
  void Refresh() override;
  bool IsClosed() const override { return results_.Closed; }
  void showEvent(QShowEvent* event) override;  ///< At the newest result.
  void Leave() override { results_.Command1_Click(); }

 private:
  LegResults& results_;
  QLabel* label1_;
  LineList* list1_;
  QPushButton* command2_;
};

}  // namespace kickwell
