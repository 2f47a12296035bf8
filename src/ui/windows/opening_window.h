#pragma once

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <functional>

#include "setup/opening.h"

namespace kickwell {

class OpeningWindow final : public QMainWindow {
 public:
  explicit OpeningWindow(Opening& opening);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  QWidget* BuildTitle();
  void Refresh();

  Opening& opening_;
  QMenu* statistics_ = nullptr;
  QAction *leagueMenu_ = nullptr, *knockChart_ = nullptr;
  QLabel *league_ = nullptr, *mode_ = nullptr;
};

}  // namespace kickwell
