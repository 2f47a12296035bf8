#include "ui/windows/leg_results_window.h"

#include "ui/text.h"
#include "ui/widgets/labels.h"

namespace kickwell {

LegResultsWindow::LegResultsWindow(LegResults& results, QWidget* parent)
    : ScreenWindow("LegResults", "Kickwell League/Tournament Results", parent),
      results_(results),
      label1_(MakeHeading("Label1")),
      list1_(new LineList("List1")),
      command2_(Button("Command2", "&Save", [this] { results_.Command2_Click(); })) {
  list1_->setAccessibleName("Results");  // No caption says it.
  list1_->SetHint("Results appear here when matches have been played.");
  QPushButton* const command1 = Button("Command1", "Close", [this] { results_.Command1_Click(); });
  command1->setDefault(true);

  Page()->addWidget(label1_);
  Page()->addWidget(list1_, 1);
  SetButtons({.Left = {command2_}, .Right = {command1}});

  Refresh();
  OpenAt(560, 560);
}

void LegResultsWindow::showEvent(QShowEvent* event) {
  ScreenWindow::showEvent(event);
  list1_->scrollToBottom();
  // From there the arrow keys go on; nothing is selected.
  const QModelIndex newest = list1_->model()->index(list1_->count() - 1, 0);
  list1_->selectionModel()->setCurrentIndex(newest, QItemSelectionModel::NoUpdate);
}

void LegResultsWindow::Refresh() {
  label1_->setText(Shown(results_.Label1));
  list1_->ShowLines(results_.List1);
  command2_->setEnabled(results_.Command2Enabled());
}

}  // namespace kickwell
