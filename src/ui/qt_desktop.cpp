#include "ui/qt_desktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <utility>

#include "base/program.h"
#include "ui/text.h"

namespace kickwell {
namespace {

/// Names from damaged files may be endless. A box must still fit on the screen and say what has happened.
QString Shortened(const QString& text) {
  constexpr qsizetype Longest = 600;
  return text.size() <= Longest ? text : text.left(Longest / 2) + " ... " + text.right(Longest / 2);
}

QWidget* WindowInUse() {
  QWidget* const screen = QApplication::activeModalWidget();
  return screen != nullptr ? screen : QApplication::activeWindow();
}

QMessageBox::StandardButton Show(QMessageBox::Icon icon, const std::string& text,
                                 QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, ToQt(ProgramTitle), Shortened(Shown(text)), buttons, WindowInUse());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

QtDesktop::QtDesktop(ProgramFolder folder) : folder_(std::move(folder)) {}

void QtDesktop::Inform(const std::string& text) {
  Show(QMessageBox::Information, text, QMessageBox::Ok);
}

void QtDesktop::Warn(const std::string& text) {
  Show(QMessageBox::Warning, text, QMessageBox::Ok);
}

bool QtDesktop::Ask(const std::string& text) {
  return Show(QMessageBox::NoIcon, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<std::string> QtDesktop::AskSaveName(const std::string& proposedName) {
  QFileDialog dialog(WindowInUse(), ToQt(ProgramTitle), ToQt(folder_.Root.string()),
                     QStringLiteral("HTML File (*.htm)"));
  dialog.setObjectName("SaveDialog");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(ToQt(proposedName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst().toStdString();
}

}  // namespace kickwell
